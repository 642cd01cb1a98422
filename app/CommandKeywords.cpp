#include "app/CommandKeywords.h"

#include "app/CoreText.h"

#include <QHash>

namespace Korvex::Meridane::Designer {

QString CommandKeywords::of(const QString& objectName)
{
    static const QHash<QString, QString> words{
        {QStringLiteral("file.new"), coreText("create start project")},
        {QStringLiteral("file.open"), coreText("load project folder")},
        {QStringLiteral("file.save"), coreText("store write disk")},
        {QStringLiteral("file.saveAs"), coreText("store copy elsewhere")},
        {QStringLiteral("file.close"), coreText("leave project")},
        {QStringLiteral("file.quit"), coreText("exit end leave")},
        {QStringLiteral("file.startPage"), coreText("welcome home examples recent")},
        {QStringLiteral("project.importImages"), coreText("add picture photo icon bitmap resource")},
        {QStringLiteral("project.exportQml"), coreText("generate code build output display")},
        {QStringLiteral("project.preview"), coreText("run play start simulate display")},
        {QStringLiteral("project.check"), coreText("problems errors warnings validate lint")},
        {QStringLiteral("edit.undo"), coreText("back revert")},
        {QStringLiteral("edit.redo"), coreText("again repeat forward")},
        {QStringLiteral("edit.cut"), coreText("clipboard move")},
        {QStringLiteral("edit.copy"), coreText("clipboard")},
        {QStringLiteral("edit.paste"), coreText("clipboard insert")},
        {QStringLiteral("edit.duplicate"), coreText("clone double copy")},
        {QStringLiteral("edit.delete"), coreText("remove erase clear")},
        {QStringLiteral("edit.selectAll"), coreText("mark everything")},
        {QStringLiteral("edit.rename"), coreText("name id identifier")},
        {QStringLiteral("screen.add"), coreText("page create")},
        {QStringLiteral("arrange.bringToFront"), coreText("order top above z-order stack layer")},
        {QStringLiteral("arrange.bringForward"), coreText("order up above z-order stack layer")},
        {QStringLiteral("arrange.sendBackward"), coreText("order down below z-order stack layer")},
        {QStringLiteral("arrange.sendToBack"), coreText("order bottom below z-order stack layer background")},
        {QStringLiteral("view.zoomIn"), coreText("larger bigger magnify scale")},
        {QStringLiteral("view.zoomOut"), coreText("smaller scale")},
        {QStringLiteral("view.zoomActual"), coreText("zoom 100% original 1:1 scale")},
        {QStringLiteral("view.zoomFit"), coreText("zoom whole all scale window")},
        {QStringLiteral("view.colorsOfDesktop"), coreText("theme colors system")},
        {QStringLiteral("view.lightColors"), coreText("theme colors bright day")},
        {QStringLiteral("view.darkColors"), coreText("theme colors night")},
        {QStringLiteral("view.resetLayout"), coreText("panels windows docks default restore")},
        {QStringLiteral("view.editProperties"), coreText("values inspector sheet attributes")},
        {QStringLiteral("view.nextPanel"), coreText("focus window dock")},
        {QStringLiteral("view.previousPanel"), coreText("focus window dock")},
        {QStringLiteral("view.nextScreen"), coreText("page tab")},
        {QStringLiteral("view.previousScreen"), coreText("page tab")},
        {QStringLiteral("help.showShortcuts"), coreText("keys hotkeys bindings customize")},
        {QStringLiteral("help.showGuide"), coreText("manual documentation")},
        {QStringLiteral("help.showAbout"), coreText("version")},
    };
    return words.value(objectName);
}

} // namespace Korvex::Meridane::Designer
