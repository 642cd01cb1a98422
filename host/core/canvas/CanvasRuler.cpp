#include "host/core/canvas/CanvasRuler.h"

#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/GraphicsItem.h"

#include "host/common/LocalizationHelper.h"

#include <QCoreApplication>
#include <QGraphicsItem>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr double RoomForLabel = 56; // screen pixels between two labels, at least
constexpr double SmallestTick = 5; // screen pixels between two ticks, at least
constexpr int FontReduction = 2; // of the size in points

QFont rulerFont(const QWidget* widget)
{
    QFont font = widget->font();
    if (font.pointSize() > 0)
        font.setPointSize(std::max(font.pointSize() - FontReduction, 6));
    return font;
}

} // namespace

CanvasRuler::CanvasRuler(Qt::Orientation orientation, CanvasView* view)
    : QWidget(view)
    , m_orientation(orientation)
    , m_view(view)
{
    setAccessibleName(isHorizontal() ? LocalizationHelper::coreString(QStringLiteral("Horizontal Ruler"))
                                     : LocalizationHelper::coreString(QStringLiteral("Vertical Ruler")));
    setToolTip(LocalizationHelper::coreString(QStringLiteral("Drag a guide out of the ruler")));
    setCursor(CanvasGuides::cursor(isHorizontal() ? Qt::Horizontal : Qt::Vertical));
    setMouseTracking(true);
}

int CanvasRuler::thickness(const QWidget* widget)
{
    constexpr int TickRoom = 6;
    return QFontMetrics(rulerFont(widget)).height() + TickRoom;
}

double CanvasRuler::labelStep(double zoom)
{
    const double least = RoomForLabel / zoom;
    const double power = std::pow(10, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= least)
            return std::max(factor * power, 1.0);
    }
    return std::max(10 * power, 1.0);
}

void CanvasRuler::showPointer(const QPointF& viewPos)
{
    const QRect before = m_hasPointer ? pointerStrip() : QRect();
    m_hasPointer = true;
    m_pointer = isHorizontal() ? viewPos.x() : viewPos.y();
    if (pointerStrip() != before) {
        update(before);
        update(pointerStrip());
    }
}

void CanvasRuler::hidePointer()
{
    if (std::exchange(m_hasPointer, false))
        update(pointerStrip());
}

void CanvasRuler::updateExtent()
{
    QRectF extent;
    const CanvasScene* scene = m_view->canvasScene();
    const QList<QGraphicsItem*> selected = scene ? scene->selectedItems() : QList<QGraphicsItem*>();
    for (QGraphicsItem* graphic : selected) {
        if (const GraphicsItem* item = GraphicsItem::fromGraphic(graphic))
            extent |= graphic->sceneTransform().mapRect(item->outerRect());
    }
    QRect shaded;
    if (!extent.isNull()) {
        const QRectF onView = m_view->viewportTransform().mapRect(extent);
        shaded = isHorizontal() ? strip(onView.left(), onView.right()) : strip(onView.top(), onView.bottom());
    }
    if (shaded == m_extent)
        return;
    update(m_extent);
    update(shaded);
    m_extent = shaded;
}

bool CanvasRuler::event(QEvent* event)
{
    if (event->type() == QEvent::UngrabMouse && std::exchange(m_dragging, false))
        m_view->cancelGesture();
    else if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        update();
    return QWidget::event(event);
}

void CanvasRuler::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QColor ground = palette().color(QPalette::Window);
    painter.fillRect(event->rect(), ground);
    QColor shade = palette().color(QPalette::Highlight);
    shade.setAlpha(70);
    painter.fillRect(m_extent, shade);
    paintTicks(&painter, event->rect());
    if (m_hasPointer)
        painter.fillRect(pointerStrip(), palette().color(QPalette::Highlight));
    QColor edge = palette().color(QPalette::WindowText);
    edge.setAlpha(90);
    painter.fillRect(isHorizontal() ? QRect(0, height() - 1, width(), 1) : QRect(width() - 1, 0, 1, height()), edge);
}

