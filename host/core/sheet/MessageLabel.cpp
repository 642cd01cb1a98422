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
    // Only the theme, not the colour that this very label set.
    if (event->type() == QEvent::ApplicationPaletteChange
        || (event->type() == QEvent::PaletteChange && palette().color(QPalette::WindowText) != errorColor(palette())))
        applyColor();
}

void MessageLabel::applyColor()
{
    const QPalette theme = parentWidget() ? parentWidget()->palette() : QPalette();
    QPalette own = palette();
    const QColor color = errorColor(theme);
    if (own.color(QPalette::WindowText) == color)
        return;
    own.setColor(QPalette::WindowText, color);
    setPalette(own);
}

} // namespace Korvex::Meridane::Designer
