#include "host/core/widgets/ComboBox.h"

#include <QtGui/QFocusEvent>
#include <QtGui/QWheelEvent>

namespace Korvex::Meridane::Designer {
ComboBox::ComboBox(const QMap<QString, QString>& items, QWidget* parent)
    : QComboBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setPlaceholderText(QStringLiteral("\u2014"));
    for (auto item = items.cbegin(); item != items.cend(); ++item) {
        addKeyedItem(item.key(), item.value());
    }
    connect(this, &QComboBox::activated, this, &ComboBox::onActivated);
}

void ComboBox::addKeyedItem(const QString& key, const QString& text)
{
    addItem(text, key);
    if (count() == 1) {
        setCurrentIndex(0); // with a placeholder Qt leaves the box without a choice
        m_key = key;
    }
}

QString ComboBox::currentItemKey() const
{
    return currentData().toString();
}

void ComboBox::setCurrentItemKey(const QString& key)
{
    m_mixed = false;
    setCurrentIndex(findData(key, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
    m_key = currentItemKey();
}

void ComboBox::setMixed(bool mixed)
{
    if (mixed == m_mixed) {
        return;
    }
    m_mixed = mixed;
    setCurrentIndex(mixed ? -1 : findData(m_key, Qt::UserRole, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

void ComboBox::onActivated()
{
    const QString key = currentItemKey();
    if (key == m_key && !m_mixed) {
        return;
    }
    m_key = key;
    m_mixed = false;
    Q_EMIT userModified();
}

void ComboBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void ComboBox::focusInEvent(QFocusEvent* event)
{
    QComboBox::focusInEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        Q_EMIT focusedIn();
    }
}

void ComboBox::focusOutEvent(QFocusEvent* event)
{
    QComboBox::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) {
        Q_EMIT focusedOut();
    }
}
} // namespace Korvex::Meridane::Designer
