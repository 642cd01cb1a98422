#pragma once

#include "host/core/commands/UndoCommand.h"

namespace Korvex::Meridane::Designer {

class Project;

/// Takes a font file from a project's list. The file itself stays until the project, saved without it, is closed: the
/// history may ask for it.
class MERIDANE_CORE_EXPORT RemoveFont : public UndoCommand
{
public:
    RemoveFont(Project* project, const QString& font);
    ~RemoveFont() override;

    [[nodiscard]] bool isValid() const override;

protected:
    void execute() override;
    void undoStructure() override;
    void redoStructure() override;
    [[nodiscard]] bool structureChanged() const override;

private:
    Project* m_project; // owns the history, and so the command
    QString m_font;
    qsizetype m_index = -1; // among the fonts
};

} // namespace Korvex::Meridane::Designer
