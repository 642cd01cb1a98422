#include "host/core/canvas/CanvasBackground.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/GraphicsScreen.h"
#include "host/core/objects/Screen.h"

#include <QPainter>
#include <QPixmap>

namespace Korvex::Meridane::Designer {

namespace {

/// \a share (0 to 1) of \a b mixed into \a a.
QColor mixed(const QColor& a, const QColor& b, double share)
{
    const auto channel = [share](int from, int to) { return qRound(from + share * (to - from)); };
    return {channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue())};
}

QPixmap checkerboard()
{
    constexpr int Cell = 8;
    QPixmap tile(2 * Cell, 2 * Cell);
    tile.fill(Qt::white);
    QPainter painter(&tile);
    painter.fillRect(0, 0, Cell, Cell, QColor(204, 204, 204));
    painter.fillRect(Cell, Cell, Cell, Cell, QColor(204, 204, 204));
    return tile;
}

} // namespace

CanvasBackground::CanvasBackground(const CanvasView* view)
    : m_view(view)
{}

void CanvasBackground::paintBelow(QPainter* painter) const
{
    painter->fillRect(m_view->viewport()->rect(), pasteboard());
    const CanvasScene* scene = m_view->canvasScene();
    const auto* screen = scene ? dynamic_cast<const GraphicsScreen*>(scene->screen()->graphicsItem()) : nullptr;
    if (screen && screen->color().alpha() < 255) {
        const QRectF rect = screenOnView();
        painter->setBrushOrigin(rect.topLeft());
        painter->fillRect(rect & QRectF(m_view->viewport()->rect()), QBrush(checkerboard()));
    }
}

void CanvasBackground::paintAbove(QPainter* painter) const
{
    if (!m_view->canvasScene())
        return;
    const QRect whole = m_view->viewport()->rect();
    const QRect screen = screenOnView().toRect();
    QColor veil = pasteboard();
    veil.setAlpha(150);
    const QRegion outside = QRegion(whole) - QRegion(screen);
    for (const QRect& rect : outside)
        painter->fillRect(rect, veil);
    painter->setBrush(Qt::NoBrush);
    const QPalette palette = m_view->palette();
    painter->setPen(mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.55));
    painter->drawRect(screen.adjusted(-1, -1, 0, 0));
}

QRectF CanvasBackground::screenOnView() const
{
    const CanvasScene* scene = m_view->canvasScene();
    return scene ? m_view->viewportTransform().mapRect(scene->sceneRect()) : QRectF();
}

QColor CanvasBackground::pasteboard() const
{
    const QPalette palette = m_view->palette();
    return mixed(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.16);
}

} // namespace Korvex::Meridane::Designer
