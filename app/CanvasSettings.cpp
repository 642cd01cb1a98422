#include "app/CanvasSettings.h"

#include "app/AppSettings.h"

#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double DefaultSpacing = 10; // pixels

QString key(const char* name)
{
    return QStringLiteral("canvas/%1").arg(QLatin1String(name));
}

/// A distance from the settings, which anybody may have edited.
double spacing(const AppSettings& settings, const char* name)
{
    const double value = settings.value(key(name), DefaultSpacing).toDouble();
    return std::isfinite(value) && value >= 1 && value <= 1000 ? value : DefaultSpacing;
}

} // namespace

CanvasAids CanvasSettings::load()
{
    const AppSettings settings;
    CanvasAids aids;
    aids.snapping = settings.value(key("snapping"), true).toBool();
    aids.grid = settings.value(key("grid"), false).toBool();
    aids.gridSpacing = {spacing(settings, "gridWidth"), spacing(settings, "gridHeight")};
    aids.guidesLocked = settings.value(key("guidesLocked"), false).toBool();
    aids.rulers = settings.value(key("rulers"), true).toBool();
    aids.readout = true;
    return aids;
}

void CanvasSettings::store(const CanvasAids& aids)
{
    AppSettings settings;
    settings.setValue(key("snapping"), aids.snapping);
    settings.setValue(key("grid"), aids.grid);
    settings.setValue(key("gridWidth"), aids.gridSpacing.width());
    settings.setValue(key("gridHeight"), aids.gridSpacing.height());
    settings.setValue(key("guidesLocked"), aids.guidesLocked);
    settings.setValue(key("rulers"), aids.rulers);
}

} // namespace Korvex::Meridane::Designer
