#include "gradients/OutlineProperty.h"

#include "host/core/objects/ElementText.h"
#include "host/core/properties/PointListProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

QSharedPointer<DesignerProperty> declareOutline(DesignerObject* object, int rank)
{
    return PropertyDeclaration<PointListProperty>(object, QLatin1String("points"), elementText("Size"),
                                                  QPolygonF(QRectF(QPointF(0, 0), DefaultOutlineSize)))
        .rank(rank)
        .flags(Stored | Exported)
        .allowInvalid();
}

QRectF outlineBounds(const DesignerProperty& points)
{
    return ValueConversion::toPolygon(points.valueString()).boundingRect();
}

} // namespace Korvex::Meridane::Designer
