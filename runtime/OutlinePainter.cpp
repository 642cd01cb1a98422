#include "runtime/OutlinePainter.h"

#include "runtime/DisplayItem.h"

#include <QtGui/QPainter>

namespace Korvex::Meridane::Display {
OutlinePainter::OutlinePainter(DisplayItem* item)
    : QQuickPaintedItem(item)
    , m_item(item)
{
    setTransformOrigin(TopLeft);
    setAntialiasing(true);
    setZ(-1);
}

void OutlinePainter::place(const PainterPlacement& placement)
{
    if (placement == m_placement) {
        return;
    }
    const bool samePixels =
        placement.size == m_placement.size && placement.contentToPainter == m_placement.contentToPainter;
    m_placement = placement;
    setPosition(placement.position);
    setSize(placement.size);
    setRotation(placement.rotation);
    setScale(placement.scale);
    // Pixels that are the screen's are copied as they are; others have to be interpolated.
    setSmooth(!placement.turnedToScene);
    if (!samePixels) {
        update();
    }
}

void OutlinePainter::paint(QPainter* painter)
{
    painter->setTransform(m_placement.contentToPainter, true);
    m_item->paintContent(painter);
}
} // namespace Korvex::Meridane::Display
