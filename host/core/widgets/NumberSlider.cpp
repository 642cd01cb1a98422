#include "host/core/widgets/NumberSlider.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {
namespace {
/** More positions than any screen has pixels. */
constexpr double mostPositions = 100000;
} // namespace

NumberSlider::NumberSlider(QWidget* parent)
    : QSlider(Qt::Horizontal, parent)
{
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QSlider::valueChanged, this, [this] { Q_EMIT numberMoved(number()); });
    setNumbers(m_minimum, m_maximum, 1, 0);
}

void NumberSlider::setNumbers(double minimum, double maximum, double singleStep, int decimals)
{
    const double present = number();
    m_minimum = minimum;
    m_maximum = maximum;
    const double span = maximum - minimum;
    const bool usable = std::isfinite(span) && span > 0;
    const double positions = usable ? std::clamp(span * std::pow(10, decimals), 1.0, mostPositions) : 0;
    const QSignalBlocker blocker(this);
    setRange(0, static_cast<int>(std::lround(positions)));
    if (usable) {
        const double step = std::clamp(singleStep / span * positions, 1.0, positions);
        setSingleStep(static_cast<int>(std::lround(step)));
        setPageStep(static_cast<int>(std::lround(std::min(step * 10, positions))));
    }
    setNumber(present);
}

void NumberSlider::setNumber(double number)
{
    const double span = m_maximum - m_minimum;
    const QSignalBlocker blocker(this);
    if (maximum() > 0 && std::isfinite(number)) {
        const double fraction = std::clamp((number - m_minimum) / span, 0.0, 1.0);
        setValue(static_cast<int>(std::lround(fraction * maximum())));
    } else {
        setValue(0);
    }
    update();
}

double NumberSlider::number() const
{
    return maximum() > 0 ? m_minimum + (m_maximum - m_minimum) * value() / maximum() : m_minimum;
}

int NumberSlider::positionAt(double x) const
{
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRect groove = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
    const QRect handle = style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    const int span = groove.width() - handle.width();
    const int pixel = static_cast<int>(std::lround(x)) - groove.x() - handle.width() / 2;
    return QStyle::sliderValueFromPosition(minimum(), maximum(), pixel, span, option.upsideDown);
}

void NumberSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_gesture) {
        QSlider::mousePressEvent(event);
        return;
    }
    m_gesture = true;
    m_positionBefore = value();
    Q_EMIT gestureStarted();
    QStyleOptionSlider option;
    initStyleOption(&option);
    if (style()->hitTestComplexControl(QStyle::CC_Slider, &option, event->position().toPoint(), this)
        != QStyle::SC_SliderHandle) {
        setValue(positionAt(event->position().x()));
    }
    setSliderDown(true);
    event->accept();
}

void NumberSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (m_gesture) {
        setValue(positionAt(event->position().x()));
        event->accept();
    } else {
        event->ignore();
    }
}

void NumberSlider::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_gesture && event->button() == Qt::LeftButton) {
        finishGesture();
        event->accept();
    } else {
        event->ignore();
    }
}

void NumberSlider::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && m_gesture) {
        setValue(m_positionBefore);
        finishGesture();
        event->accept();
        return;
    }
    QSlider::keyPressEvent(event);
}

void NumberSlider::wheelEvent(QWheelEvent* event)
{
    if (hasFocus()) {
        QSlider::wheelEvent(event);
    } else {
        event->ignore();
    }
}

bool NumberSlider::event(QEvent* event)
{
    // A gesture does not outlive the mouse grab.
    if (m_gesture && (event->type() == QEvent::UngrabMouse || event->type() == QEvent::Hide)) {
        finishGesture();
    }
    if (m_gesture && event->type() == QEvent::ShortcutOverride
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        event->accept();
        return true;
    }
    return QSlider::event(event);
}

void NumberSlider::finishGesture()
{
    m_gesture = false;
    setSliderDown(false);
    Q_EMIT gestureFinished();
}
} // namespace Korvex::Meridane::Designer
