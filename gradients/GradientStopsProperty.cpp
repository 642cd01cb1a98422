#include "gradients/GradientStopsProperty.h"

#include "gradients/WholePercent.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/ElementText.h"
#include "host/core/values/ValueConversion.h"

#include <QSet>

#include <algorithm>

namespace Korvex::Meridane::Designer {

GradientStopsProperty::GradientStopsProperty(DesignerObject* parent, const QString& id, const QString& name,
                                             const QGradientStops& stops)
    : DesignerProperty(parent, id, name)
    , m_stops(stops.size() < FewestStops ? defaultStops() : stops)
{
    setFlags(Stored | Exported | Shown | Editable);
    setEditor(QStringLiteral("GradientStopsEditor"));
}

GradientStopsProperty::~GradientStopsProperty() = default;

QString GradientStopsProperty::className() const
{
    return QStringLiteral("GradientStopsProperty");
}

QStringList GradientStopsProperty::classNames() const
{
    return DesignerProperty::classNames() << QStringLiteral("GradientStopsProperty");
}

bool GradientStopsProperty::convertToValue(const QString& valueString)
{
    bool ok = false;
    const QGradientStops stops = ValueConversion::toGradientStops(valueString, &ok);
    if (valueString.isEmpty() || !ok)
        return false;
    m_stops = stops;
    setConverted();
    return true;
}

QString GradientStopsProperty::convertToValueString() const
{
    return ValueConversion::toString(m_stops);
}

QString GradientStopsProperty::convertToQml(int indent) const
{
    const QString tabs = DesignerObject::getTabs(indent);
    QStringList items;
    for (const QGradientStop& stop : m_stops) {
        items.append(QStringLiteral("[ %1, \"%2\" ]")
                         .arg(ValueConversion::toQmlString(stop.first, 2), ValueConversion::toString(stop.second)));
    }
    return QStringLiteral("%1%2: [\n%1\t%3\n%1]").arg(tabs, id(), items.join(QStringLiteral(",\n%1\t").arg(tabs)));
}

bool GradientStopsProperty::valueIsEqual(const QString& valueString) const
{
    bool ok = false;
    const QGradientStops stops = ValueConversion::toGradientStops(valueString, &ok);
    // Positions are compared exactly; the comparison of pairs would do so, too, but not that of every Qt.
    return ok
           && std::equal(stops.cbegin(), stops.cend(), m_stops.cbegin(), m_stops.cend(),
                         [](const QGradientStop& a, const QGradientStop& b) {
                             return !(a.first < b.first) && !(b.first < a.first) && a.second == b.second;
                         });
}

bool GradientStopsProperty::validateValue(QString& message) const
{
    message.clear();
    if (m_stops.size() < FewestStops) {
        message = elementText("The gradient stops must have at least 2 stops.");
        return false;
    }
    if (m_stops.size() > MostStops) {
        message = elementText("The gradient stops cannot have more than %1 stops.").arg(MostStops);
        return false;
    }
    QSet<int> percents;
    QList<QColor> colors;
    bool isVisible = false;
    for (const QGradientStop& stop : m_stops) {
        const int percent = wholePercent(stop.first);
        if (percents.contains(percent)) {
            message = elementText("Duplicate position values found.");
            return false;
        }
        percents.insert(percent);
        if (!colors.contains(stop.second))
            colors.append(stop.second);
        isVisible = isVisible || stop.second.alpha() > 0;
    }
    if (!isVisible)
        message = elementText("Gradient colors cannot be all transparent.");
    else if (colors.size() < 2)
        message = elementText("Gradient colors cannot be all the same.");
    return message.isEmpty();
}

QGradientStops GradientStopsProperty::defaultStops()
{
    return {{0.33, QColor(248, 151, 29, 255)}, {0.67, QColor(255, 255, 255, 255)}};
}

} // namespace Korvex::Meridane::Designer
