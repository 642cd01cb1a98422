#include "host/core/widgets/SpinBox.h"

#include "host/core/values/NumberExpression.h"
#include "host/core/values/ValueConversion.h"

#include <QtCore/QMetaMethod>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QStyleOptionSpinBox>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Korvex::Meridane::Designer {
namespace {
constexpr double defaultLimit = 1e9;
constexpr int maximumDecimals = 15;
constexpr char16_t mixedSign = u'\u2014';
/** From here on doubles have no decimals. */
constexpr double wholeNumbersOnly = 1e15;
constexpr double largeStep = 10;
constexpr double smallStep = 0.1;

/** What a step counts with these keys held. */
double stepFactor(Qt::KeyboardModifiers modifiers)
{
    if (modifiers.testFlag(Qt::ShiftModifier)) {
        return largeStep;
    }
    return modifiers.testFlag(Qt::ControlModifier) ? smallStep : 1;
}
} // namespace

SpinBox::SpinBox(bool wholeNumbers, QWidget* parent)
    : QDoubleSpinBox(parent)
    , m_minimum(-defaultLimit)
    , m_maximum(defaultLimit)
    , m_decimals(wholeNumbers ? 0 : 2)
{
    setLocale(QLocale::c());
    setKeyboardTracking(false);
    setAccelerated(true);
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &QDoubleSpinBox::valueChanged, this, &SpinBox::onBaseValueChanged);
    const QScopedValueRollback guard(m_synchronising, true);
    QDoubleSpinBox::setDecimals(m_decimals);
    QDoubleSpinBox::setRange(m_minimum, m_maximum);
}

double SpinBox::value() const
{
    if (isEdited()) {
        if (const std::optional<NumberOperation> operation = read(lineEdit()->text())) {
            return adjusted(operation->applyTo(m_value));
        }
    }
    return m_value;
}

void SpinBox::setDecimals(int decimals)
{
    m_decimals = std::clamp(decimals, 0, maximumDecimals);
    const QScopedValueRollback guard(m_synchronising, true);
    QDoubleSpinBox::setDecimals(m_decimals);
    QDoubleSpinBox::setRange(m_minimum, m_maximum); // the base class has rounded the limits
    showValue();
}

void SpinBox::setMinimum(double minimum)
{
    setRange(minimum, std::max(minimum, m_maximum));
}

void SpinBox::setMaximum(double maximum)
{
    setRange(std::min(m_minimum, maximum), maximum);
}

void SpinBox::setRange(double minimum, double maximum)
{
    m_minimum = minimum;
    m_maximum = std::max(minimum, maximum);
    if (!m_loaded) {
        m_value = std::clamp(m_value, m_minimum, m_maximum);
        m_operation = {NumberOperation::Kind::Set, m_value};
    }
    const QScopedValueRollback guard(m_synchronising, true);
    QDoubleSpinBox::setRange(m_minimum, m_maximum);
    showValue();
}

void SpinBox::setSuffix(const QString& suffix)
{
    m_suffix = suffix;
    showValue();
}

double SpinBox::adjusted(double value) const
{
    double result = std::clamp(value, m_minimum, m_maximum);
    if (std::abs(result) < wholeNumbersOnly) {
        result = QString::number(result, 'f', m_decimals).toDouble();
    }
    result = std::clamp(result, m_minimum, m_maximum); // rounding may have left a limit with more decimals
    return result == 0 ? 0 : result;
}

void SpinBox::setMixed(bool mixed)
{
    if (mixed != m_mixed) {
        m_mixed = mixed;
        showValue();
    }
}

void SpinBox::setValue(double value)
{
    if (!std::isfinite(value)) {
        return;
    }
    m_loaded = true;
    m_operation = {NumberOperation::Kind::Set, value};
    if (value == m_value && !m_mixed) {
        return;
    }
    m_value = value;
    m_mixed = false;
    m_refusedText = QString();
    showValue();
}

void SpinBox::editValue(double value)
{
    applyOperation({NumberOperation::Kind::Set, value});
}

void SpinBox::commit()
{
    if (!isEdited()) {
        if (!std::exchange(m_refusedText, QString()).isNull()) {
            Q_EMIT userModified();
        }
        return;
    }
    const QString text = lineEdit()->text();
    QString error;
    if (const std::optional<NumberOperation> operation = read(text, &error)) {
        applyOperation(*operation);
        return;
    }
    if (!withoutSuffix(text).trimmed().isEmpty()
        && isSignalConnected(QMetaMethod::fromSignal(&SpinBox::inputRefused))) {
        m_refusedText = text;
        Q_EMIT inputRefused(error);
        return;
    }
    showValue();
    if (!withoutSuffix(text).trimmed().isEmpty() && isVisible()) {
        QToolTip::showText(mapToGlobal(QPoint(0, height())), error, this);
    }
}

