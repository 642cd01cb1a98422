#pragma once

#include <QFrame>
#include <QTimer>

#include <functional>

class QLabel;
class QPushButton;
class QToolButton;

namespace Korvex::Meridane::Designer {

/**
 * A slim bar above the canvas that tells what happened or was refused, without stopping the user.
 *
 * It hides by itself after a time that grows with the text, not while the mouse rests on it; a message that asks for an
 * action stays until it is closed. A new message replaces the one before.
 */
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    enum class Kind
    {
        Information,
        Warning,
        Error
    };

    explicit MessageBar(QWidget* parent = nullptr);

    void showMessage(const QString& text, Kind kind);
    /// The same with a button \a actionText that runs \a action; stays until it is closed.
    void showMessage(const QString& text, Kind kind, const QString& actionText, std::function<void()> action);

    /// The text that is shown; empty while the bar is hidden.
    [[nodiscard]] QString text() const;
    [[nodiscard]] Kind kind() const { return m_kind; }

protected:
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void present(const QString& text, Kind kind);
    void applyColors();

    QLabel* m_icon;
    QLabel* m_text;
    QPushButton* m_button;
    QToolButton* m_close;
    QTimer m_hideTimer;
    std::function<void()> m_action;
    Kind m_kind = Kind::Information;
    bool m_applyingColors = false;
};

} // namespace Korvex::Meridane::Designer
