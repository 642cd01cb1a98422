#include "gradients/GradientElement.h"

#include "gradients/GradientStopsProperty.h"
#include "gradients/OutlineProperty.h"

#include "host/core/objects/ElementProperties.h"
#include "host/core/objects/ElementText.h"
#include "host/core/objects/OutlineReaction.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

namespace {

QString gradientStopsAdvice(const DesignerProperty* property)
{
    const QGradientStops stops = ValueConversion::toGradientStops(property->valueString());
    for (const QGradientStop& stop : stops) {
        if (!(stop.first >= 0 && stop.first <= 1)) {
            return elementText("A stop at %1 cannot be drawn: positions are from 0 to 1. Correct or remove it.")
                .arg(ValueConversion::toString(stop.first));
        }
    }
    return {};
}

} // namespace

GradientElement::GradientElement(QObject* parent)
    : VisualElement(parent)
{}

GradientElement::~GradientElement() = default;

QString GradientElement::className() const
{
    return QStringLiteral("GradientElement");
}

QStringList GradientElement::classNames() const
{
    return VisualElement::classNames() << QStringLiteral("GradientElement");
}

QString GradientElement::displayName() const
{
    return elementText("Gradient Element");
}

bool GradientElement::initializeProperties()
{
    if (!VisualElement::initializeProperties()
        || !declareIdentity(QStringLiteral("GradientElement"), QStringLiteral("gradientElement")))
        return false;
    m_points = declareOutline(this, 10);
    m_boundingSize = ElementProperties::declareBoundingSize(this, 11, DefaultOutlineSize);
    m_keepRatio = ElementProperties::declareKeepRatio(this, 12);
    m_gradientStops = PropertyDeclaration<GradientStopsProperty>(this, QLatin1String("gradientStops"),
                                                                 elementText("Gradient Stops"), QGradientStops())
                          .rank(13)
                          .allowInvalid()
                          .advisor(gradientStopsAdvice);
    return true;
}

void GradientElement::afterPropertyChanged(const DesignerProperty* property, const QString& oldValue)
{
    if (!property)
        return;
    VisualElement::afterPropertyChanged(property, oldValue);
    if (property->id() == QLatin1String("boundingSize"))
        followBoundingSizeWithPoints(this, property, oldValue);
}

QList<RuntimeProperty> GradientElement::runtimeProperties() const
{
    return VisualElement::runtimeProperties()
           << RuntimeProperty(QStringLiteral("points"), elementText("Points"), EnumHelper::List, true)
           << RuntimeProperty(QStringLiteral("gradientStops"), elementText("Gradient Stops"), EnumHelper::List, true);
}

QRectF GradientElement::getBoundingRect() const
{
    return outlineBounds(*m_points);
}

} // namespace Korvex::Meridane::Designer
