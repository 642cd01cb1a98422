#include "gradients/GradientStopWidget.h"

#include "gradients/WholePercent.h"

#include "host/core/objects/ElementText.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/ItemButton.h"
#include "host/core/widgets/SpinBox.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>

#include <utility>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int MostPercent = 100;
constexpr int SmallestField = 60; // pixels wide
constexpr int PartGap = 4; // pixels

bool asksToAdd(int key)
{
    return key == Qt::Key_Enter || key == Qt::Key_Return || key == Qt::Key_Plus;
}

} // namespace

GradientStopWidget::GradientStopWidget(bool removable, QWidget* parent)
    : QWidget(parent)
    , m_position(new SpinBox(true, this))
    , m_color(new ColorWidget(TransparencyAllowed, true, this))
    , m_button(new ItemButton(removable ? ItemButton::Action::Remove : ItemButton::Action::Add, this))
    , m_removable(removable)
{
    m_position->setRange(0, MostPercent);
    m_position->setSuffix(elementText("%"));
    m_position->setSingleStep(1);
    m_position->setValue(0);
    m_position->setMinimumWidth(SmallestField);
    m_color->setColor(QColor(248, 151, 29, 255));
    QSizePolicy place = m_button->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    m_button->setSizePolicy(place);
    if (removable) {
        m_button->setToolTip(elementText("Remove this gradient stop"));
    } else {
        m_position->setAccessibleName(elementText("Position of the new gradient stop"));
        m_color->setAccessibleLabel(elementText("Color of the new gradient stop"));
        m_button->setToolTip(elementText("Add this gradient stop"));
        m_button->setAccessibleName(elementText("Add this gradient stop"));
        m_position->installEventFilter(this);
    }

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(PartGap);
    row->addWidget(m_position, 1);
    row->addWidget(m_color);
    row->addWidget(m_button);
    // The height is always that of the size hint.
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    setFocusProxy(m_position);

    connect(m_position, &SpinBox::userModified, this, &GradientStopWidget::userModifiedPosition);
    connect(m_position, &SpinBox::userModified, this, &GradientStopWidget::userModified);
    connect(m_color, &ColorWidget::userModified, this, &GradientStopWidget::userModifiedColor);
    connect(m_color, &ColorWidget::userModified, this, &GradientStopWidget::userModified);
    connect(m_button, &ItemButton::clicked, this, &GradientStopWidget::onButtonClicked);
}

GradientStopWidget::~GradientStopWidget() = default;

double GradientStopWidget::position() const
{
    return m_position->value() / MostPercent;
}

const QColor& GradientStopWidget::color() const
{
    return m_color->color();
}

QGradientStop GradientStopWidget::requestedStop() const
{
    return m_requested.value_or(gradientStop());
}

void GradientStopWidget::setNumber(int number)
{
    if (number == m_number)
        return;
    m_number = number;
    m_position->setAccessibleName(elementText("Position of gradient stop %1").arg(number));
    m_color->setAccessibleLabel(elementText("Color of gradient stop %1").arg(number));
    m_button->setAccessibleName(elementText("Remove gradient stop %1").arg(number));
}

void GradientStopWidget::commitTyping()
{
    m_position->commit();
}

bool GradientStopWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_position && event->type() == QEvent::KeyPress) {
        const int key = static_cast<const QKeyEvent*>(event)->key();
        if (asksToAdd(key)) {
            // The click comes a moment later; what is typed until then belongs to the next stop.
            m_requested = gradientStop();
            m_pending = true;
            m_button->animateClick();
        }
        if (key == Qt::Key_Plus)
            QMetaObject::invokeMethod(this, &GradientStopWidget::dropPlus, Qt::QueuedConnection);
    } else if (watched == m_position && event->type() == QEvent::FocusOut && m_pending) {
        // The click could come when another list is shown.
        m_answered = true;
        add();
    }
    return QWidget::eventFilter(watched, event);
}

void GradientStopWidget::setGradientStop(const QGradientStop& stop)
{
    setPosition(stop.first);
    setColor(stop.second);
}

void GradientStopWidget::setPosition(double position)
{
    const int percent = wholePercent(position);
    if (percent >= 0 && percent <= MostPercent)
        m_position->setValue(percent); // which leaves a present value, and what is being typed over it, alone
}

void GradientStopWidget::setColor(const QColor& color)
{
    if (color != m_color->color())
        m_color->setColor(color);
}

void GradientStopWidget::setButtonVisible(bool visible)
{
    if (visible == m_buttonVisible)
        return;
    m_buttonVisible = visible;
    m_button->setVisible(visible);
}

void GradientStopWidget::onButtonClicked()
{
    if (m_removable) {
        Q_EMIT requestRemove();
    } else if (!std::exchange(m_answered, false)) {
        if (!m_pending)
            commitTyping();
        add();
    }
}

void GradientStopWidget::add()
{
    const QPointer<GradientStopWidget> self(this);
    m_pending = false;
    Q_EMIT requestAdd();
    if (self)
        m_requested.reset();
}

/// The "+" that asked to add is no part of the number, and the next number replaces this one.
void GradientStopWidget::dropPlus()
{
    const double percent = m_position->value();
    m_position->clear();
    m_position->commit();
    m_position->setValue(percent);
    if (m_position->hasFocus())
        m_position->selectAll();
}

} // namespace Korvex::Meridane::Designer
