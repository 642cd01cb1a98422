#include "tests/canvas/PointItem.h"

#include "host/common/PaintHelper.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/PointListProperty.h"
#include "host/core/properties/PropertyDeclaration.h"
#include "host/core/properties/SizeProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QKeyEvent>
#include <QPainter>

namespace Korvex::Meridane::Designer::Test {

namespace {

bool pointsValidator(const DesignerProperty* property, QString& message)
{
    const QRectF bounds = ValueConversion::toPolygon(property->valueString()).boundingRect();
    if (bounds.right() <= 1000 && bounds.bottom() <= 1000)
        return true;
    message = QStringLiteral("Too far.");
    return false;
}

} // namespace

PointElement::PointElement(QObject* parent)
    : VisualElement(parent)
{}

GraphicsItem* PointElement::createGraphicsItem()
{
    GraphicsItem* item = DesignerFactory::instance()->createGraphicsItem(QStringLiteral("PointItem"), this);
    item->graphic()->setFlag(QGraphicsItem::ItemIsSelectable);
    item->graphic()->setFlag(QGraphicsItem::ItemIsMovable);
    item->setResizable(true);
    item->setRotatable(true);
    return item;
}

bool PointElement::initializeProperties()
{
    IdentifierInfo info;
    info.setScopeType(QStringLiteral("Screen"));
    info.setFilterType(className());
    info.setBase(QStringLiteral("points"));
    info.setName(QStringLiteral("points"));
    if (!VisualElement::initializeProperties() || !setIdInfo(info))
        return false;
    m_points = PropertyDeclaration<PointListProperty>(
                   this, QLatin1String("points"), QStringLiteral("Points"),
                   QPolygonF({QPointF(0, 0), QPointF(100, 0), QPointF(100, 80), QPointF(0, 80)}))
                   .rank(10)
                   .allowInvalid()
                   .validator(pointsValidator);
    m_boundingSize =
        PropertyDeclaration<SizeProperty>(this, QLatin1String("boundingSize"), QStringLiteral("Size"), QSizeF(1, 1))
            .rank(11)
            .flags(Shown | Editable)
            .allowInvalid();
    return true;
}

PointItem::PointItem(DesignerObject* dataObject)
    : GraphicsItem(dataObject, this)
{}

QRectF PointItem::boundingRect() const
{
    return m_points.boundingRect();
}

QPainterPath PointItem::shape() const
{
    QPainterPath path;
    path.addPolygon(m_points);
    return path;
}

void PointItem::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*)
{
    Common::PaintHelper::paintIrregularPolygon(m_points, QColor(20, 120, 200), painter);
    refreshToolTip();
    Common::PaintHelper::paintHighlightSelected(m_points.boundingRect(), painter, option);
}

void PointItem::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsItem::updateGraphicsItem(property);
    if (property && property->id() == QLatin1String("points")) {
        bool ok = false;
        const QPolygonF points = ValueConversion::toPolygon(property->valueString(), &ok);
        if (ok)
            setPoints(points);
    }
}

UndoCommand* PointItem::updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent)
{
    if (UndoCommand* command = GraphicsItem::updateDataObject(property, parent))
        return command;
    if (property && property->id() == QLatin1String("points"))
        return writeBack(property, ValueConversion::toString(m_points), parent);
    return nullptr;
}

int PointItem::getResizePointHandle(const QPointF& scenePos, bool* handled)
{
    *handled = true;
    const QPointF mouse = mapFromScene(scenePos);
    for (int i = 0; i < m_points.size(); ++i) {
        if ((mouse - m_points.at(i)).manhattanLength() <= detectionWidth()) {
            setHandleToolTip(QStringLiteral("Point %1").arg(i));
            return i;
        }
    }
    showNameToolTip();
    return -1;
}

void PointItem::resizeByMouse(int handle, const QPointF& scenePos)
{
    QPolygonF points = m_points;
    points[handle] = mapFromScene(scenePos);
    setPoints(points);
}

void PointItem::resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF&)
{
    const FrameChange change = frameChange(handle, outerSize);
    const QSizeF before = outerRect().size();
    setItemPosition(change.position);
    setPoints(
        QTransform::fromScale(change.outerSize.width() / before.width(), change.outerSize.height() / before.height())
            .map(m_points));
}

void PointItem::updateResizedDataObjects(int handle, UndoCommand* parent)
{
    if (handle >= 0 && handle < m_points.size())
        updateDataObject(dataObject()->getProperty(QStringLiteral("points")), parent);
}

void PointItem::selectedChanged(bool selected)
{
    selections.append(selected);
}

void PointItem::keyPressEvent(QKeyEvent* event)
{
    keys.append(event->key());
    event->setAccepted(event->modifiers() == Qt::AltModifier);
}

void PointItem::setPoints(const QPolygonF& points)
{
    if (points == m_points)
        return;
    prepareGeometryChange();
    m_points = points;
    update();
    reportOuterSize();
}

} // namespace Korvex::Meridane::Designer::Test
