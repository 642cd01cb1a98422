#include "runtime/viewer/DisplayViewer.h"
#include "runtime/viewer/LiveViewer.h"
#include "runtime/viewer/ViewerOptions.h"

#include <QtGui/QGuiApplication>
#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRendererInterface>

#include <cstdio>
#include <cstdlib>

using namespace Korvex::Meridane::Display;

namespace {
/** Settles what has to be settled before the application object exists. */
void prepareEnvironment(bool grabs, bool live)
{
    if (live) {
        // Whatever the desktop is: nothing is ever put on it.
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const bool hasDisplay = qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && (grabs || !hasDisplay)) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // Exports change between two runs and previews are temporary: compiled copies would only pile up.
    qputenv("QML_DISABLE_DISK_CACHE", "1");
    if (grabs || live) {
        qputenv("QT_QUICK_BACKEND", "software");
        qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
        // A pixel of the picture is a pixel of the display, whatever the screen of this machine.
        qputenv("QT_ENABLE_HIGHDPI_SCALING", "0");
        qunsetenv("QT_SCALE_FACTOR");
        qunsetenv("QT_SCREEN_SCALE_FACTORS");
    }
}
} // namespace

int main(int argc, char* argv[])
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments.append(QString::fromLocal8Bit(argv[i]));
    }
    const ViewerOptions options = parseViewerOptions(arguments);
    if (options.result == ViewerOptions::Result::Wrong) {
        std::fprintf(stderr, "meridane-viewer: %s\n", qPrintable(options.message));
        return 2;
    }
    const bool grabs = !options.grabFile.isEmpty();
    prepareEnvironment(grabs || options.result == ViewerOptions::Result::Help, options.live);
    QGuiApplication application(argc, argv);
    if (options.result == ViewerOptions::Result::Help) {
        std::fputs(qPrintable(options.message), stdout);
        return 0;
    }
    if (options.live) {
        // Without a window there is no surface that any other way of rendering could work on. This one needs no
        // initialisation either.
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        LiveViewer viewer(options);
        viewer.start();
        const int result = QGuiApplication::exec();
        // The thread that reads may still hold the viewer, so that nothing is taken apart.
        std::_Exit(result);
    }
    DisplayViewer viewer(options);
    if (!viewer.load()) {
        return 1;
    }
    if (grabs) {
        // A display that runs with warnings is not the one that was designed, but its picture helps to see why.
        const bool saved = viewer.grab(options.grabFile);
        return saved && !viewer.hasFailed() ? 0 : 1;
    }
    viewer.show();
    const int result = QGuiApplication::exec();
    return result == 0 && viewer.hasFailed() ? 1 : result;
}
