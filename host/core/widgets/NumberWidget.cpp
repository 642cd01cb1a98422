#include "host/core/widgets/NumberWidget.h"

#include "host/core/widgets/FocusTracker.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/SpinBox.h"

#include <QtWidgets/QHBoxLayout>

namespace Korvex::Meridane::Designer {
NumberWidget::NumberWidget(bool wholeNumbers, QWidget* parent)
    : QWidget(parent)
    , m_spinBox(new SpinBox(wholeNumbers, this))
    , m_slider(new NumberSlider(this))
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_slider, 1);
    layout->addWidget(m_spinBox, 1);
    m_slider->hide();
    setFocusProxy(m_spinBox);

    connect(m_spinBox, &SpinBox::userModified, this, &NumberWidget::onSpinBoxModified);
    connect(m_slider, &NumberSlider::numberMoved, m_spinBox, &SpinBox::editValue);
    connect(m_slider, &NumberSlider::gestureStarted, this, &NumberWidget::sliderPressed);
    connect(m_slider, &NumberSlider::gestureFinished, this, [this] {
        m_slider->setNumber(m_spinBox->value()); // the value may have been rounded
        Q_EMIT sliderReleased();
    });
    auto* focus = new FocusTracker(this);
    connect(focus, &FocusTracker::entered, this, &NumberWidget::focusedIn);
    connect(focus, &FocusTracker::left, this, &NumberWidget::focusedOut);
    updateSliderRange();
}

void NumberWidget::setDecimals(int decimals)
{
    m_spinBox->setDecimals(decimals);
    updateSliderRange();
}

void NumberWidget::setMinimum(double minimum)
{
    m_spinBox->setMinimum(minimum);
    updateSliderRange();
}

void NumberWidget::setMaximum(double maximum)
{
    m_spinBox->setMaximum(maximum);
    updateSliderRange();
}

void NumberWidget::setSingleStep(double step)
{
    m_spinBox->setSingleStep(step);
    updateSliderRange();
}

void NumberWidget::setSuffix(const QString& suffix)
{
    m_spinBox->setSuffix(suffix);
}

void NumberWidget::showSlider(bool show)
{
    m_slider->setVisible(show);
}

double NumberWidget::value() const
{
    return m_spinBox->value();
}

void NumberWidget::setValue(double value)
{
    m_spinBox->setValue(value);
    // During a drag the handle follows the mouse, not the value written back.
    if (!m_slider->isSliderDown()) {
        m_slider->setNumber(m_spinBox->value());
    }
}

void NumberWidget::setRelativeInputAllowed(bool allowed)
{
    m_spinBox->setRelativeInputAllowed(allowed);
}

NumberOperation NumberWidget::operation() const
{
    return m_spinBox->operation();
}

double NumberWidget::adjusted(double value) const
{
    return m_spinBox->adjusted(value);
}

void NumberWidget::setMixed(bool mixed)
{
    m_spinBox->setMixed(mixed);
}

bool NumberWidget::isMixed() const
{
    return m_spinBox->isMixed();
}

void NumberWidget::commit()
{
    m_spinBox->commit();
}

void NumberWidget::setAccessibleLabel(const QString& label)
{
    setAccessibleName(label);
    m_spinBox->setAccessibleName(label);
    m_slider->setAccessibleName(label);
}

void NumberWidget::updateSliderRange()
{
    m_slider->setNumbers(m_spinBox->minimum(), m_spinBox->maximum(), m_spinBox->singleStep(), m_spinBox->decimals());
    m_slider->setNumber(m_spinBox->value());
}

void NumberWidget::onSpinBoxModified()
{
    if (!m_slider->isSliderDown()) {
        m_slider->setNumber(m_spinBox->value());
    }
    Q_EMIT userModified();
}
} // namespace Korvex::Meridane::Designer
