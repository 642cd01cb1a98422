#include "host/core/widgets/FontFamilyBox.h"

#include "host/common/LocalizationHelper.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QWheelEvent>
#include <QtWidgets/QLineEdit>

namespace Korvex::Meridane::Designer {
using Common::LocalizationHelper;

FontFamilyBox::FontFamilyBox(QWidget* parent)
    : QFontComboBox(parent)
    , m_family(currentFont().family())
{
    setFocusPolicy(Qt::StrongFocus);
    setInsertPolicy(QComboBox::NoInsert);
    setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Font family")));
    connect(this, &QComboBox::activated, this, &FontFamilyBox::commit);
    // The list has followed already, and shows something of it.
    connect(qGuiApp, &QGuiApplication::fontDatabaseChanged, this, &FontFamilyBox::showFamily);
    showFamily();
}

void FontFamilyBox::setFamily(const QString& family)
{
    if (family == m_family && !m_mixed) {
        return;
    }
    m_family = family;
    m_mixed = false;
    showFamily();
}

void FontFamilyBox::setMixed(bool mixed)
{
    if (mixed != m_mixed) {
        m_mixed = mixed;
        showFamily();
    }
}

bool FontFamilyBox::isInstalled() const
{
    return findText(m_family, Qt::MatchFixedString) >= 0;
}

void FontFamilyBox::commit()
{
    const QString typed = currentText();
    if (typed == (m_mixed ? QString() : m_family)) {
        return;
    }
    if (typed.trimmed().isEmpty()) {
        showFamily();
        return;
    }
    // A typed name in another case is the installed family.
    const int index = findText(typed.trimmed(), Qt::MatchFixedString);
    const QString family = index >= 0 ? itemText(index) : typed.trimmed();
    const bool changed = m_mixed || family != m_family;
    m_family = family;
    m_mixed = false;
    showFamily();
    if (changed) {
        Q_EMIT userModified();
    }
}

void FontFamilyBox::showFamily()
{
    const QSignalBlocker blocker(this);
    const int index = m_mixed ? -1 : findText(m_family, Qt::MatchFixedString);
    setCurrentIndex(index);
    setEditText(m_mixed ? QString() : m_family);
    lineEdit()->setPlaceholderText(m_mixed ? QStringLiteral("\u2014") : QString());
    const bool missing = !m_mixed && index < 0;
    QFont font = lineEdit()->font();
    font.setItalic(missing);
    lineEdit()->setFont(font);
    setToolTip(missing
                   ? LocalizationHelper::coreString(QStringLiteral("The font \"%1\" is not installed.")).arg(m_family)
                   : QString());
    setAccessibleDescription(toolTip());
}

void FontFamilyBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Enter || event->key() == Qt::Key_Return) {
        commit();
    } else if (event->key() == Qt::Key_Escape && currentText() != (m_mixed ? QString() : m_family)) {
        showFamily();
        event->accept();
        return;
    }
    QFontComboBox::keyPressEvent(event);
}

void FontFamilyBox::wheelEvent(QWheelEvent* event)
{
    if (hasFocus()) {
        QFontComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void FontFamilyBox::focusOutEvent(QFocusEvent* event)
{
    if (event->reason() != Qt::PopupFocusReason) {
        commit();
    }
    QFontComboBox::focusOutEvent(event);
}
} // namespace Korvex::Meridane::Designer
