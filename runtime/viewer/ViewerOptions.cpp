#include "runtime/viewer/ViewerOptions.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFileInfo>

namespace Korvex::Meridane::Display {
ViewerOptions parseViewerOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral("Runs an exported display."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")}, QStringLiteral("Show this help."));
    const QCommandLineOption screen(QStringLiteral("screen"),
                                    QStringLiteral("Show the screen ID instead of the first."), QStringLiteral("ID"));
    const QCommandLineOption grab(QStringLiteral("grab"),
                                  QStringLiteral("Save one frame of the running display as FILE and exit."),
                                  QStringLiteral("FILE.png"));
    const QCommandLineOption import(QStringLiteral("import"), QStringLiteral("Look for QML modules in PATH, too."),
                                    QStringLiteral("PATH"));
    const QCommandLineOption title(QStringLiteral("title"),
                                   QStringLiteral("Name the window TEXT instead of after the folder."),
                                   QStringLiteral("TEXT"));
    QCommandLineOption live(QStringLiteral("live"));
    // Of use to the designer alone, which runs the display so beside its canvas.
    live.setFlags(QCommandLineOption::HiddenFromHelp);
    parser.addOptions({help, screen, grab, import, title, live});
    parser.addPositionalArgument(QStringLiteral("FOLDER"), QStringLiteral("The exported folder: it holds Main.qml."));

    ViewerOptions options;
    const bool parsed = parser.parse(arguments);
    if (parser.isSet(help)) {
        options.result = ViewerOptions::Result::Help;
        // Without an application object the parser does not know the program's name.
        const QString program = QFileInfo(arguments.value(0)).fileName();
        options.message = parser.helpText().replace(QLatin1String("<executable_name>"), program);
        return options;
    }
    if (!parsed) {
        options.message = parser.errorText();
        return options;
    }
    const QStringList folders = parser.positionalArguments();
    options.importPaths = parser.values(import);
    if (parser.isSet(live)) {
        if (!folders.isEmpty() || parser.isSet(grab)) {
            options.message = QStringLiteral("With --live there is neither a folder nor --grab.");
            return options;
        }
        options.result = ViewerOptions::Result::Run;
        options.live = true;
        return options;
    }
    if (folders.size() != 1) {
        options.message =
            folders.isEmpty()
                ? QStringLiteral("The folder of the export is missing.")
                : QStringLiteral("There is more than one folder: %1").arg(folders.join(QLatin1String(", ")));
        return options;
    }
    if (parser.isSet(grab) && parser.value(grab).isEmpty()) {
        options.message = QStringLiteral("The file of --grab is missing.");
        return options;
    }
    options.result = ViewerOptions::Result::Run;
    options.folder = folders.constFirst();
    options.screen = parser.value(screen);
    options.grabFile = parser.value(grab);
    options.title = parser.value(title);
    return options;
}
} // namespace Korvex::Meridane::Display
