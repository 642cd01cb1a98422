#include "gradients/LinearGradientElement.h"

#include "gradients/PointQml.h"

#include "host/core/objects/ElementText.h"
#include "host/core/properties/PointProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

namespace {

bool isStart(const DesignerProperty* property)
{
    return property->id() == QLatin1String("start");
}

QString pointQml(const DesignerProperty* property, int indent)
{
    return wholePointQml(property, indent, isStart(property) ? "start" : "stop");
}

bool isPercent(double value)
{
    return value >= 0 && value <= 100;
}

/// The point lies within the outline's bounding rectangle, and is another one than the other point; both as the whole
/// percents that are exported. A text that is no point is not judged, nor compared with.
bool pointValidator(const DesignerProperty* property, QString& message)
{
    message.clear();
    const auto other = property->parentObject()->getProperty(isStart(property) ? QStringLiteral("finalStop")
                                                                               : QStringLiteral("start"));
    bool ok = false;
    bool otherOk = false;
    const QPointF point = wholePoint(ValueConversion::toPoint(property->valueString(), &ok));
    const QPointF otherPoint = wholePoint(ValueConversion::toPoint(other->valueString(), &otherOk));
    if (!ok)
        return true;
    if (!isPercent(point.x()) || !isPercent(point.y()))
        message = elementText("The X and Y must be between 0% and 100%.");
    else if (otherOk && point == otherPoint)
        message = elementText("The start position must be different from the final stop position.");
    return message.isEmpty();
}

} // namespace

LinearGradientElement::LinearGradientElement(QObject* parent)
    : GradientElement(parent)
{}

LinearGradientElement::~LinearGradientElement() = default;

QString LinearGradientElement::className() const
{
    return QStringLiteral("LinearGradientElement");
}

QStringList LinearGradientElement::classNames() const
{
    return GradientElement::classNames() << QStringLiteral("LinearGradientElement");
}

QString LinearGradientElement::displayName() const
{
    return elementText("Linear Gradient Element");
}

GraphicsItem* LinearGradientElement::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsLinearGradient"));
}

bool LinearGradientElement::initializeProperties()
{
    if (!GradientElement::initializeProperties()
        || !declareIdentity(QStringLiteral("LinearGradientElement"), QStringLiteral("linearGradientElement")))
        return false;
    // Shared by all linear gradients.
    static const QMap<QString, QVariant> percents{{QStringLiteral("minimumValue"), QPointF(0, 0)},
                                                  {QStringLiteral("maximumValue"), QPointF(100, 100)},
                                                  {QStringLiteral("suffix"), QStringLiteral("%")},
                                                  {QStringLiteral("decimals"), 0}};
    m_start = PropertyDeclaration<PointProperty>(this, QLatin1String("start"), elementText("Start"), QPointF(0, 0))
                  .rank(14)
                  .flags(Stored | Exported | Shown | Editable)
                  .allowInvalid()
                  .parameters(percents)
                  .validator(pointValidator)
                  .qmlCreator(pointQml);
    m_finalStop = PropertyDeclaration<PointProperty>(this, QLatin1String("finalStop"), elementText("Final Stop"),
                                                     QPointF(100, 100))
                      .rank(15)
                      .flags(Stored | Exported | Shown | Editable)
                      .allowInvalid()
                      .parameters(percents)
                      .validator(pointValidator)
                      .qmlCreator(pointQml);
    return true;
}

QList<RuntimeProperty> LinearGradientElement::runtimeProperties() const
{
    const auto property = [](const char* id, const char* label, EnumHelper::VariableType type = EnumHelper::Real) {
        return RuntimeProperty(QString::fromLatin1(id), elementText(label), type, true);
    };
    return GradientElement::runtimeProperties()
           << property("startX", "Start X") << property("startY", "Start Y") << property("stopX", "Final Stop X")
           << property("stopY", "Final Stop Y");
}

} // namespace Korvex::Meridane::Designer
