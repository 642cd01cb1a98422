#include "gradients/PointQml.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include <cmath>

namespace Korvex::Meridane::Designer {

QPointF wholePoint(const QPointF& point)
{
    return {std::round(point.x()), std::round(point.y())};
}

QString wholePointQml(const DesignerProperty* property, int indent, const char* prefix)
{
    bool ok = false;
    const QPointF point = wholePoint(ValueConversion::toPoint(property->valueString(), &ok));
    if (!ok)
        return {};
    return QStringLiteral("%1%2X: %3\n%1%2Y: %4")
        .arg(DesignerObject::getTabs(indent), QString::fromLatin1(prefix), ValueConversion::toQmlString(point.x(), 0),
             ValueConversion::toQmlString(point.y(), 0));
}

} // namespace Korvex::Meridane::Designer
