#pragma once

#include <QWidget>

#include <functional>

class QToolButton;

namespace Korvex::Meridane::Designer {

class Screen;
class ScreenActions;
class ScreensPanel;

/// The list of the screens below a row of buttons for what is done with the one whose row is current.
class ScreenListPanel : public QWidget
{
    Q_OBJECT

public:
    /// Takes \a list into itself; \a actions outlive the panel.
    ScreenListPanel(ScreensPanel* list, ScreenActions* actions, QWidget* parent = nullptr);

private:
    QToolButton* addButton(const char* icon, const QString& text, const std::function<void(Screen*)>& run);
    void update();

    ScreensPanel* m_list;
    QList<QToolButton*> m_buttons; // those that need a screen
    QToolButton* m_add;
};

} // namespace Korvex::Meridane::Designer
