#include "host/core/sheet/DefaultMark.h"

#include "host/core/sheet/SheetColors.h"
#include "host/core/sheet/SheetMetrics.h"

#include <QPainter>
#include <QPainterPath>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double DotRadius = 2.5; // pixels, as all here
constexpr double ArrowRadius = 3.5;
constexpr double ArrowHead = 2.8;
constexpr double LineWidth = 1.4;

} // namespace

DefaultMark::DefaultMark(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
}

DefaultMark::~DefaultMark() = default;

QSize DefaultMark::sizeHint() const
{
    return {SheetMetrics::Margin, SheetMetrics::fieldHeight(this)};
}

void DefaultMark::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPointF center = QRectF(rect()).center();
    const QColor color = markColor(palette());
    if (!underMouse()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawEllipse(center, DotRadius, DotRadius);
        return;
    }
    // Three quarters of a circle against the clock, from the right to the top, and the head of an arrow at its start.
    constexpr int FromRight = 0;
    constexpr int ThreeQuarters = -270 * 16;
    const QRectF circle(center - QPointF(ArrowRadius, ArrowRadius), QSizeF(2 * ArrowRadius, 2 * ArrowRadius));
    painter.setPen(QPen(color, LineWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawArc(circle, FromRight, ThreeQuarters);
    const QPointF top = center - QPointF(0, ArrowRadius);
    QPainterPath head(top + QPointF(ArrowHead, 0));
    head.lineTo(top + QPointF(0, -ArrowHead * 0.8));
    head.lineTo(top + QPointF(0, ArrowHead * 0.8));
    head.closeSubpath();
    painter.setPen(Qt::NoPen);
    painter.fillPath(head.translated(-0.5, 0), color);
}

void DefaultMark::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void DefaultMark::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace Korvex::Meridane::Designer
