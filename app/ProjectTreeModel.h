#pragma once

#include <QAbstractItemModel>
#include <QHash>

#include <memory>
#include <vector>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;

/**
 * The open project as a tree: the project, its screens in their order, and the elements of each screen (and group) with
 * the front-most on top, as in the stack that the user sees on the screen.
 *
 * The content of a screen is read when its row is opened. The model keeps its own copy of the structure, so that views
 * hear of each change at the right moment, and follows the project's signals. Ids are renamed in place; elements are
 * moved among their siblings, into and out of groups and to other screens by drag and drop, each time as one undo step.
 */
class ProjectTreeModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// Beside its name an element has two marks for the canvas: hidden and locked.
    enum Column
    {
        NameColumn,
        HiddenColumn,
        LockedColumn,
        ColumnCount
    };
    /// What a mark's column says.
    enum class Mark
    {
        None,
        Inherited, ///< from a group around the element
        Own
    };
    static constexpr int MarkRole = Qt::UserRole; ///< a Mark as int; invalid where there can be none

    /// \a session outlives the model.
    explicit ProjectTreeModel(EditSession* session, QObject* parent = nullptr);
    ~ProjectTreeModel() override;

    [[nodiscard]] DesignerObject* object(const QModelIndex& index) const;
    /// The index of \a object, reading the rows above it where that has not been done; invalid for a stranger.
    [[nodiscard]] QModelIndex indexOf(DesignerObject* object);

    /// Hides or locks \a objects, or takes that back where the first of them is; one undo step.
    void toggleMark(int column, const QList<DesignerObject*>& objects);

    [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] bool hasChildren(const QModelIndex& parent = {}) const override;
    [[nodiscard]] bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
    [[nodiscard]] Qt::DropActions supportedDropActions() const override;
    [[nodiscard]] QStringList mimeTypes() const override;
    [[nodiscard]] QMimeData* mimeData(const QModelIndexList& indexes) const override;
    [[nodiscard]] bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                       const QModelIndex& parent) const override;
    /// Moves; always false, because the rows have been moved and the view must not remove the dragged ones.
    bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                      const QModelIndex& parent) override;

Q_SIGNALS:
    /// A name or an order was refused; \a message is for the user.
    void refused(const QString& message);

private:
    struct Node;

    [[nodiscard]] Node* node(const QModelIndex& index) const;
    [[nodiscard]] QModelIndex nodeIndex(const Node* node, int column = NameColumn) const;
    [[nodiscard]] QIcon classIcon(const QString& className) const;
    [[nodiscard]] std::unique_ptr<Node> makeNode(DesignerObject* object, Node* parent);
    [[nodiscard]] int rowInList(const DesignerObject* object) const;
    void populate(Node* node);
    void forget(Node* node);
    void onAdded(DesignerObject* object);
    void onRemoved(DesignerObject* object, DesignerObject* parent);
    void onReordered(DesignerObject* object);
    void refresh(DesignerObject* object);
    void refreshBelow(const Node* node);
    [[nodiscard]] QList<DesignerObject*> dragged(const QMimeData* data) const;

    EditSession* m_session;
    std::unique_ptr<Node> m_root;
    QHash<const DesignerObject*, Node*> m_nodes;
    mutable QHash<QString, QIcon> m_icons; // by class name
};

} // namespace Korvex::Meridane::Designer
