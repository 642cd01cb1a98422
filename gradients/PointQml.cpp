#include "gradients/PointQml.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

QString wholePointQml(const DesignerProperty* property, int indent, const char* prefix)
{
    bool ok = false;
    const QPoint point = ValueConversion::toPoint(property->valueString(), &ok).toPoint();
    if (!ok)
        return {};
    return QStringLiteral("%1%2X: %3\n%1%2Y: %4")
        .arg(DesignerObject::getTabs(indent), QString::fromLatin1(prefix))
        .arg(point.x())
        .arg(point.y());
}

} // namespace Korvex::Meridane::Designer
