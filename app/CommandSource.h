#pragma once

#include "app/Command.h"

#include <QList>

class QMainWindow;

namespace Korvex::Meridane::Designer {

class ElementPalette;
class FileActions;
class Project;
class Workspace;

/// Lists what the command palette offers. The commands hold what they work on, which must be there while they may be run.
class CommandSource
{
public:
    CommandSource() = delete;

    /// The actions with a name of the program's own: those of the menus of \a window in their order, then the others.
    [[nodiscard]] static QList<Command> actions(const QMainWindow* window);
    /// Placing an element of each class in the middle of the view.
    [[nodiscard]] static QList<Command> insertions(ElementPalette* palette);
    /// The ways to the screens and elements of the open project. Screens that have not been read yet offer themselves only.
    [[nodiscard]] static QList<Command> places(Workspace* workspace);
    /// Opening the projects that were open last.
    [[nodiscard]] static QList<Command> recentProjects(FileActions* file);
};

} // namespace Korvex::Meridane::Designer
