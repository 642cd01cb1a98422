#pragma once

#include <QAction>
#include <QKeySequence>

namespace Korvex::Meridane::Designer {

/// An action of the main window: icon of ours, text without a mnemonic that the canvas needs, standard or own shortcut,
/// and a tooltip that follows the text and names the shortcut.
class WindowAction : public QAction
{
    Q_OBJECT

public:
    /// \a iconName: a drawing of app/icons, or empty. \a text: localised.
    WindowAction(const QString& iconName, const QString& text, const QList<QKeySequence>& shortcuts, QObject* parent);
    /// The same with the platform's shortcuts for \a key.
    WindowAction(const QString& iconName, const QString& text, QKeySequence::StandardKey key, QObject* parent);

private:
    void updateToolTip();
};

} // namespace Korvex::Meridane::Designer
