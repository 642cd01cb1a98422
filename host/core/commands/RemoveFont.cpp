#include "host/core/commands/RemoveFont.h"

#include "host/core/project/Project.h"
#include "host/core/project/ProjectFiles.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

RemoveFont::RemoveFont(Project* project, const QString& font)
    : m_project(project)
    , m_font(font)
{
    setText(Common::LocalizationHelper::coreString(QStringLiteral("Remove %1")).arg(font));
}

RemoveFont::~RemoveFont() = default;

bool RemoveFont::isValid() const
{
    return m_project && m_project->fontResources().contains(m_font);
}

void RemoveFont::execute()
{
    m_index = m_project->fontResources().indexOf(m_font);
    redoStructure();
}

void RemoveFont::undoStructure()
{
    QStringList fonts = m_project->fontResources();
    fonts.insert(qMin(m_index, fonts.size()), m_font);
    ProjectFiles::of(m_project)->setFontRemoved(m_font, false);
    m_project->setFontResources(fonts);
}

void RemoveFont::redoStructure()
{
    QStringList fonts = m_project->fontResources();
    fonts.removeAll(m_font);
    ProjectFiles::of(m_project)->setFontRemoved(m_font, true);
    m_project->setFontResources(fonts);
}

bool RemoveFont::structureChanged() const
{
    return m_index >= 0;
}

} // namespace Korvex::Meridane::Designer
