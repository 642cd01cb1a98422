#include "app/LiveView.h"

#include "app/CoreText.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

LiveView::LiveView(QWidget* parent)
    : QWidget(parent)
{
    setMouseTracking(true);
    setAccessibleName(coreText("Running display"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void LiveView::setFrame(const QImage& frame, const QSizeF& displaySize)
{
    m_frame = frame;
    m_scaled = {};
    if (displaySize != m_displaySize) {
        m_displaySize = displaySize;
        Q_EMIT wantedScaleChanged();
    }
    update();
}

QSize LiveView::sizeHint() const
{
    return {400, 240};
}

QSize LiveView::minimumSizeHint() const
{
    return {80, 48};
}

QRectF LiveView::picturePlace() const
{
    if (m_displaySize.isEmpty() || size().isEmpty())
        return {};
    const double scale = std::min(width() / m_displaySize.width(), height() / m_displaySize.height());
    const QSizeF shown = m_displaySize * scale;
    // On whole pixels of the screen, so that a picture of as many pixels is shown pixel by pixel.
    const double ratio = devicePixelRatioF();
    const auto whole = [ratio](double length) { return std::round(length * ratio) / ratio; };
    return {whole((width() - shown.width()) / 2), whole((height() - shown.height()) / 2), whole(shown.width()),
            whole(shown.height())};
}

double LiveView::wantedScale() const
{
    constexpr double LargestScale = 8;
    const QRectF place = picturePlace();
    if (place.isEmpty())
        return 1;
    // A smaller picture than the display's own is made of that one: lines of one pixel get paler, they do not vanish.
    return std::clamp(place.width() * devicePixelRatioF() / m_displaySize.width(), 1.0, LargestScale);
}

const QImage& LiveView::scaledTo(const QSize& pixels)
{
    if (m_scaled.size() != pixels) {
        m_scaled = m_frame.size() == pixels ? m_frame
                                            : m_frame.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_scaled.setDevicePixelRatio(devicePixelRatioF());
    }
    return m_scaled;
}

void LiveView::paintEvent(QPaintEvent*)
{
    const QRectF place = picturePlace();
    if (m_frame.isNull() || place.isEmpty())
        return;
    QPainter painter(this);
    painter.fillRect(place, Qt::black); // what a panel has behind a translucent screen
    painter.drawImage(place.topLeft(), scaledTo((place.size() * devicePixelRatioF()).toSize()));
}

void LiveView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    Q_EMIT wantedScaleChanged();
}

QPointF LiveView::toDisplay(const QPointF& place) const
{
    const QRectF picture = picturePlace();
    return {(place.x() - picture.x()) * m_displaySize.width() / picture.width(),
            (place.y() - picture.y()) * m_displaySize.height() / picture.height()};
}

bool LiveView::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (m_frame.isNull())
            return QWidget::event(event);
        Q_EMIT mouseMoved(event->type(), toDisplay(mouse->position()), mouse->button(), mouse->buttons(),
                          mouse->modifiers());
        event->accept();
        return true;
    }
    case QEvent::Wheel: {
        const auto* wheel = static_cast<QWheelEvent*>(event);
        if (m_frame.isNull())
            return QWidget::event(event);
        Q_EMIT wheelTurned(toDisplay(wheel->position()), wheel->angleDelta(), wheel->buttons(), wheel->modifiers());
        event->accept();
        return true;
    }
    default:
        return QWidget::event(event);
    }
}

} // namespace Korvex::Meridane::Designer