void SpinBox::dropInput()
{
    if (isEdited()) {
        showValue();
    }
    m_refusedText = QString();
}

/** Puts a text back that the base class has replaced because it cannot read it. */
void SpinBox::keepRefusedText()
{
    if (m_refusedText.isNull() || lineEdit()->text() == m_refusedText) {
        return;
    }
    const QScopedValueRollback guard(m_synchronising, true);
    lineEdit()->setText(m_refusedText);
}

/** The one way by which the user's edits reach the value. */
void SpinBox::applyOperation(const NumberOperation& operation)
{
    const double before = m_value;
    const bool wasMixed = m_mixed;
    const bool wasRefused = !std::exchange(m_refusedText, QString()).isNull();
    m_value = adjusted(operation.applyTo(m_value));
    m_loaded = true;
    if (operation.isRelative() && m_relativeInputAllowed) {
        m_operation = operation;
    } else {
        m_operation = {NumberOperation::Kind::Set, m_value};
        m_mixed = false;
    }
    showValue();
    if (wasMixed || wasRefused || m_value != before) {
        Q_EMIT userModified();
    }
}

/** Assistive programs set the value of the base class. */
void SpinBox::onBaseValueChanged(double value)
{
    if (!m_synchronising) {
        editValue(value);
    }
}

QSize SpinBox::minimumSizeHint() const
{
    constexpr double usual = 9999;
    constexpr int cursorWidth = 2;
    ensurePolished();
    int width = 0;
    for (const double end : {std::max(m_minimum, -usual), std::min(m_maximum, usual)}) {
        const QString text = ValueConversion::toQmlString(std::round(end), 0) + m_suffix;
        width = std::max(width, fontMetrics().horizontalAdvance(text) + cursorWidth);
    }
    QStyleOptionSpinBox option;
    initStyleOption(&option);
    const QSize content(width, lineEdit()->minimumSizeHint().height());
    return style()->sizeFromContents(QStyle::CT_SpinBox, &option, content, this);
}

void SpinBox::stepBy(int steps)
{
    step(steps);
}

void SpinBox::step(double steps)
{
    commit();
    dropInput();
    // A part of a step is at least what the decimals show.
    const double least = std::pow(10, -m_decimals);
    const double wanted = singleStep() * steps;
    const double distance = std::abs(wanted) < least ? std::copysign(std::min(least, singleStep()), wanted) : wanted;
    if (wrapping() && (m_value + distance > m_maximum || m_value + distance < m_minimum)) {
        const bool above = distance > 0;
        const bool atEnd = above ? m_value >= m_maximum : m_value <= m_minimum;
        // A step beyond the end stops there first.
        editValue(atEnd == above ? m_minimum : m_maximum);
    } else if (m_relativeInputAllowed) {
        applyOperation({NumberOperation::Kind::Add, distance});
    } else {
        editValue(m_value + distance);
    }
    if (hasFocus()) {
        selectAll();
    }
}

QAbstractSpinBox::StepEnabled SpinBox::stepEnabled() const
{
    if (isReadOnly()) {
        return StepNone;
    }
    const bool always = wrapping() || (m_mixed && m_relativeInputAllowed);
    const double present = value();
    StepEnabled result = StepNone;
    result.setFlag(StepUpEnabled, always || present < m_maximum);
    result.setFlag(StepDownEnabled, always || present > m_minimum);
    return result;
}

QString SpinBox::textFromValue(double value) const
{
    // The base class knows a rounded and limited copy of the value.
    if (value == QDoubleSpinBox::value()) {
        return m_mixed ? QString() : ValueConversion::toQmlString(m_value, m_decimals);
    }
    return ValueConversion::toQmlString(value, m_decimals);
}

double SpinBox::valueFromText(const QString& text) const
{
    if (text != shownText()) {
        if (const std::optional<NumberOperation> operation = read(text)) {
            return adjusted(operation->applyTo(m_value));
        }
    }
    return QDoubleSpinBox::value();
}

