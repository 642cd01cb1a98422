#include "app/WindowAction.h"

#include "app/MenuText.h"
#include "app/ThemedIcon.h"

namespace Korvex::Meridane::Designer {

WindowAction::WindowAction(const QString& iconName, const QString& text, const QList<QKeySequence>& shortcuts,
                           QObject* parent)
    : QAction(MenuText::withoutReservedMnemonic(text), parent)
{
    if (!iconName.isEmpty())
        setIcon(ThemedIcon::named(iconName));
    setShortcuts(shortcuts);
    // Desktops move actions by their names into other menus otherwise.
    setMenuRole(QAction::NoRole);
    connect(this, &QAction::changed, this, &WindowAction::updateToolTip);
    updateToolTip();
}

WindowAction::WindowAction(const QString& iconName, const QString& text, QKeySequence::StandardKey key, QObject* parent)
    : WindowAction(iconName, text, QKeySequence::keyBindings(key), parent)
{}

void WindowAction::updateToolTip()
{
    QString plain = iconText(); // the text without marks and dots
    if (!shortcut().isEmpty())
        plain += QStringLiteral(" (%1)").arg(shortcut().toString(QKeySequence::NativeText));
    // Setting it is a change, too.
    if (toolTip() != plain)
        setToolTip(plain);
}

} // namespace Korvex::Meridane::Designer
