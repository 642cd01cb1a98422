#include "host/core/widgets/ColorChannelSlider.h"

#include "host/core/widgets/Checkerboard.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QLinearGradient>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <cmath>

namespace Korvex::Meridane::Designer {
namespace {
constexpr double handleWidth = 6;
constexpr int largestChannel = 255;
} // namespace

ColorChannelSlider::ColorChannelSlider(QWidget* parent)
    : QAbstractSlider(parent)
{
    setOrientation(Qt::Horizontal);
    setRange(0, largestChannel);
    setSingleStep(1);
    setPageStep(16);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(this, &QAbstractSlider::valueChanged, this, &ColorChannelSlider::userModified);
}

void ColorChannelSlider::setEnds(const QColor& first, const QColor& last)
{
    m_first = first;
    m_last = last;
    update();
}

void ColorChannelSlider::setChannel(int channel)
{
    const QSignalBlocker blocker(this);
    setValue(channel);
    update();
}

QSize ColorChannelSlider::sizeHint() const
{
    return {220, 20};
}

QSize ColorChannelSlider::minimumSizeHint() const
{
    return {80, 20};
}

QRectF ColorChannelSlider::grooveRect() const
{
    return QRectF(rect()).adjusted(3 + handleWidth / 2, 4, -3 - handleWidth / 2, -4);
}

void ColorChannelSlider::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    const QRectF groove = grooveRect();
    if (m_first.alpha() < 255 || m_last.alpha() < 255) {
        paintCheckerboard(painter, groove);
    }
    QLinearGradient gradient(groove.topLeft(), groove.topRight());
    gradient.setColorAt(0, m_first);
    gradient.setColorAt(1, m_last);
    painter.fillRect(groove, gradient);

    painter.setRenderHint(QPainter::Antialiasing);
    const double x = groove.left() + groove.width() * value() / largestChannel;
    const QRectF handle(x - handleWidth / 2, 2, handleWidth, height() - 4);
    painter.setBrush(palette().button());
    painter.setPen(QPen(palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText), hasFocus() ? 2 : 1));
    painter.drawRoundedRect(handle, 2, 2);
}

void ColorChannelSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    setSliderDown(true);
    Q_EMIT gestureStarted();
    moveTo(event->position().x());
}

void ColorChannelSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (isSliderDown()) {
        moveTo(event->position().x());
    }
}

void ColorChannelSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        finishGesture();
    }
}

void ColorChannelSlider::hideEvent(QHideEvent* event)
{
    finishGesture();
    QAbstractSlider::hideEvent(event);
}

void ColorChannelSlider::finishGesture()
{
    if (isSliderDown()) {
        setSliderDown(false);
        Q_EMIT gestureFinished();
    }
}

void ColorChannelSlider::moveTo(double x)
{
    const QRectF groove = grooveRect();
    if (groove.width() > 0) {
        setValue(static_cast<int>(std::lround((x - groove.left()) / groove.width() * largestChannel)));
    }
}
} // namespace Korvex::Meridane::Designer
