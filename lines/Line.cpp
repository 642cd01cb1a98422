#include "lines/Line.h"

#include "lines/GraphicsLine.h"
#include "lines/LineShape.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/objects/ElementProperties.h"
#include "host/core/objects/ElementText.h"
#include "host/core/properties/IntegerProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RealProperty.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"
#include "host/common/LineGeometry.h"
#include "host/common/RealComparison.h"
#include "host/common/TransformOrigin.h"

#include <QDebug>

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

namespace {

/// The thickness goes by the name of "lineWidth" in QML.
QString lineWidthQml(const DesignerProperty* property, int indent)
{
    if (!property || property->valueString().isEmpty() || !property->isConverted())
        return {};
    return QStringLiteral("%1lineWidth: %2").arg(DesignerObject::getTabs(indent), property->valueString());
}

} // namespace

Line::Line(QObject* parent)
    : VisualElement(parent)
{}

Line::~Line() = default;

QString Line::className() const
{
    return QStringLiteral("Line");
}

QStringList Line::classNames() const
{
    return VisualElement::classNames() << QStringLiteral("Line");
}

QString Line::displayName() const
{
    return elementText("Line");
}

GraphicsItem* Line::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsLine"));
}

bool Line::initializeProperties()
{
    if (!VisualElement::initializeProperties() || !declareIdentity(QStringLiteral("Line"), QStringLiteral("line")))
        return false;
    // Shared by all lines.
    static const QMap<QString, QVariant> lengthRange{{QStringLiteral("minimum"), int(LineShape::Shortest)},
                                                     {QStringLiteral("maximum"), int(LineShape::Longest)},
                                                     {QStringLiteral("decimals"), 2},
                                                     {QStringLiteral("suffix"), elementText(" px")}};
    static const QMap<QString, QVariant> angleRange{{QStringLiteral("minimum"), 0},
                                                    {QStringLiteral("maximum"), LineShape::LastAngle},
                                                    {QStringLiteral("showSlider"), true},
                                                    {QStringLiteral("suffix"), elementText("°")}};
    static const QMap<QString, QVariant> thicknessRange{{QStringLiteral("minimum"), int(LineShape::Thinnest)},
                                                        {QStringLiteral("maximum"), int(LineShape::Thickest)},
                                                        {QStringLiteral("suffix"), elementText(" px")}};
    m_boundingSize = ElementProperties::declareBoundingSize(this, 10, QSizeF(100, 2));
    m_keepRatio = ElementProperties::declareKeepRatio(this, 11);
    m_length = PropertyDeclaration<RealProperty>(this, QLatin1String("length"), elementText("Length"), 100.0)
                   .rank(12)
                   .flags(Stored | Exported | Shown | Editable)
                   .allowInvalid()
                   .editor(QLatin1String("FocusRealEditor"), lengthRange);
    m_angle = PropertyDeclaration<RealProperty>(this, QLatin1String("angle"), elementText("Angle (Clockwise)"), 0.0)
                  .rank(13)
                  .flags(Stored | Exported | Shown | Editable)
                  .allowInvalid()
                  .editor(QLatin1String("FocusRealEditor"), angleRange);
    m_width = PropertyDeclaration<IntegerProperty>(this, QLatin1String("width"), elementText("Thickness"), 2)
                  .rank(14)
                  .flags(Stored | Exported | Shown | Editable)
                  .allowInvalid()
                  .editor(QLatin1String("IntegerEditor"), thicknessRange)
                  .qmlCreator(lineWidthQml);
    m_color = ElementProperties::declareFillColor(this, 15);
    return true;
}

void Line::afterPropertyChanged(const DesignerProperty* property, const QString& oldValue)
{
    if (!property)
        return;
    VisualElement::afterPropertyChanged(property, oldValue);
    if (property->id() != QLatin1String("boundingSize"))
        return;
    const auto* item = dynamic_cast<const GraphicsLine*>(graphicsItem());
    if (!item || item->isChangingSize())
        return;
    bool beforeOk = false;
    bool wantedOk = false;
    const QSizeF before = ValueConversion::toSize(oldValue, &beforeOk);
    const QSizeF wanted = ValueConversion::toSize(property->valueString(), &wantedOk);
    if (beforeOk && wantedOk)
        takeBoundingSize(before, wanted, *item);
}

void Line::takeBoundingSize(const QSizeF& before, const QSizeF& wanted, const GraphicsLine& item)
{
    bool positionOk = false;
    bool ratioOk = false;
    const QPointF place = ValueConversion::toPoint(position()->valueString(), &positionOk);
    const double ratio = ValueConversion::toReal(m_keepRatio->valueString(), &ratioOk);
    if (!positionOk || !ratioOk)
        return;

    const LineShape line = item.line();
    const double angle = item.angleOnParent();
    const bool widthChanged = before.width() != wanted.width();
    const bool heightChanged = before.height() != wanted.height();
    std::optional<LineShape> changed;
    if (!widthChanged && !heightChanged)
        qDebug("Should not reach here");
    else if (!(ratio > 0))
        changed = line.fitted(wanted);
    else
        changed = line.scaled(widthChanged ? wanted.width() / before.width() : wanted.height() / before.height());
    if (!changed)
        return;
    changed->thickness = Common::roundedToWhole(changed->thickness);

    if (changed->thickness != line.thickness)
        changePropertyValue(m_width, ValueConversion::toString(int(changed->thickness)));
    changePropertyValue(m_length, ValueConversion::toString(changed->length));
    if (changed->angle != line.angle)
        changePropertyValue(m_angle, ValueConversion::toString(changed->angle));
    // The top left corner of the outline stays where it is, also on an element that is turned about its start point.
    const QPointF shift = line.bounds().topLeft() - changed->bounds().topLeft();
    const QPointF moved = place + Common::rotationAbout(QPointF(0, 0), angle).map(shift);
    changePropertyValue(position(), ValueConversion::toString(withoutNoise(moved)));
}

QList<RuntimeProperty> Line::runtimeProperties() const
{
    return VisualElement::runtimeProperties()
           << RuntimeProperty(QStringLiteral("color"), elementText("Color"), EnumHelper::Color, true)
           << RuntimeProperty(QStringLiteral("angle"), elementText("Angle"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("length"), elementText("Length"), EnumHelper::Real, true)
           << RuntimeProperty(QStringLiteral("lineWidth"), elementText("Thickness"), EnumHelper::Integer, true);
}

QRectF Line::getBoundingRect() const
{
    bool lengthOk = false;
    bool angleOk = false;
    bool thicknessOk = false;
    const double length = ValueConversion::toReal(m_length->valueString(), &lengthOk);
    const double angle = ValueConversion::toReal(m_angle->valueString(), &angleOk);
    const int thickness = ValueConversion::toInt(m_width->valueString(), &thicknessOk);
    if (!lengthOk || !angleOk || !thicknessOk)
        return {};
    return Common::lineOutline(length, angle, thickness).boundingRect();
}

} // namespace Korvex::Meridane::Designer
