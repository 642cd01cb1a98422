#include "app/CommandSource.h"

#include "app/CommandKeywords.h"
#include "app/CoreText.h"
#include "app/ElementPalette.h"
#include "app/ElementPicture.h"
#include "app/FileActions.h"
#include "app/MenuText.h"
#include "app/RecentFiles.h"
#include "app/ThemedIcon.h"
#include "app/WindowAction.h"
#include "app/Workspace.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QSet>

namespace Korvex::Meridane::Designer {

namespace {

// What stands behind what, where two fit alike.
constexpr int InsertionHandicap = 4;
constexpr int ScreenHandicap = 6;
constexpr int ProjectHandicap = 8;
constexpr int ElementHandicap = 10;

Command commandOf(QAction* action, const QString& path)
{
    Command command;
    command.id = QLatin1String("action:") + action->objectName();
    command.text = MenuText::plain(action->text());
    command.path = path;
    command.keywords = CommandKeywords::of(action->objectName());
    command.shortcut = action->shortcut().toString(QKeySequence::NativeText);
    command.icon = action->icon();
    command.enabled = action->isEnabled();
    command.run = [action = QPointer<QAction>(action)] {
        if (action)
            action->trigger();
    };
    return command;
}

void addMenu(const QMenu* menu, const QString& path, QList<Command>* commands, QSet<const QAction*>* seen)
{
    const QList<QAction*> actions = menu->actions();
    for (QAction* action : actions) {
        if (const QMenu* below = action->menu()) {
            addMenu(below, coreText("%1 › %2").arg(path, MenuText::plain(action->text())), commands, seen);
        } else if (!action->objectName().isEmpty() && !seen->contains(action)) {
            seen->insert(action);
            commands->append(commandOf(action, path));
        }
    }
}

/// The pictures of the classes, each drawn once.
QIcon pictureOf(const QString& className)
{
    static QHash<QString, QIcon> pictures;
    auto known = pictures.find(className);
    if (known == pictures.end())
        known = pictures.insert(className, ElementPicture::icon(className));
    return *known;
}

void addElements(const DesignerObject* container, const QString& screenId, const QPointer<Workspace>& workspace,
                 QList<Command>* commands)
{
    const ObjectListProperty* children = container->childList();
    if (!children)
        return;
    for (const DesignerObject* element : children->items()) {
        const QString place = screenId + QLatin1Char('/') + element->getIdName();
        Command command;
        command.id = QLatin1String("element:") + place;
        command.text = coreText("Select %1").arg(element->getIdName());
        command.path = screenId;
        command.keywords = element->getIdName();
        command.icon = pictureOf(element->className());
        command.handicap = ElementHandicap;
        command.run = [workspace, place] {
            if (workspace)
                workspace->goTo(place);
        };
        commands->append(command);
        addElements(element, screenId, workspace, commands);
    }
}

} // namespace

QList<Command> CommandSource::actions(const QMainWindow* window)
{
    QList<Command> commands;
    QSet<const QAction*> seen;
    const QList<QAction*> menus = window->menuBar()->actions();
    for (const QAction* menu : menus) {
        if (menu->menu())
            addMenu(menu->menu(), MenuText::plain(menu->text()), &commands, &seen);
    }
    const QList<WindowAction*> others = window->findChildren<WindowAction*>();
    for (WindowAction* action : others) {
        if (!action->objectName().isEmpty() && !seen.contains(action))
            commands.append(commandOf(action, {}));
    }
    return commands;
}

QList<Command> CommandSource::insertions(ElementPalette* palette)
{
    QList<Command> commands;
    const QStringList classNames = DesignerFactory::instance()->elementClassNames();
    for (const QString& className : classNames) {
        Command command;
        command.id = QLatin1String("insert:") + className;
        command.text = coreText("Insert %1").arg(ElementPicture::displayName(className));
        command.path = coreText("Elements");
        command.keywords = coreText("add new place element") + QLatin1Char(' ') + className;
        command.icon = pictureOf(className);
        command.handicap = InsertionHandicap;
        command.run = [palette, className] { Q_EMIT palette->insertRequested(className); };
        commands.append(command);
    }
    return commands;
}

QList<Command> CommandSource::places(Workspace* workspace)
{
    QList<Command> commands;
    QList<Command> elements;
    const QPointer<Workspace> kept(workspace);
    const QVector<Screen*> screens = workspace->session()->project()->screens();
    for (const Screen* screen : screens) {
        const QString& id = screen->getIdName();
        Command command;
        command.id = QLatin1String("screen:") + id;
        command.text = coreText("Go to Screen %1").arg(id);
        command.path = coreText("Project");
        command.keywords = coreText("page show open") + QLatin1Char(' ') + id;
        command.icon = ThemedIcon::named(QStringLiteral("screen"));
        command.handicap = ScreenHandicap;
        command.run = [kept, id] {
            if (kept)
                kept->goTo(id);
        };
        commands.append(command);
        if (screen->isContentRead())
            addElements(screen, id, kept, &elements);
    }
    return commands + elements;
}

QList<Command> CommandSource::recentProjects(FileActions* file)
{
    QList<Command> commands;
    const QStringList folders = file->recentFiles()->folders();
    for (const QString& folder : folders) {
        Command command;
        command.id = QLatin1String("project:") + folder;
        command.text = coreText("Open %1").arg(QFileInfo(folder).fileName());
        command.path = QDir::toNativeSeparators(QFileInfo(folder).path());
        command.keywords = coreText("recent project load");
        command.icon = ThemedIcon::named(QStringLiteral("project"));
        command.handicap = ProjectHandicap;
        command.enabled = QFileInfo::exists(folder);
        command.run = [file, folder] { file->openPath(folder); };
        commands.append(command);
    }
    return commands;
}

} // namespace Korvex::Meridane::Designer
