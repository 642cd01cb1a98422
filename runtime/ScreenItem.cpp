#include "runtime/ScreenItem.h"

#include <QtQuick/QQuickWindow>
#include <QtQuick/QSGRectangleNode>

#include <memory>

namespace Korvex::Meridane::Display {
ScreenItem::ScreenItem(QQuickItem* parent)
    : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setClip(true);
    setImplicitSize(800, 480);
}

QColor ScreenItem::color() const
{
    return m_color;
}

void ScreenItem::setColor(const QColor& color)
{
    if (color == m_color) {
        return;
    }
    m_color = color;
    update();
    Q_EMIT colorChanged();
}

QSGNode* ScreenItem::updatePaintNode(QSGNode* node, UpdatePaintNodeData*)
{
    std::unique_ptr<QSGRectangleNode> ground(static_cast<QSGRectangleNode*>(node));
    if (!m_color.isValid() || m_color.alpha() == 0 || boundingRect().isEmpty()) {
        return nullptr;
    }
    if (!ground) {
        ground.reset(window()->createRectangleNode());
    }
    ground->setRect(boundingRect());
    ground->setColor(m_color);
    return ground.release();
}
} // namespace Korvex::Meridane::Display
