#pragma once

#include <QTabBar>

namespace Korvex::Meridane::Designer {

class EditSession;
class Screen;

/// A tab for each screen of the project: chooses the screen that is shown, reorders screens by dragging, and asks for the
/// menu of a screen.
class ScreenTabs : public QTabBar
{
    Q_OBJECT

public:
    /// \a session outlives the tabs.
    explicit ScreenTabs(EditSession* session, QWidget* parent = nullptr);

    [[nodiscard]] Screen* screenAt(int index) const;
    [[nodiscard]] QSize sizeHint() const override;
    /// Keeps no room for scroll buttons that are not there.
    [[nodiscard]] QSize minimumSizeHint() const override;

public Q_SLOTS:
    /// Goes \a steps tabs on, round from the last to the first.
    void step(int steps);

Q_SIGNALS:
    /// The menu of \a screen (null: beside the tabs) is wanted at \a globalPos.
    void menuRequested(Screen* screen, const QPoint& globalPos);

protected:
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void refill();
    void refillLater();

    EditSession* m_session;
    bool m_following = false; // the tabs follow the session, not the other way round
    bool m_refillPending = false;
};

} // namespace Korvex::Meridane::Designer
