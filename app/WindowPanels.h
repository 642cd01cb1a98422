#pragma once

#include <QHash>
#include <QList>
#include <QObject>
#include <QPointer>

class QDockWidget;
class QMainWindow;
class QMenu;
class QWidget;

namespace Korvex::Meridane::Designer {

/**
 * The panels around the canvas: how they are arranged, how they come back, and how the keyboard goes through them.
 *
 * A panel keeps the width that its user gave it: a window that becomes too small for it takes some away, and gives it back
 * when there is room again.
 */
class WindowPanels : public QObject
{
    Q_OBJECT

public:
    explicit WindowPanels(QMainWindow* window);

    /// Adds an empty panel to \a area. Its name is that of its state in the settings, and of the action that shows it.
    QDockWidget* add(const QString& name, const QString& title, Qt::DockWidgetArea area);
    /// The panels in the order in which they were added.
    [[nodiscard]] const QList<QDockWidget*>& docks() const { return m_docks; }
    /// Adds an entry for each panel, and one that arranges them as they were at the start.
    void addTo(QMenu* menu);

    /// Arranges the panels as the window was left last, or as the program comes. Once, after all have been added.
    void arrange();
    /// Arranges the panels as the program comes.
    void reset();
    /// Hides all panels, or shows again those that were hidden by it. The settings keep the arrangement with panels.
    void setAllHidden(bool hidden);
    /// Writes size and arrangement of the window into the settings.
    void store();
    /// Shows \a dock in front of those that share its place.
    static void reveal(QDockWidget* dock);

    /// Gives the focus to the next (\a steps 1) or previous (-1) of the panels that can be seen and of \a center, from left to
    /// right; in a panel, to what had it there last.
    void stepFocus(QWidget* center, int steps);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void arrangeAsTheProgramComes();
    void growBack();
    void rememberMovedEdges();
    [[nodiscard]] QList<QWidget*> focusRing(QWidget* center) const;
    void followFocus(QWidget* old, QWidget* now);

    QMainWindow* m_window;
    QList<QDockWidget*> m_docks;
    QHash<QDockWidget*, int> m_widths; // pixels, as the user or the program gave them
    QHash<QDockWidget*, int> m_widthsAtPress; // of the mouse, on an edge
    QHash<QDockWidget*, QPointer<QWidget>> m_lastFocus; // within each panel
    QByteArray m_initialState;
    QByteArray m_stateBeforeHiding;
};

} // namespace Korvex::Meridane::Designer
