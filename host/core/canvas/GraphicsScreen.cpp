#include "host/core/canvas/GraphicsScreen.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QPainter>

#include <limits>

namespace Korvex::Meridane::Designer {

GraphicsScreen::GraphicsScreen(DesignerObject* dataObject)
    : GraphicsItem(dataObject, this)
{
    setZValue(std::numeric_limits<double>::lowest());
    setAcceptedMouseButtons(Qt::NoButton);
}

GraphicsScreen::~GraphicsScreen() = default;

QRectF GraphicsScreen::boundingRect() const
{
    return {QPointF(0, 0), m_size};
}

void GraphicsScreen::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*)
{
    painter->fillRect(boundingRect(), m_color);
}

QString GraphicsScreen::className() const
{
    return QStringLiteral("GraphicsScreen");
}

QStringList GraphicsScreen::classNames() const
{
    return GraphicsItem::classNames() << QStringLiteral("GraphicsScreen");
}

void GraphicsScreen::addGraphicsItemChild(const QSharedPointer<DesignerProperty>& property, DesignerObject* object)
{
    auto* canvas = qobject_cast<CanvasScene*>(scene());
    if (!canvas || !property || !object)
        return;
    canvas->placeObject(object, nullptr);
    canvas->restack(object);
}

void GraphicsScreen::updateGraphicsItem(const QSharedPointer<DesignerProperty>& property)
{
    GraphicsItem::updateGraphicsItem(property);
    if (!property)
        return;
    bool ok = false;
    if (property->id() == QLatin1String("size")) {
        const QSizeF size = ValueConversion::toSize(property->valueString(), &ok);
        if (!ok || size == m_size)
            return;
        prepareGeometryChange();
        m_size = size;
        if (scene())
            scene()->setSceneRect(boundingRect());
    } else if (property->id() == QLatin1String("color")) {
        const QColor color = ValueConversion::toColor(property->valueString(), &ok);
        if (!ok || color == m_color)
            return;
        m_color = color;
        update();
    }
}

} // namespace Korvex::Meridane::Designer
