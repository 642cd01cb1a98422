#include "host/core/widgets/LockToggle.h"

#include "host/common/LocalizationHelper.h"

#include <QtGui/QPainterPath>
#include <QtWidgets/QStyleOptionToolButton>
#include <QtWidgets/QStylePainter>

namespace Korvex::Meridane::Designer {
namespace {
/** The side of the square in which the padlock is drawn below. */
constexpr double drawingSize = 16;

/** The padlock with round shackle; an open one stands beside the body on its left leg only. */
void paintPadlock(QPainter& painter, bool closed, const QColor& color)
{
    QPainterPath shackle;
    const QRectF arc(closed ? 5 : 1.5, 2, 6, 6);
    shackle.moveTo(arc.left(), closed ? 8 : 6);
    shackle.lineTo(arc.left(), 5);
    shackle.arcTo(arc, 180, -180);
    shackle.lineTo(arc.right(), 8);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(color, 1.5, Qt::SolidLine, Qt::FlatCap));
    painter.drawPath(shackle);

    QPainterPath body;
    body.addRoundedRect(QRectF(3.5, 7.5, 9, 6.5), 1.2, 1.2);
    QPainterPath keyhole;
    keyhole.addEllipse(QPointF(8, 10.2), 1.1, 1.1);
    keyhole.addRect(QRectF(7.5, 10.2, 1, 2.2));
    painter.fillPath(body.subtracted(keyhole), color);
}
} // namespace

LockToggle::LockToggle(QWidget* parent)
    : QToolButton(parent)
{
    setCheckable(true);
    setAutoRaise(true);
    setFocusPolicy(Qt::TabFocus);
    setAccessibleName(Common::LocalizationHelper::coreString(QStringLiteral("Keep ratio")));
    setToolTip(Common::LocalizationHelper::coreString(QStringLiteral("Keep the ratio of width to height")));
    connect(this, &QToolButton::clicked, this, &LockToggle::userModified);
}

void LockToggle::setLocked(bool locked)
{
    setChecked(locked);
}

QSize LockToggle::sizeHint() const
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) + 6;
    return {side, side};
}

void LockToggle::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    const double side =
        qMin(qMin(width(), height()) - 4, style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this));
    if (side <= 0) {
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate((width() - side) / 2, (height() - side) / 2);
    painter.scale(side / drawingSize, side / drawingSize);
    paintPadlock(painter, isChecked(),
                 palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
}
} // namespace Korvex::Meridane::Designer
