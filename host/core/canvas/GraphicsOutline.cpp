#include "host/core/canvas/GraphicsOutline.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/objects/OutlineReaction.h"
#include "host/core/properties/PointListProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/FrameResize.h"
#include "host/common/PaintHelper.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

/// Qt takes points for equal that differ in the last digits; their value strings differ.
bool same(const QPolygonF& a, const QPolygonF& b)
{
    return std::equal(a.cbegin(), a.cend(), b.cbegin(), b.cend(), [](const QPointF& one, const QPointF& other) {
        return one.x() == other.x() && one.y() == other.y();
    });
}

/// What a drag makes of a length: \a wanted, but the very length \a before where they differ by noise alone, and where
/// \a wanted falls below \a smallest that or, where it is smaller already, the length before.
double draggedLength(double before, double wanted, double smallest)
{
    if (withoutNoise(wanted) == withoutNoise(before))
        return before;
    return wanted < smallest ? std::min(smallest, before) : wanted;
}

/// The smallest height of which the width, by \a ratio, is at least 1.
double smallestHeight(double ratio)
{
    const double height = 1 / ratio;
    return height * ratio < 1 ? std::nextafter(height, 2 * height) : height;
}

} // namespace

GraphicsOutline::GraphicsOutline(DesignerObject* dataObject, const QString& pointsId, const QPolygonF& polygon)
    : GraphicsItem(dataObject, this)
    , m_pointsId(pointsId)
    , m_polygon(polygon)
    , m_unscaled(polygon)
    , m_bounds(polygon.boundingRect())
{}

GraphicsOutline::~GraphicsOutline() = default;

QRectF GraphicsOutline::boundingRect() const
{
    return m_bounds;
}

QPainterPath GraphicsOutline::shape() const
{
    QPainterPath path;
    path.addPolygon(m_polygon);
    path.closeSubpath();
    return path;
}

void GraphicsOutline::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    paintOutline(painter);
    refreshToolTip();
    Common::PaintHelper::paintHighlightSelected(outerRect(), painter, option);
}

QPainterPath GraphicsOutline::getShape() const
{
    return rotatedShape(shape());
}

void GraphicsOutline::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    // An outer size that was set is not reported back, see setKeepsOuterSize().
    if (!property || property->id() == QLatin1String("boundingSize"))
        return;
    GraphicsItem::updateGraphicsItem(property);
    if (property->id() != m_pointsId)
        return;
    bool ok = false;
    const QPolygonF polygon = ValueConversion::toPolygon(property->valueString(), &ok);
    if (!ok)
        return;
    setPolygon(polygon);
    m_unscaled = polygon;
}

UndoCommand* GraphicsOutline::updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent)
{
    if (UndoCommand* command = GraphicsItem::updateDataObject(property, parent))
        return command;
    if (!property || property->id() != m_pointsId)
        return nullptr;
    // Long lists take their time to be written; in most gestures nothing has changed.
    const auto* points = dynamic_cast<const PointListProperty*>(property.data());
    if (points && points->isConverted() && same(points->value(), m_polygon))
        return nullptr;
    return writeBack(property, ValueConversion::toString(m_polygon), parent);
}

void GraphicsOutline::resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF&)
{
    if (!Common::isFrameHandle(handle))
        return;
    const QSizeF before = m_unscaled.boundingRect().size();
    const double ratio = keptRatio();
    QSizeF wanted = before;
    if (Common::handleChangesWidth(handle))
        wanted.setWidth(draggedLength(before.width(), outerSize.width(), minSize()));
    if (Common::handleChangesHeight(handle))
        wanted.setHeight(draggedLength(before.height(), outerSize.height(), minSize()));
    // A typed size that leaves less than a pixel to the other side is refused; a drag ends before.
    const bool widthChanged = wanted.width() != before.width();
    const bool heightChanged = wanted.height() != before.height();
    if (ratio > 0 && widthChanged && !heightChanged)
        wanted.setWidth(draggedLength(before.width(), wanted.width(), ratio));
    else if (ratio > 0 && heightChanged && !widthChanged)
        wanted.setHeight(draggedLength(before.height(), wanted.height(), smallestHeight(ratio)));
    const auto factors = outlineFactors(before, wanted, ratio);
    const auto scaled = factors ? scaledOutline(m_unscaled, *factors) : std::nullopt;
    setScaledPolygon(handle, scaled.value_or(m_unscaled));
}

QRectF GraphicsOutline::outerRect() const
{
    return m_bounds;
}

QRectF GraphicsOutline::contentRect() const
{
    return m_bounds;
}

void GraphicsOutline::setPolygon(const QPolygonF& polygon)
{
    if (same(polygon, m_polygon))
        return;
    prepareGeometryChange();
    m_polygon = polygon;
    m_unscaled = polygon;
    m_bounds = polygon.boundingRect();
    update();
    if (m_keepsOuterSize)
        outlineChanged();
    else
        reportOuterSize();
}

void GraphicsOutline::setScaledPolygon(int handle, const QPolygonF& polygon)
{
    const QPolygonF unscaled = m_unscaled;
    setItemPosition(positionKeepingOpposite(handle, polygon.boundingRect()));
    setPolygon(polygon);
    m_unscaled = unscaled;
}

} // namespace Korvex::Meridane::Designer
