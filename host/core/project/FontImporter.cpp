#include "host/core/project/FontImporter.h"

#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"
#include "host/core/project/ProjectFonts.h"
#include "host/core/project/ResourceNames.h"

#include "host/common/LocalizationHelper.h"

#include <QFile>
#include <QFileInfo>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr qint64 LargestFontFile = 64 * 1024 * 1024;

/// The ending that tells what kind of font \a content is; empty for none that every display can load.
QString suffixOf(const QByteArray& content)
{
    if (content.startsWith(QByteArrayView("\0\1\0\0", 4)) || content.startsWith("true"))
        return QStringLiteral("ttf");
    if (content.startsWith("OTTO"))
        return QStringLiteral("otf");
    if (content.startsWith("ttcf"))
        return QStringLiteral("ttc");
    return {};
}

/// The name under which the project has \a content already; empty when it does not.
QString nameOf(const Project* project, const QByteArray& content)
{
    const ProjectFiles* files = ProjectFiles::find(project);
    for (const QString& name : project->fontResources()) {
        if (files && files->readFont(name) == content)
            return name;
    }
    return {};
}

} // namespace

QString FontImporter::importFont(Project* project, const QString& file, QStringList* families, QString* message)
{
    const auto refuse = [&](const char* reason) {
        *message = LocalizationHelper::coreString(QString::fromUtf8(reason)).arg(file);
        return QString();
    };
    QFile source(file);
    if (!QFileInfo(file).isFile() || !source.open(QIODevice::ReadOnly))
        return refuse("%1: the file cannot be read. Check its name and whether you may read it.");
    if (source.size() > LargestFontFile)
        return refuse("%1: the file is larger than 64 MiB. Choose a font with fewer characters.");
    const QByteArray content = source.read(LargestFontFile);
    if (source.error() != QFileDevice::NoError)
        return refuse("%1: the file cannot be read. Check its name and whether you may read it.");
    const QString suffix = suffixOf(content);
    *families = suffix.isEmpty() ? QStringList() : ProjectFonts::familiesIn(content);
    if (families->isEmpty())
        return refuse("%1: this is no font that can be used. Use TrueType or OpenType (TTF, OTF, TTC).");
    const QString present = nameOf(project, content);
    if (!present.isEmpty())
        return present;
    const QString name = ResourceNames::freeName(project->fontsPath(), project->fontResources(),
                                                 QFileInfo(file).completeBaseName(), suffix, QStringLiteral("font"));
    if (!ProjectFiles::of(project)->writeFont(name, content, message))
        return {};
    project->setFontResources(QStringList(project->fontResources()) << name);
    project->setModifiedOutsideHistory();
    return name;
}

} // namespace Korvex::Meridane::Designer
