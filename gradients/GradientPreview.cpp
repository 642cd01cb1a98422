#include "gradients/GradientPreview.h"

#include "host/core/widgets/Checkerboard.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int SmallestWidth = 48; // pixels
constexpr int SmallestHeight = 20; // pixels
constexpr double CornerRadius = 2; // pixels

} // namespace

GradientPreview::GradientPreview(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

GradientPreview::~GradientPreview() = default;

void GradientPreview::setGradientStops(const QGradientStops& stops)
{
    m_stops = stops;
    update();
}

QSize GradientPreview::sizeHint() const
{
    return {2 * SmallestWidth, std::max(SmallestHeight, fontMetrics().height() + 6)};
}

QSize GradientPreview::minimumSizeHint() const
{
    return {SmallestWidth, sizeHint().height()};
}

void GradientPreview::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath outline;
    outline.addRoundedRect(frame, CornerRadius, CornerRadius);

    QGradientStops painted;
    std::copy_if(m_stops.begin(), m_stops.end(), std::back_inserter(painted),
                 [](const QGradientStop& stop) { return stop.first >= 0 && stop.first <= 1; });
    if (!painted.isEmpty()) {
        painter.save();
        painter.setClipPath(outline);
        if (std::any_of(painted.begin(), painted.end(),
                        [](const QGradientStop& stop) { return stop.second.alpha() < 255; }))
            paintCheckerboard(painter, frame);
        QLinearGradient gradient(frame.topLeft(), frame.topRight());
        gradient.setStops(painted);
        painter.setOpacity(isEnabled() ? 1 : 0.4);
        painter.fillPath(outline, gradient);
        painter.restore();
    }

    // A line of the text's colour keeps the strip visible where it has the colour of the window.
    QColor line = palette().color(QPalette::WindowText);
    line.setAlphaF(0.4F);
    painter.setPen(QPen(line, 1));
    painter.drawPath(outline);
}

} // namespace Korvex::Meridane::Designer
