#include "cli/ApplicationObject.h"

#include <QApplication>

namespace Korvex::Meridane::Designer {

std::unique_ptr<QCoreApplication> makeApplication(ApplicationKind kind, char* program)
{
    // Qt keeps references to both for as long as the application lives.
    static char platformOption[] = "-platform";
    static char offscreen[] = "offscreen";
    static char* arguments[] = {program, platformOption, offscreen, nullptr};
    static int count = 0;
    count = kind != ApplicationKind::Core && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ? 3 : 1;
    if (count == 1)
        arguments[1] = nullptr;

    std::unique_ptr<QCoreApplication> application;
    switch (kind) {
    case ApplicationKind::Core:
        application = std::make_unique<QCoreApplication>(count, arguments);
        break;
    case ApplicationKind::Gui:
        application = std::make_unique<QGuiApplication>(count, arguments);
        break;
    case ApplicationKind::Widgets:
        application = std::make_unique<QApplication>(count, arguments);
        break;
    }
    QCoreApplication::setApplicationName(QStringLiteral("meridane"));
    QCoreApplication::setApplicationVersion(QStringLiteral(MERIDANE_VERSION));
    return application;
}

} // namespace Korvex::Meridane::Designer