void CanvasRuler::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_dragging = true;
    m_view->beginGuide(isHorizontal() ? Qt::Horizontal : Qt::Vertical,
                       m_view->viewport()->mapFromGlobal(event->globalPosition()));
}

void CanvasRuler::mouseMoveEvent(QMouseEvent* event)
{
    passOn(event);
}

void CanvasRuler::mouseReleaseEvent(QMouseEvent* event)
{
    m_dragging = false;
    passOn(event);
}

/// The canvas follows the mouse as if it were over itself.
void CanvasRuler::passOn(QMouseEvent* event)
{
    QMouseEvent passed(event->type(), m_view->viewport()->mapFromGlobal(event->globalPosition()),
                       event->globalPosition(), event->button(), event->buttons(), event->modifiers());
    QCoreApplication::sendEvent(m_view->viewport(), &passed);
}

QRect CanvasRuler::strip(double from, double to) const
{
    const QRect all = rect();
    const int first = int(std::floor(std::clamp<double>(from, -1, isHorizontal() ? all.width() : all.height())));
    const int last = int(std::ceil(std::clamp<double>(to, -1, isHorizontal() ? all.width() : all.height())));
    return isHorizontal() ? QRect(first, 0, last - first, all.height()) : QRect(0, first, all.width(), last - first);
}

QRect CanvasRuler::pointerStrip() const
{
    const double place = std::floor(m_pointer);
    return strip(place, place + 1);
}

void CanvasRuler::paintTicks(QPainter* painter, const QRect& exposed) const
{
    const double zoom = m_view->zoom();
    const double step = labelStep(zoom);
    // Ticks between the labels: tenths, else fifths, else halves, if they are whole pixels and can be told apart.
    double tick = step;
    for (const int parts : {10, 5, 2}) {
        const double part = step / parts;
        if (part * zoom >= SmallestTick && part == std::round(part)) {
            tick = part;
            break;
        }
    }
    const QPointF origin = m_view->viewportTransform().map(QPointF(0, 0));
    const double start = isHorizontal() ? origin.x() : origin.y();
    // A label begins before the part that has to be painted.
    const double from = ((isHorizontal() ? exposed.left() : exposed.top()) - start) / zoom - step;
    const double to = ((isHorizontal() ? exposed.right() : exposed.bottom()) + 1 - start) / zoom;
    const int across = isHorizontal() ? height() : width();
    QColor color = palette().color(QPalette::WindowText);
    painter->setFont(rulerFont(this));
    const auto perLabel = qint64(std::llround(step / tick));
    for (auto i = qint64(std::ceil(from / tick)); double(i) * tick <= to; ++i) {
        const double place = double(i) * tick;
        const int at = int(std::floor(start + place * zoom));
        const bool labelled = i % perLabel == 0;
        const bool middle = perLabel % 2 == 0 && i % (perLabel / 2) == 0;
        const int length = labelled ? across : (middle ? 6 : 4);
        color.setAlpha(labelled ? 130 : 90);
        painter->fillRect(
            isHorizontal() ? QRect(at, across - length, 1, length) : QRect(across - length, at, length, 1), color);
        if (labelled) {
            painter->setPen(palette().color(QPalette::WindowText));
            paintLabel(painter, at, QLocale::c().toString(qint64(place)));
        }
    }
}

/// Writes \a text beside the tick at \a at; upwards on the vertical ruler.
void CanvasRuler::paintLabel(QPainter* painter, double at, const QString& text) const
{
    const QFontMetrics metrics(painter->font());
    if (isHorizontal()) {
        painter->drawText(QPointF(at + 3, metrics.ascent()), text);
        return;
    }
    painter->save();
    painter->translate(metrics.ascent(), at + 3 + metrics.horizontalAdvance(text));
    painter->rotate(-90);
    painter->drawText(QPointF(0, 0), text);
    painter->restore();
}

} // namespace Korvex::Meridane::Designer
