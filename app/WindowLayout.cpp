#include "app/WindowLayout.h"

#include "app/AppSettings.h"

#include <QMainWindow>

namespace Korvex::Meridane::Designer {

namespace {

const QString GeometryKey = QStringLiteral("window/geometry");
const QString StateKey = QStringLiteral("window/state");
constexpr int StateVersion = 3; // of the set of panels and tool bars

} // namespace

bool WindowLayout::restore(QMainWindow* window)
{
    const AppSettings settings;
    window->restoreGeometry(settings.value(GeometryKey).toByteArray());
    return window->restoreState(settings.value(StateKey).toByteArray(), StateVersion);
}

void WindowLayout::store(const QMainWindow* window)
{
    AppSettings settings;
    settings.setValue(GeometryKey, window->saveGeometry());
    settings.setValue(StateKey, window->saveState(StateVersion));
}

} // namespace Korvex::Meridane::Designer
