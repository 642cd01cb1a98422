#include "host/core/project/ProjectFonts.h"

#include "host/core/project/ProjectFolder.h"

#include "host/common/DisplayFont.h"

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
    release({});
}

/// Lets all fonts go but \a kept.
void ProjectFonts::release(const QStringList& kept)
{
    if (!canLoadFonts())
        return;
    for (auto font = m_fonts.begin(); font != m_fonts.end();) {
        if (kept.contains(font.key())) {
            ++font;
        } else {
            QFontDatabase::removeApplicationFont(font->handle);
            font = m_fonts.erase(font);
        }
    }
    m_unusable.removeIf([&kept](const QString& name) { return !kept.contains(name); });
}

void ProjectFonts::setFiles(const ProjectFolder& folder, const QStringList& fileNames)
{
    if (!canLoadFonts())
        return;
    release(fileNames);
    for (const QString& name : fileNames) {
        if (m_fonts.contains(name) || m_unusable.contains(name) || !ProjectFolder::isResourceName(name))
            continue;
        QByteArray content;
        QString ignored;
        if (folder.read(ProjectFolder::fontFile(name), &content, &ignored) != ProjectFolder::Found::File)
            continue;
        const int handle = Common::addFontContent(content);
        if (handle < 0)
            m_unusable.append(name);
        else
            m_fonts.insert(name, {handle, QFontDatabase::applicationFontFamilies(handle)});
    }
}

QStringList ProjectFonts::familiesIn(const QByteArray& content)
{
    const int handle = canLoadFonts() ? QFontDatabase::addApplicationFontFromData(content) : -1;
    if (handle < 0)
        return {};
    const QStringList families = QFontDatabase::applicationFontFamilies(handle);
    QFontDatabase::removeApplicationFont(handle);
    return families;
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
