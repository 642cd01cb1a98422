#include "lines/IrregularPolygon.h"

#include "lines/GraphicsIrregularPolygon.h"
#include "lines/PointListPlace.h"
#include "lines/RegularPolygonPoints.h"

#include "host/core/objects/BoundingSizeReaction.h"
#include "host/core/objects/ElementProperties.h"
#include "host/core/objects/ElementText.h"
#include "host/core/properties/PointListProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/EnumHelper.h"

#include <QDebug>

namespace Korvex::Meridane::Designer {

using Common::EnumHelper;

namespace {

/// The generator of new polygons ends here.
constexpr int MostGeneratedPoints = 10;
constexpr int FewestPoints = 3;
constexpr int MostEditablePoints = 20;

QString pointListAdvice(const DesignerProperty* property)
{
    const qsizetype count = ValueConversion::toPolygon(property->valueString()).size();
    if (count < FewestPoints) {
        return elementText("A polygon needs at least %1 points and this one has %2: nothing is drawn. Add points or "
                           "remove the element.")
            .arg(FewestPoints)
            .arg(count);
    }
    if (count > MostEditablePoints) {
        return elementText("The list has %1 points. It is drawn and kept, but only lists of up to %2 points can be "
                           "edited point by point: leave points out where they are not needed.")
            .arg(count)
            .arg(MostEditablePoints);
    }
    return {};
}

} // namespace

IrregularPolygon::IrregularPolygon(QObject* parent)
    : VisualElement(parent)
{}

IrregularPolygon::~IrregularPolygon() = default;

QString IrregularPolygon::className() const
{
    return QStringLiteral("IrregularPolygon");
}

QStringList IrregularPolygon::classNames() const
{
    return VisualElement::classNames() << QStringLiteral("IrregularPolygon");
}

QString IrregularPolygon::displayName() const
{
    return elementText("Polygon (Irregular)");
}

GraphicsItem* IrregularPolygon::createGraphicsItem()
{
    return createEditableItem(QStringLiteral("GraphicsIrregularPolygon"));
}

bool IrregularPolygon::initializeProperties()
{
    if (!VisualElement::initializeProperties()
        || !declareIdentity(QStringLiteral("IrregularPolygon"), QStringLiteral("irregularPolygon")))
        return false;
    m_boundingSize = ElementProperties::declareBoundingSize(this, 11, QSizeF(158, 135.97));
    m_keepRatio = ElementProperties::declareKeepRatio(this, 12);
    m_pointList = PropertyDeclaration<PointListProperty>(this, QLatin1String("pointList"), elementText("Point List"),
                                                         regularPolygonPoints(3, MostGeneratedPoints))
                      .rank(13)
                      .allowInvalid()
                      .editor(QLatin1String("PointListEditor"))
                      .advisor(pointListAdvice);
    m_color = ElementProperties::declareFillColor(this, 14);
    return true;
}

void IrregularPolygon::afterPropertyChanged(const DesignerProperty* property, const QString& oldValue)
{
    if (!property)
        return;
    VisualElement::afterPropertyChanged(property, oldValue);
    if (property->id() != QLatin1String("boundingSize"))
        return;
    const auto* item = dynamic_cast<const GraphicsIrregularPolygon*>(graphicsItem());
    if (!item || item->isChangingSize())
        return;
    bool beforeOk = false;
    bool wantedOk = false;
    bool ratioOk = false;
    bool pointsOk = false;
    const QSizeF before = ValueConversion::toSize(oldValue, &beforeOk);
    const QSizeF wanted = ValueConversion::toSize(property->valueString(), &wantedOk);
    const double ratio = ValueConversion::toReal(m_keepRatio->valueString(), &ratioOk);
    const QPolygonF points = ValueConversion::toPolygon(m_pointList->valueString(), &pointsOk);
    if (!beforeOk || !wantedOk || !pointsOk)
        return;
    const auto outer = reactToBoundingSize(before, wanted, item->minSize(), ratioOk ? ratio : 0);
    if (!outer) {
        qDebug("Should not reach here");
        return;
    }
    // The outer size is written with fewer decimals than the points have: what was not changed is not scaled, and what
    // was becomes the very size that was asked for.
    const QRectF outline = points.boundingRect();
    const QSizeF size(outer->width() == before.width() ? outline.width() : outer->width(),
                      outer->height() == before.height() ? outline.height() : outer->height());
    const QPolygonF scaled = GraphicsIrregularPolygon::scaled(points, outline.size(), size);
    changePropertyValue(m_pointList, ValueConversion::toString(scaled));
    // Points need not begin at the element's origin: the top left corner of the outline stays where it is.
    bool positionOk = false;
    const QPointF place = ValueConversion::toPoint(position()->valueString(), &positionOk);
    const RotationInfo turn = ValueConversion::toRotationInfo(rotation()->valueString());
    const QPointF kept = positionKeepingPlace(place, turn, outline, scaled.boundingRect(), KeptPlace::Corner);
    if (positionOk && (kept.x() != place.x() || kept.y() != place.y()))
        changePropertyValue(position(), ValueConversion::toString(kept));
}

QList<RuntimeProperty> IrregularPolygon::runtimeProperties() const
{
    return VisualElement::runtimeProperties()
           << RuntimeProperty(QStringLiteral("color"), elementText("Color"), EnumHelper::Color, true)
           << RuntimeProperty(QStringLiteral("points"), elementText("Points"), EnumHelper::List, true);
}

QRectF IrregularPolygon::getBoundingRect() const
{
    return polygon().boundingRect();
}

QPolygonF IrregularPolygon::polygon() const
{
    return ValueConversion::toPolygon(m_pointList->valueString());
}

} // namespace Korvex::Meridane::Designer
