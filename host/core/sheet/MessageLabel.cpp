#include "host/core/sheet/MessageLabel.h"

#include "host/core/sheet/SheetColors.h"

#include <QAccessible>
#include <QEvent>

namespace Korvex::Meridane::Designer {

MessageLabel::MessageLabel(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("error"));
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::TextSelectableByMouse);
    setWordWrap(true);
    applyColor();
    hide();
}

MessageLabel::~MessageLabel() = default;

void MessageLabel::setMessage(const QString& message)
{
    if (text() == message)
        return;
    setText(message);
    setVisible(!message.isEmpty());
    if (!message.isEmpty()) {
        QAccessibleEvent alert(this, QAccessible::Alert);
        QAccessible::updateAccessibility(&alert);
    }
}

void MessageLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange)
        applyColor();
}

void MessageLabel::applyColor()
{
    const QPalette theme = parentWidget() ? parentWidget()->palette() : QPalette();
    QPalette own = palette();
    const QColor color = errorColor(theme);
    if (own.color(QPalette::WindowText) == color)
        return; // also ends the change of palette that this function itself makes
    own.setColor(QPalette::WindowText, color);
    setPalette(own);
}

} // namespace Korvex::Meridane::Designer
