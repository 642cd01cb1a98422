#include "gradients/RadialGradientElement.h"

#include "gradients/PointQml.h"

#include "host/core/objects/ElementText.h"
#include "host/core/properties/EnumProperty.h"
#include "host/core/properties/PointProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RealProperty.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

namespace {

QString pointQml(const DesignerProperty* property, int indent)
{
    return wholePointQml(property, indent, property->id() == QLatin1String("center") ? "center" : "focal");
}

QString spreadQml(const DesignerProperty* property, int indent)
{
    const QString value = property->valueString();
    int number = EnumHelper::PadSpread;
    if (value == QLatin1String("ReflectSpread"))
        number = EnumHelper::ReflectSpread;
    else if (value == QLatin1String("RepeatSpread"))
        number = EnumHelper::RepeatSpread;
    return QStringLiteral("%1%2: %3").arg(DesignerObject::getTabs(indent), property->id()).arg(number);
}

} // namespace

RadialGradientElement::RadialGradientElement(QObject* parent)
    : GradientElement(parent)
{}

RadialGradientElement::~RadialGradientElement() = default;

QString RadialGradientElement::className() const
{
    return QStringLiteral("RadialGradientElement");
}

QStringList RadialGradientElement::classNames() const
{
    return GradientElement::classNames() << QStringLiteral("RadialGradientElement");
}

QString RadialGradientElement::displayName() const
{
    return elementText("Radial Gradient Element");
}

GraphicsItem* RadialGradientElement::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsRadialGradient"));
}

bool RadialGradientElement::initializeProperties()
{
    if (!GradientElement::initializeProperties()
        || !declareIdentity(QStringLiteral("RadialGradientElement"), QStringLiteral("radialGradientElement")))
        return false;
    // Shared by all radial gradients.
    static const QMap<QString, QVariant> places{{QStringLiteral("minimumValue"), QPointF(-1000, -1000)},
                                                {QStringLiteral("maximumValue"), QPointF(1000, 1000)},
                                                {QStringLiteral("decimals"), 2}};
    static const QMap<QString, QVariant> radii{{QStringLiteral("minimum"), 1},
                                               {QStringLiteral("maximum"), 1000},
                                               {QStringLiteral("decimals"), 2},
                                               {QStringLiteral("suffix"), elementText(" px")}};
    static const QMap<QString, QVariant> focalPlaces = [] {
        QMap<QString, QVariant> parameters = places;
        parameters.insert(QStringLiteral("tooltip"),
                          elementText("If the given focal point is outside the circle defined by the center point\n"
                                      "and radius, it will be re-adjusted to lie at a point on the circle where it\n"
                                      "intersects with the line from the center to the focal point"));
        return parameters;
    }();
    m_center =
        PropertyDeclaration<PointProperty>(this, QLatin1String("center"), elementText("Center"), QPointF(50, 37.5))
            .rank(14)
            .flags(Stored | Exported | Shown | Editable)
            .allowInvalid()
            .parameters(places)
            .qmlCreator(pointQml);
    m_radius = PropertyDeclaration<RealProperty>(this, QLatin1String("radius"), elementText("Radius"), 50.0)
                   .rank(15)
                   .flags(Stored | Exported | Shown | Editable)
                   .allowInvalid()
                   .parameters(radii);
    m_focalPoint = PropertyDeclaration<PointProperty>(this, QLatin1String("focalPoint"), elementText("Focal Point"),
                                                      QPointF(50, 37.5))
                       .rank(16)
                       .flags(Stored | Exported | Shown | Editable)
                       .allowInvalid()
                       .parameters(focalPlaces)
                       .qmlCreator(pointQml);
    m_spread =
        PropertyDeclaration<EnumProperty>(
            this, QLatin1String("spread"), elementText("Spread"),
            EnumInfo(EnumHelper::createEnum(QStringLiteral("GradientSpread")), EnumHelper::PadSpread))
            .rank(17)
            .flags(Stored | Exported | Shown | Editable)
            .allowInvalid()
            .editor(QLatin1String("EnumEditor"), {{QStringLiteral("enumName"), QStringLiteral("GradientSpread")}})
            .qmlCreator(spreadQml);
    return true;
}

QList<RuntimeProperty> RadialGradientElement::runtimeProperties() const
{
    const auto property = [](const char* id, const char* label, EnumHelper::VariableType type = EnumHelper::Real) {
        return RuntimeProperty(QString::fromLatin1(id), elementText(label), type, true);
    };
    return GradientElement::runtimeProperties()
           << property("centerX", "Center X") << property("centerY", "Center Y") << property("radius", "Radius")
           << property("focalX", "Focal Point X") << property("focalY", "Focal Point Y")
           << property("spread", "Spread", EnumHelper::Integer);
}

} // namespace Korvex::Meridane::Designer
