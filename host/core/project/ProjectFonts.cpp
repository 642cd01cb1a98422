#include "host/core/project/ProjectFonts.h"

#include "host/core/project/ProjectFolder.h"

#include <QFontDatabase>
#include <QGuiApplication>

namespace Korvex::Meridane::Designer {

namespace {

bool canLoadFonts()
{
    return qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
}

} // namespace

ProjectFonts::~ProjectFonts()
{
    if (!canLoadFonts())
        return;
    for (const Font& font : std::as_const(m_fonts))
        QFontDatabase::removeApplicationFont(font.handle);
}

void ProjectFonts::load(const ProjectFolder& folder, const QStringList& fileNames)
{
    if (!canLoadFonts())
        return;
    for (const QString& name : fileNames) {
        if (m_fonts.contains(name) || m_unusable.contains(name) || !ProjectFolder::isResourceName(name))
            continue;
        QByteArray content;
        QString ignored;
        if (folder.read(ProjectFolder::fontFile(name), &content, &ignored) != ProjectFolder::Found::File)
            continue;
        const int handle = QFontDatabase::addApplicationFontFromData(content);
        if (handle < 0)
            m_unusable.append(name);
        else
            m_fonts.insert(name, {handle, QFontDatabase::applicationFontFamilies(handle)});
    }
}

QStringList ProjectFonts::filesOf(const QString& family) const
{
    QStringList files;
    for (auto font = m_fonts.cbegin(); font != m_fonts.cend(); ++font) {
        if (font->families.contains(family, Qt::CaseInsensitive))
            files.append(font.key());
    }
    return files;
}

} // namespace Korvex::Meridane::Designer
