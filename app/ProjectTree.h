#pragma once

#include <QTreeView>

#include <memory>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;
class ProjectTreeModel;

/**
 * The project tree: shows the selection of the canvas and selects on it.
 *
 * F2 renames in place, rows are dragged to other places, an eye and a padlock beside each element hide and lock it on the
 * canvas (together with the other selected ones where it is selected), and the context menu offers the actions that the
 * window has added to the widget (QWidget::addAction()).
 */
class ProjectTree : public QTreeView
{
    Q_OBJECT

public:
    /// \a session outlives the tree.
    explicit ProjectTree(EditSession* session, QWidget* parent = nullptr);
    ~ProjectTree() override;

    [[nodiscard]] ProjectTreeModel* treeModel() const { return m_model; }
    /// The objects of the selected rows.
    [[nodiscard]] QList<DesignerObject*> selectedObjects() const;
    /// Appends \a actions to the context menu, which shows those that can act; null pointers separate.
    void offer(const QList<QAction*>& actions);

public Q_SLOTS:
    /// Opens the editor for the name of the current row.
    void renameCurrent();
    /// Shows only the rows whose name or class contains \a text, with what they stand in; all with an empty one. Screens
    /// are read for it.
    void setFilter(const QString& text);
    /// Opens the rows of everything that holds something, or closes all but those of the screens.
    void openAll();
    void closeAll();

Q_SIGNALS:
    void refused(const QString& message);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    /// Marks that the mouse goes over while it is held down: they change together when it is let go.
    struct Rub;

    void selectInSession();
    void showSessionSelection();
    [[nodiscard]] bool pressMark(const QMouseEvent* event);
    void rubTo(int y);
    void endRub();
    bool filterBelow(const QModelIndex& parent);
    void unhideBelow(const QModelIndex& parent);
    void filterLater();

    EditSession* m_session;
    ProjectTreeModel* m_model;
    std::unique_ptr<Rub> m_rub; // null: none is under way
    QString m_filter;
    bool m_filterPending = false;
    bool m_following = false; // a selection is being copied from one side to the other
};

} // namespace Korvex::Meridane::Designer
