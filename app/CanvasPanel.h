#pragma once

#include <QWidget>

class QStackedWidget;

namespace Korvex::Meridane::Designer {

class CanvasView;
class EditSession;
class ScreenTabs;

/// The middle of the window: the tabs of the screens above the canvas, or an invitation where there is no screen.
class CanvasPanel : public QWidget
{
    Q_OBJECT

public:
    /// \a session outlives the panel.
    explicit CanvasPanel(EditSession* session, QWidget* parent = nullptr);

    [[nodiscard]] CanvasView* view() const { return m_view; }
    [[nodiscard]] ScreenTabs* tabs() const { return m_tabs; }

Q_SIGNALS:
    void addScreenRequested();

private:
    [[nodiscard]] QWidget* makeInvitation() const;
    void showRightPage();

    EditSession* m_session;
    CanvasView* m_view;
    ScreenTabs* m_tabs;
    QStackedWidget* m_pages;
    QWidget* m_invitation;
};

} // namespace Korvex::Meridane::Designer
