#include "app/ProgramFiles.h"

#include <QCoreApplication>
#include <QDir>

namespace Korvex::Meridane::Designer {

QString ProgramFiles::folder(Kind kind)
{
    const bool examples = kind == Kind::Examples;
    const QDir program(QCoreApplication::applicationDirPath());
    const QString installed = program.filePath(examples ? QStringLiteral("../share/meridane/examples")
                                                        : QStringLiteral("../share/meridane/guide"));
    // A build stands in build/<preset>/bin below the sources.
    const QString source =
        program.filePath(examples ? QStringLiteral("../../../examples") : QStringLiteral("../../../docs/guide"));
    for (const QString& folder : {installed, source}) {
        if (QDir(folder).exists())
            return QDir::cleanPath(QDir(folder).absolutePath());
    }
    return {};
}

} // namespace Korvex::Meridane::Designer
