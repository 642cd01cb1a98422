#include "app/ElementIconEngine.h"

#include "app/Appearance.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/canvas/GraphicsOutline.h"
#include "host/core/commands/ChangeScopes.h"
#include "host/core/objects/DesignerObject.h"

#include <QGraphicsItem>
#include <QGuiApplication>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace Korvex::Meridane::Designer {

namespace {

/// The points that make up an element: they tell a free polygon from a regular one, and a path from a rectangle.
QVector<QPointF> pointsOf(const GraphicsItem& item)
{
    if (const auto* outline = dynamic_cast<const GraphicsOutline*>(&item))
        return outline->polygon();
    return item.pointHandles();
}

void drawPoints(const QVector<QPointF>& points, double radius, QPainter* painter)
{
    const QPolygonF onPixmap = painter->transform().map(QPolygonF(points));
    painter->resetTransform();
    painter->setPen(QPen(QColor(QRgb(0x3b4554)), radius / 2));
    painter->setBrush(Qt::white);
    for (const QPointF& point : onPixmap)
        painter->drawEllipse(point, radius, radius);
}

} // namespace

/// The element and its item, shared by the copies of an icon.
struct ElementIconEngine::Model
{
    std::unique_ptr<DesignerObject> object;
    std::unique_ptr<QGraphicsItem> graphic; // goes before the object that it shows
    GraphicsItem* item = nullptr;
    QHash<std::pair<quint64, int>, QPixmap> pictures; // by width and height, and variant
};

ElementIconEngine::ElementIconEngine(std::unique_ptr<DesignerObject> object)
    : m_model(std::make_shared<Model>())
{
    m_model->object = std::move(object);
    if (!m_model->object)
        return;
    m_model->item = m_model->object->createGraphicsItem();
    if (!m_model->item)
        return;
    m_model->graphic.reset(m_model->item->graphic());
    const ValueRestoreScope filling;
    for (const auto& property : m_model->object->properties())
        m_model->item->updateGraphicsItem(property);
}

ElementIconEngine::ElementIconEngine(const std::shared_ptr<Model>& model)
    : m_model(model)
{}

ElementIconEngine::~ElementIconEngine() = default;

bool ElementIconEngine::isUsable() const
{
    return m_model->graphic != nullptr;
}

void ElementIconEngine::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State)
{
    const qreal scale = painter->device() ? painter->device()->devicePixelRatio() : 1;
    painter->drawPixmap(rect, drawn(rect.size() * scale, mode));
}

QPixmap ElementIconEngine::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State)
{
    return drawn(size, mode);
}

QPixmap ElementIconEngine::scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal)
{
    return drawn(size, mode);
}

QIconEngine* ElementIconEngine::clone() const
{
    return new ElementIconEngine(m_model);
}

QPixmap ElementIconEngine::drawn(const QSize& pixels, QIcon::Mode mode) const
{
    // A selected row or tile shows the same picture: a tinted one would show colours that the element does not have.
    // On dark ground a white card would glare.
    const bool disabled = mode == QIcon::Disabled;
    const bool dark = Appearance::isDark(QGuiApplication::palette());
    const int variant = (disabled ? 1 : 0) + (dark ? 2 : 0);
    const std::pair<quint64, int> key{quint64(pixels.width()) << 32 | quint64(pixels.height()), variant};
    const auto known = m_model->pictures.constFind(key);
    if (known != m_model->pictures.cend())
        return *known;
    QPixmap pixmap(pixels);
    pixmap.fill(Qt::transparent);
    if (isUsable() && !pixmap.isNull()) {
        QPainter painter(&pixmap);
        painter.setRenderHint(QPainter::Antialiasing);
        if (disabled)
            painter.setOpacity(0.4);
        const QRectF card = QRectF(QPointF(0.5, 0.5), QSizeF(pixels) - QSizeF(1, 1));
        const double radius = qMin(card.width(), card.height()) / 10;
        painter.setPen(QColor(0, 0, 0, 45));
        painter.setBrush(dark ? QColor(QRgb(0xdfe3e9)) : QColor(Qt::white));
        painter.drawRoundedRect(card, radius, radius);

        const QRectF bounds = m_model->graphic->boundingRect();
        const double margin = qMax(1.5, qMin(card.width(), card.height()) / 8);
        const QRectF place = card.adjusted(margin, margin, -margin, -margin);
        if (!bounds.isEmpty() || bounds.width() > 0 || bounds.height() > 0) {
            const double factor =
                qMin(place.width() / qMax(bounds.width(), 1.), place.height() / qMax(bounds.height(), 1.));
            painter.setClipRect(card);
            painter.translate(place.center());
            painter.scale(factor, factor);
            painter.translate(-bounds.center());
            QStyleOptionGraphicsItem option;
            option.exposedRect = bounds;
            m_model->graphic->paint(&painter, &option, nullptr);
            drawPoints(pointsOf(*m_model->item), qMin(card.width(), card.height()) / 18, &painter);
        }
    }
    m_model->pictures.insert(key, pixmap);
    return pixmap;
}

} // namespace Korvex::Meridane::Designer
