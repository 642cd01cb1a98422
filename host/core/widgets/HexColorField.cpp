#include "host/core/widgets/HexColorField.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/values/ValueConversion.h"

#include <QtCore/QMetaMethod>
#include <QtGui/QKeyEvent>

#include <utility>

namespace Korvex::Meridane::Designer {
HexColorField::HexColorField(TransparentOption transparency, QWidget* parent)
    : QLineEdit(parent)
    , m_transparency(transparency)
{
    setAccessibleName(Common::LocalizationHelper::coreString(QStringLiteral("Color as text")));
    setMaxLength(40);
    setMinimumWidth(fontMetrics().horizontalAdvance(QStringLiteral("#DDDDDDDDD")));
    showColor();
}

void HexColorField::setColor(const QColor& color)
{
    if (color == m_color && !m_mixed) {
        return;
    }
    m_color = color;
    m_mixed = false;
    showColor();
}

void HexColorField::setMixed(bool mixed)
{
    if (mixed != m_mixed) {
        m_mixed = mixed;
        showColor();
    }
}

void HexColorField::commit()
{
    if (text() == shownText()) {
        if (std::exchange(m_refused, false)) {
            Q_EMIT userModified();
        }
        return;
    }
    const QColor typed = typedColor();
    if (!typed.isValid() && !text().trimmed().isEmpty()
        && isSignalConnected(QMetaMethod::fromSignal(&HexColorField::inputRefused))) {
        m_refused = true;
        Q_EMIT inputRefused(Common::LocalizationHelper::coreString(QStringLiteral("\"%1\" is no color. Write #rrggbb, "
                                                                                  "#aarrggbb or the name of a color."))
                                .arg(text().trimmed()));
        return;
    }
    const bool changed = (typed.isValid() && (m_mixed || typed != m_color)) || m_refused;
    if (typed.isValid()) {
        m_color = typed;
        m_mixed = false;
    }
    showColor();
    if (changed) {
        Q_EMIT userModified();
    }
}

void HexColorField::dropInput()
{
    if (text() != shownText()) {
        showColor();
    }
    m_refused = false;
}

bool HexColorField::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto* key = static_cast<QKeyEvent*>(event);
        const bool edited = text() != shownText();
        if (key->key() == Qt::Key_Escape && edited) {
            key->accept();
            return true;
        }
        if (!edited && (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo))) {
            key->ignore();
            return true;
        }
    }
    return QLineEdit::event(event);
}

void HexColorField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && text() != shownText()) {
        const bool wasRefused = m_refused;
        dropInput();
        selectAll();
        event->setAccepted(!wasRefused); // whoever shows the message takes it away
        return;
    }
    if (event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return) {
        const bool edited = text() != shownText();
        commit();
        selectAll();
        if (edited) {
            event->accept(); // the key has done its work here and closes nothing
            return;
        }
    }
    QLineEdit::keyPressEvent(event);
}

void HexColorField::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::PopupFocusReason) {
        commit();
    }
    QLineEdit::focusOutEvent(event);
}

void HexColorField::showColor()
{
    m_refused = false;
    setPlaceholderText(m_mixed ? QStringLiteral("\u2014") : QString());
    setText(shownText());
    setCursorPosition(0);
}

QString HexColorField::shownText() const
{
    return m_mixed ? QString() : ValueConversion::toString(m_color);
}

QColor HexColorField::typedColor() const
{
    const QString typed = text().trimmed();
    bool ok = false;
    QColor color = ValueConversion::toColor(typed, &ok);
    if (!ok) {
        color = ValueConversion::toColor(u'#' + typed, &ok);
    }
    if (ok && m_transparency == OpaqueOnly) {
        color.setAlpha(255);
    }
    return color;
}
} // namespace Korvex::Meridane::Designer
