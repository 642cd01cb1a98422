#include "host/core/widgets/ColorSwatch.h"

#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/Checkerboard.h"

#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

namespace Korvex::Meridane::Designer {
namespace {
constexpr double cornerRadius = 2;
}

ColorSwatch::ColorSwatch(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
    describe();
}

void ColorSwatch::setColor(const QColor& color)
{
    m_color = color;
    describe();
    update();
}

void ColorSwatch::setMixed(bool mixed)
{
    m_mixed = mixed;
    describe();
    update();
}

void ColorSwatch::describe()
{
    const QString text = m_mixed ? QStringLiteral("\u2014") : ValueConversion::toString(m_color);
    setAccessibleDescription(text);
    setToolTip(text);
}

QSize ColorSwatch::sizeHint() const
{
    const int height = qMax(fontMetrics().height() + 6, 20);
    return {height * 2, height};
}

QSize ColorSwatch::minimumSizeHint() const
{
    return {16, 16};
}

void ColorSwatch::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5);
    QPainterPath outline;
    outline.addRoundedRect(frame, cornerRadius, cornerRadius);

    painter.save();
    painter.setClipPath(outline);
    if (m_mixed || !m_color.isValid()) {
        painter.fillPath(outline, palette().base());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(frame, Qt::AlignCenter, QStringLiteral("\u2014"));
    } else {
        if (m_color.alpha() < 255) {
            paintCheckerboard(painter, frame);
        }
        painter.setOpacity(isEnabled() ? 1 : 0.4);
        painter.fillPath(outline, m_color);
    }
    painter.restore();

    // A line of the text's colour keeps swatches visible that have the colour of the window.
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(underMouse() && isEnabled() ? 0.8F : 0.4F);
    painter.setPen(QPen(line, 1));
    painter.drawPath(outline);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), cornerRadius, cornerRadius);
    }
}

void ColorSwatch::enterEvent(QEnterEvent* event)
{
    QAbstractButton::enterEvent(event);
    update();
}

void ColorSwatch::leaveEvent(QEvent* event)
{
    QAbstractButton::leaveEvent(event);
    update();
}
} // namespace Korvex::Meridane::Designer