QValidator::State SpinBox::validate(QString& text, int& position) const
{
    Q_UNUSED(position);
    const auto relative =
        m_relativeInputAllowed ? NumberExpression::RelativeInput::Allowed : NumberExpression::RelativeInput::Refused;
    const QStringView expression = withoutSuffix(text);
    if (!NumberExpression::mayBecomeExpression(expression, relative)) {
        return QValidator::Invalid;
    }
    return NumberExpression::parse(expression, relative) ? QValidator::Acceptable : QValidator::Intermediate;
}

void SpinBox::fixup(QString& text) const
{
    Q_UNUSED(text); // commit() decides about incomplete text
}

bool SpinBox::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Escape && isEdited()) {
            key->accept();
            return true;
        }
        // With nothing typed, undo and redo are the project's, not those of the line of text.
        if (!isEdited() && (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo))) {
            key->ignore();
            return true;
        }
    }
    return QDoubleSpinBox::event(event);
}

void SpinBox::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (isEdited()) {
            const bool wasRefused = !m_refusedText.isNull();
            dropInput();
            selectAll();
            event->setAccepted(!wasRefused); // whoever shows the message takes it away
            return;
        }
        break;
    case Qt::Key_Up:
    case Qt::Key_Down:
        if (const double factor = stepFactor(event->modifiers()); factor != 1 && !isReadOnly()) {
            step(event->key() == Qt::Key_Up ? factor : -factor);
            event->accept();
            return;
        }
        break;
    case Qt::Key_Enter:
    case Qt::Key_Return:
        commit();
        QDoubleSpinBox::keyPressEvent(event);
        keepRefusedText();
        selectAll();
        return;
    default:
        break;
    }
    QDoubleSpinBox::keyPressEvent(event);
}

void SpinBox::wheelEvent(QWheelEvent* event)
{
    const double factor = stepFactor(event->modifiers());
    if (!hasFocus()) {
        event->ignore();
    } else if (factor == 1) {
        QDoubleSpinBox::wheelEvent(event);
    } else {
        if (event->angleDelta().y() != 0) {
            step(event->angleDelta().y() > 0 ? factor : -factor);
        }
        event->accept();
    }
}

void SpinBox::focusInEvent(QFocusEvent* event)
{
    QDoubleSpinBox::focusInEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        Q_EMIT focusedIn();
    }
}

void SpinBox::focusOutEvent(QFocusEvent* event)
{
    // A menu over the field takes the focus for a moment only.
    const bool leaving = event->reason() != Qt::PopupFocusReason;
    if (leaving) {
        commit();
    }
    QDoubleSpinBox::focusOutEvent(event);
    keepRefusedText();
    if (leaving) {
        Q_EMIT focusedOut();
    }
}

void SpinBox::hideEvent(QHideEvent* event)
{
    commit();
    QDoubleSpinBox::hideEvent(event);
    keepRefusedText();
}

void SpinBox::showValue()
{
    const QScopedValueRollback guard(m_synchronising, true);
    lineEdit()->setPlaceholderText(m_mixed ? QString(QChar(mixedSign)) : QString());
    const QString suffix = m_mixed ? QString() : m_suffix;
    if (QDoubleSpinBox::suffix() != suffix) {
        QDoubleSpinBox::setSuffix(suffix);
    }
    QDoubleSpinBox::setValue(m_value);
}

QString SpinBox::shownText() const
{
    return m_mixed ? QString() : ValueConversion::toQmlString(m_value, m_decimals) + m_suffix;
}

bool SpinBox::isEdited() const
{
    return lineEdit()->text() != shownText();
}

/** The typed part of @p text. A pasted text may bring the suffix a second time, with or without its blanks. */
QStringView SpinBox::withoutSuffix(QStringView text) const
{
    const QStringView suffix = QStringView(m_suffix).trimmed();
    while (!suffix.isEmpty() && text.trimmed().endsWith(suffix)) {
        text = text.trimmed().chopped(suffix.size());
    }
    return text;
}

std::optional<NumberOperation> SpinBox::read(QStringView text, QString* error) const
{
    const auto relative =
        m_relativeInputAllowed ? NumberExpression::RelativeInput::Allowed : NumberExpression::RelativeInput::Refused;
    QStringView expression = withoutSuffix(text).trimmed();
    // An operator that nothing follows yet does not take back the number before it.
    while (expression.size() > 1 && QStringView(u"+-*/").contains(expression.back())) {
        expression = expression.chopped(1).trimmed();
    }
    return NumberExpression::parse(expression, relative, error);
}
} // namespace Korvex::Meridane::Designer
