#include "host/core/objects/ElementProperties.h"

#include "host/core/objects/ElementText.h"
#include "host/core/properties/BorderProperty.h"
#include "host/core/properties/ColorProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RealProperty.h"
#include "host/core/properties/SizeProperty.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer::ElementProperties {

namespace {

/// Shared by all elements.
const QMap<QString, QVariant>& atLeastOnePixel()
{
    static const QMap<QString, QVariant> parameters{{QStringLiteral("minimumValue"), QSizeF(1, 1)}};
    return parameters;
}

} // namespace

QSharedPointer<DesignerProperty> declareSize(DesignerObject* object, int rank, const QSizeF& size)
{
    return PropertyDeclaration<SizeProperty>(object, QLatin1String("size"), elementText("Size"), size)
        .rank(rank)
        .flags(Stored | Exported)
        .allowInvalid()
        .editor(QLatin1String("SizeEditor"), atLeastOnePixel());
}

QSharedPointer<DesignerProperty> declareBoundingSize(DesignerObject* object, int rank, const QSizeF& size)
{
    return PropertyDeclaration<SizeProperty>(object, QLatin1String("boundingSize"), elementText("Size"), size)
        .rank(rank)
        .flags(Shown | Editable)
        .allowInvalid()
        .editor(QLatin1String("SizeEditor"), atLeastOnePixel());
}

QSharedPointer<DesignerProperty> declareKeepRatio(DesignerObject* object, int rank)
{
    static const QMap<QString, QVariant> parameters{
        {QStringLiteral("tooltip"), elementText("Maintain aspect ratio when resizing by mouse or through the editor")}};
    return PropertyDeclaration<RealProperty>(object, QLatin1String("keepRatio"), elementText("Maintain Aspect Ratio"),
                                             0.0)
        .rank(rank)
        .flags(Shown | Editable)
        .allowInvalid()
        .editor(QLatin1String("KeepRatioEditor"), parameters);
}

QSharedPointer<DesignerProperty> declareFillColor(DesignerObject* object, int rank)
{
    return PropertyDeclaration<ColorProperty>(object, QLatin1String("color"), elementText("Color"),
                                              QColor(248, 151, 29, 255))
        .rank(rank)
        .allowInvalid();
}

QSharedPointer<DesignerProperty> declareBorder(DesignerObject* object, int rank)
{
    return PropertyDeclaration<BorderProperty>(object, QLatin1String("border"), elementText("Border"),
                                               BorderInfo(0, Qt::black))
        .rank(rank)
        .allowInvalid();
}

QRectF contentRect(const DesignerProperty& size)
{
    bool ok = false;
    const QSizeF content = ValueConversion::toSize(size.valueString(), &ok);
    return ok ? QRectF(QPointF(0, 0), content) : QRectF();
}

} // namespace Korvex::Meridane::Designer::ElementProperties
