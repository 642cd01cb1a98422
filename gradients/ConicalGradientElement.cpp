#include "gradients/ConicalGradientElement.h"

#include "gradients/PointQml.h"

#include "host/core/objects/ElementText.h"
#include "host/core/properties/PointProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RealProperty.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

namespace {

QString centerQml(const DesignerProperty* property, int indent)
{
    return wholePointQml(property, indent, "center");
}

} // namespace

ConicalGradientElement::ConicalGradientElement(QObject* parent)
    : GradientElement(parent)
{}

ConicalGradientElement::~ConicalGradientElement() = default;

QString ConicalGradientElement::className() const
{
    return QStringLiteral("ConicalGradientElement");
}

QStringList ConicalGradientElement::classNames() const
{
    return GradientElement::classNames() << QStringLiteral("ConicalGradientElement");
}

QString ConicalGradientElement::displayName() const
{
    return elementText("Conical Gradient Element");
}

GraphicsItem* ConicalGradientElement::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsConicalGradient"));
}

bool ConicalGradientElement::initializeProperties()
{
    if (!GradientElement::initializeProperties()
        || !declareIdentity(QStringLiteral("ConicalGradientElement"), QStringLiteral("conicalGradientElement")))
        return false;
    // Shared by all conical gradients.
    static const QMap<QString, QVariant> percents{{QStringLiteral("minimumValue"), QPointF(-100, -100)},
                                                  {QStringLiteral("maximumValue"), QPointF(200, 200)},
                                                  {QStringLiteral("suffix"), QStringLiteral("%")},
                                                  {QStringLiteral("decimals"), 0}};
    static const QMap<QString, QVariant> angles{{QStringLiteral("minimum"), 0},
                                                {QStringLiteral("maximum"), 359.99},
                                                {QStringLiteral("suffix"), elementText("°")},
                                                {QStringLiteral("decimals"), 2},
                                                {QStringLiteral("showSlider"), true}};
    m_center = PropertyDeclaration<PointProperty>(this, QLatin1String("center"), elementText("Center"), QPointF(50, 50))
                   .rank(14)
                   .flags(Stored | Exported | Shown | Editable)
                   .allowInvalid()
                   .parameters(percents)
                   .qmlCreator(centerQml);
    m_startAngle = PropertyDeclaration<RealProperty>(this, QLatin1String("startAngle"),
                                                     elementText("Start Angle (Clockwise)"), 0.0)
                       .rank(15)
                       .flags(Stored | Exported | Shown | Editable)
                       .allowInvalid()
                       .parameters(angles);
    return true;
}

QList<RuntimeProperty> ConicalGradientElement::runtimeProperties() const
{
    const auto property = [](const char* id, const char* label, EnumHelper::VariableType type = EnumHelper::Real) {
        return RuntimeProperty(QString::fromLatin1(id), elementText(label), type, true);
    };
    return GradientElement::runtimeProperties() << property("startAngle", "Start Angle")
                                                << property("centerX", "Center X") << property("centerY", "Center Y");
}

} // namespace Korvex::Meridane::Designer
