#pragma once

#include <QTreeView>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;
class ProjectTreeModel;

/**
 * The project tree: shows the selection of the canvas and selects on it.
 *
 * F2 renames in place, rows are dragged to another place among their siblings, and the context menu offers the actions
 * that the window has added to the widget (QWidget::addAction()).
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

public Q_SLOTS:
    /// Opens the editor for the name of the current row.
    void renameCurrent();

Q_SIGNALS:
    void refused(const QString& message);

protected:
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    void selectInSession();
    void showSessionSelection();

    EditSession* m_session;
    ProjectTreeModel* m_model;
    bool m_following = false; // a selection is being copied from one side to the other
};

} // namespace Korvex::Meridane::Designer
