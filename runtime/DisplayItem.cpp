#include "runtime/DisplayItem.h"

#include "runtime/OutlinePainter.h"

#include <QtQuick/QQuickWindow>

namespace Korvex::Meridane::Display {
DisplayItem::DisplayItem(QQuickItem* parent)
    : DisplayElement(parent)
    , m_painter(new OutlinePainter(this))
{}

void DisplayItem::contentChanged()
{
    m_contentChanged = true;
    m_painter->update();
    polish();
}

void DisplayItem::componentComplete()
{
    DisplayElement::componentComplete();
    contentChanged();
}

void DisplayItem::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    DisplayElement::geometryChange(newGeometry, oldGeometry);
    if (newGeometry.size() != oldGeometry.size()) {
        contentChanged();
    }
}

void DisplayItem::itemChange(ItemChange change, const ItemChangeData& value)
{
    if (change == ItemSceneChange) {
        if (m_window) {
            disconnect(m_window, &QQuickWindow::afterAnimating, this, &DisplayItem::placePainter);
        }
        m_window = value.window;
        if (m_window) {
            // An item hears nothing of its ancestors' moves; before each frame it looks where it is.
            connect(m_window, &QQuickWindow::afterAnimating, this, &DisplayItem::placePainter);
            polish();
        }
    } else if (change == ItemVisibleHasChanged || change == ItemDevicePixelRatioHasChanged) {
        polish();
    }
    DisplayElement::itemChange(change, value);
}

void DisplayItem::updatePolish()
{
    placePainter();
}

void DisplayItem::placePainter()
{
    if (!m_window || !isVisible() || !isComponentComplete()) {
        return;
    }
    const QTransform itemToScene = itemTransform(nullptr, nullptr);
    const double pixelRatio = m_window->effectiveDevicePixelRatio();
    const QSizeF windowSize = m_window->size();
    if (!m_contentChanged && itemToScene == m_itemToScene && pixelRatio == m_pixelRatio && windowSize == m_windowSize) {
        return;
    }
    m_contentChanged = false;
    m_itemToScene = itemToScene;
    m_pixelRatio = pixelRatio;
    m_windowSize = windowSize;
    m_painter->place(Display::placePainter(outerRect(), itemToScene, pixelRatio, windowSize));
}
} // namespace Korvex::Meridane::Display
