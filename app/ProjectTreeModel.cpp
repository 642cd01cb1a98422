#include "app/ProjectTreeModel.h"

#include "app/ElementPicture.h"
#include "app/ProjectTreeRow.h"

#include "host/core/arrange/ElementClipboard.h"
#include "host/core/arrange/SiblingOrder.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/UnknownElement.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QFont>
#include <QIcon>
#include <QMimeData>
#include <QSet>

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

const QString RowsMimeType = QStringLiteral("application/x-meridane-tree-rows");

} // namespace

/// One row; the rows of a parent are numbered as they stand.
struct ProjectTreeModel::Node
{
    DesignerObject* object = nullptr;
    Node* parent = nullptr;
    int row = 0;
    bool populated = false;
    std::vector<std::unique_ptr<Node>> children;

    void renumber(std::size_t from = 0)
    {
        for (std::size_t i = from; i < children.size(); ++i)
            children[i]->row = int(i);
    }
};

ProjectTreeModel::ProjectTreeModel(EditSession* session, QObject* parent)
    : QAbstractItemModel(parent)
    , m_session(session)
    , m_root(std::make_unique<Node>())
{
    Project* project = session->project();
    m_root->populated = true;
    m_root->children.push_back(makeNode(project, m_root.get()));
    populate(m_root->children.front().get());

    connect(project, &Project::objectAdded, this, &ProjectTreeModel::onAdded);
    connect(project, &Project::objectRemoved, this, &ProjectTreeModel::onRemoved);
    connect(project, &Project::objectReordered, this, &ProjectTreeModel::onReordered);
    connect(project, &Project::objectRenamed, this, &ProjectTreeModel::refresh);
    connect(project, &Project::objectPropertyChanged, this, [this](DesignerObject* object) {
        // Of all values only the project's name is shown here.
        if (object == m_session->project())
            refresh(object);
    });
    connect(project, &Project::projectBrowserUpdateRequested, this, [this] { refreshBelow(m_root.get()); });
    connect(project, &Project::objectMarked, this, [this](DesignerObject* object) {
        // A group passes its marks on.
        refresh(object);
        if (const Node* marked = m_nodes.value(object))
            refreshBelow(marked);
    });
    connect(session, &EditSession::currentScreenChanged, this, [this](Screen* screen) { refresh(screen); });
}

ProjectTreeModel::~ProjectTreeModel() = default;

DesignerObject* ProjectTreeModel::object(const QModelIndex& index) const
{
    return index.isValid() ? node(index)->object : nullptr;
}

QModelIndex ProjectTreeModel::indexOf(DesignerObject* object)
{
    if (!object)
        return {};
    if (Node* known = m_nodes.value(object))
        return nodeIndex(known);
    DesignerObject* parent = object->parentObject();
    if (!indexOf(parent).isValid())
        return {};
    populate(m_nodes.value(parent));
    return nodeIndex(m_nodes.value(object));
}

QModelIndex ProjectTreeModel::index(int row, int column, const QModelIndex& parent) const
{
    const Node* above = node(parent);
    if (column < 0 || column >= ColumnCount || row < 0 || row >= int(above->children.size()))
        return {};
    return createIndex(row, column, above->children[std::size_t(row)].get());
}

QModelIndex ProjectTreeModel::parent(const QModelIndex& child) const
{
    return child.isValid() ? nodeIndex(node(child)->parent) : QModelIndex();
}

int ProjectTreeModel::rowCount(const QModelIndex& parent) const
{
    return parent.column() > 0 ? 0 : int(node(parent)->children.size());
}

int ProjectTreeModel::columnCount(const QModelIndex&) const
{
    return ColumnCount;
}

bool ProjectTreeModel::hasChildren(const QModelIndex& parent) const
{
    if (parent.column() > NameColumn)
        return false;
    const Node* above = node(parent);
    return !above->children.empty() || !above->populated;
}

bool ProjectTreeModel::canFetchMore(const QModelIndex& parent) const
{
    return parent.column() <= NameColumn && !node(parent)->populated;
}

void ProjectTreeModel::fetchMore(const QModelIndex& parent)
{
    populate(node(parent));
}

QVariant ProjectTreeModel::data(const QModelIndex& index, int role) const
{
    const DesignerObject* shown = object(index);
    if (!shown)
        return {};
    const ProjectTreeRow row(shown);
    if (index.column() != NameColumn)
        return row.markData(index.column(), role);
    if (role == Qt::FontRole && shown == m_session->currentScreen()) {
        QFont font;
        font.setBold(true);
        return font;
    }
    const QVariant said = row.nameData(role);
    return role == Qt::DecorationRole && !said.isValid() ? classIcon(shown->className()) : said;
}

QIcon ProjectTreeModel::classIcon(const QString& className) const
{
    auto icon = m_icons.constFind(className);
    if (icon == m_icons.constEnd())
        icon = m_icons.insert(className, ElementPicture::icon(className));
    return *icon;
}

bool ProjectTreeModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    DesignerObject* changed = object(index);
    if (role != Qt::EditRole || !changed)
        return false;
    const QString text = value.toString().trimmed();
    if (text == data(index, Qt::EditRole).toString())
        return true;
    const EditResult result = qobject_cast<Project*>(changed)
                                  ? m_session->setProperty(changed, QStringLiteral("name"), text)
                                  : m_session->rename(changed, text);
    if (!result.message.isEmpty())
        Q_EMIT refused(result.message);
    return result.accepted;
}

Qt::ItemFlags ProjectTreeModel::flags(const QModelIndex& index) const
{
    const DesignerObject* shown = object(index);
    if (!shown)
        return {};
    Qt::ItemFlags flags = Qt::ItemIsEnabled | Qt::ItemIsSelectable;
    if (index.column() != NameColumn)
        return flags;
    const bool movable = !qobject_cast<const Project*>(shown);
    if (movable)
        flags |= Qt::ItemIsDragEnabled;
    const bool unreadable = ProjectTreeRow(shown).isUnreadable();
    if (!unreadable && !qobject_cast<const UnknownElement*>(shown))
        flags |= Qt::ItemIsEditable;
    if (!unreadable && shown->childList())
        flags |= Qt::ItemIsDropEnabled;
    return flags;
}

Qt::DropActions ProjectTreeModel::supportedDropActions() const
{
    return Qt::MoveAction;
}

QStringList ProjectTreeModel::mimeTypes() const
{
    return {RowsMimeType};
}

QMimeData* ProjectTreeModel::mimeData(const QModelIndexList& indexes) const
{
    // Each row is named by the rows above it, from the project on; the data is used inside this window only.
    QStringList paths;
    for (const QModelIndex& dragged : indexes) {
        if (dragged.column() != NameColumn)
            continue; // each row comes with all of its columns
        QStringList rows;
        for (QModelIndex at = dragged; at.isValid(); at = at.parent())
            rows.prepend(QString::number(at.row()));
        paths.append(rows.join(QLatin1Char('/')));
    }
    auto* data = new QMimeData;
    data->setData(RowsMimeType, paths.join(QLatin1Char('\n')).toUtf8());
    return data;
}

bool ProjectTreeModel::canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int,
                                       const QModelIndex& parent) const
{
    const DesignerObject* owner = object(parent);
    if (action != Qt::MoveAction || !owner
        || !flags(parent.siblingAtColumn(NameColumn)).testFlag(Qt::ItemIsDropEnabled))
        return false;
    const QList<DesignerObject*> objects = dragged(data);
    // Screens are moved among each other, to a place between two; elements go wherever elements can be.
    const bool areScreens = qobject_cast<const Project*>(owner);
    if (areScreens && row < 0)
        return false;
    return !objects.isEmpty() && std::all_of(objects.cbegin(), objects.cend(), [&](const DesignerObject* object) {
        if (areScreens)
            return object->parentObject() == owner;
        return qobject_cast<const Element*>(object) && !ObjectTree::isWithin(owner, object);
    });
}

bool ProjectTreeModel::dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                                    const QModelIndex& parent)
{
    if (!canDropMimeData(data, action, row, column, parent))
        return false;
    DesignerObject* owner = object(parent);
    const bool areScreens = qobject_cast<Project*>(owner);
    const QList<DesignerObject*> objects = areScreens ? dragged(data) : ElementClipboard::copyable(dragged(data));
    // The gap at `row` as a place among the siblings that stay, counted as the list counts.
    populate(node(parent));
    const QSet<DesignerObject*> moving(objects.cbegin(), objects.cend());
    int above = 0;
    int staying = 0;
    for (const auto& child : node(parent)->children) {
        if (moving.contains(child->object))
            continue;
        ++staying;
        if (child->row < row)
            ++above;
    }
    const int place = areScreens ? above : staying - (row < 0 ? 0 : above);
    const bool areSiblings = std::all_of(objects.cbegin(), objects.cend(), [owner](const DesignerObject* object) {
        return object->parentObject() == owner;
    });
    const EditResult result = areSiblings ? SiblingOrder::moveTo(m_session->project(), owner, objects, place)
                                          : m_session->moveToParent(objects, owner, place);
    if (!result.message.isEmpty())
        Q_EMIT refused(result.message);
    return false;
}

ProjectTreeModel::Node* ProjectTreeModel::node(const QModelIndex& index) const
{
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : m_root.get();
}

QModelIndex ProjectTreeModel::nodeIndex(const Node* node, int column) const
{
    return !node || node == m_root.get() ? QModelIndex() : createIndex(node->row, column, node);
}

void ProjectTreeModel::toggleMark(int column, const QList<DesignerObject*>& objects)
{
    const QString mark = column == HiddenColumn ? EditorMarks::hidden() : EditorMarks::locked();
    QList<DesignerObject*> elements;
    for (DesignerObject* object : objects) {
        if (object->editorMarkKeys().contains(mark))
            elements.append(object);
    }
    if (elements.isEmpty())
        return;
    const bool set = elements.constFirst()->editorMark(mark).isEmpty();
    const EditResult result =
        column == HiddenColumn ? m_session->setHidden(elements, set) : m_session->setLocked(elements, set);
    if (!result.message.isEmpty())
        Q_EMIT refused(result.message);
}

std::unique_ptr<ProjectTreeModel::Node> ProjectTreeModel::makeNode(DesignerObject* object, Node* parent)
{
    auto made = std::make_unique<Node>();
    made->object = object;
    made->parent = parent;
    m_nodes.insert(object, made.get());
    // A screen is read when it is opened; everything else is in memory.
    if (const auto* screen = qobject_cast<const Screen*>(object); screen || qobject_cast<Project*>(object))
        return made;
    made->populated = true;
    if (const ObjectListProperty* list = object->childList()) {
        for (qsizetype i = list->items().size(); i-- > 0;)
            made->children.push_back(makeNode(list->items().at(i), made.get()));
        made->renumber();
    }
    return made;
}

int ProjectTreeModel::rowInList(const DesignerObject* object) const
{
    const DesignerObject* parent = object->parentObject();
    const auto& siblings = parent->childList()->items();
    const auto place = siblings.lastIndexOf(const_cast<DesignerObject*>(object));
    return int(qobject_cast<const Project*>(parent) ? place : siblings.size() - 1 - place);
}

void ProjectTreeModel::populate(Node* node)
{
    if (!node || node->populated)
        return;
    // Asking for the list reads the screen, which announces every element; all of them are inserted below.
    const ObjectListProperty* list = node->object->childList();
    node->populated = true;
    if (!list || list->items().isEmpty()) {
        // An empty or unreadable screen: the row itself may look different now.
        refresh(node->object);
        return;
    }
    const auto& items = list->items();
    beginInsertRows(nodeIndex(node), 0, int(items.size()) - 1);
    const bool inOrder = qobject_cast<const Project*>(node->object);
    for (qsizetype i = 0; i < items.size(); ++i)
        node->children.push_back(makeNode(items.at(inOrder ? i : items.size() - 1 - i), node));
    node->renumber();
    endInsertRows();
}

void ProjectTreeModel::forget(Node* node)
{
    m_nodes.remove(node->object);
    for (const auto& child : node->children)
        forget(child.get());
}

void ProjectTreeModel::onAdded(DesignerObject* object)
{
    Node* above = m_nodes.value(object->parentObject());
    if (!above || !above->populated || m_nodes.contains(object))
        return;
    const int row = qBound(0, rowInList(object), int(above->children.size()));
    beginInsertRows(nodeIndex(above), row, row);
    above->children.insert(above->children.begin() + row, makeNode(object, above));
    above->renumber(std::size_t(row));
    endInsertRows();
}

void ProjectTreeModel::onRemoved(DesignerObject* object, DesignerObject*)
{
    Node* gone = m_nodes.value(object);
    if (!gone)
        return;
    Node* above = gone->parent;
    const int row = gone->row;
    beginRemoveRows(nodeIndex(above), row, row);
    forget(gone);
    above->children.erase(above->children.begin() + row);
    above->renumber(std::size_t(row));
    endRemoveRows();
}

void ProjectTreeModel::onReordered(DesignerObject* object)
{
    Node* moved = m_nodes.value(object);
    if (!moved)
        return;
    Node* above = moved->parent;
    const int from = moved->row;
    const int to = rowInList(object);
    if (from == to)
        return;
    beginMoveRows(nodeIndex(above), from, from, nodeIndex(above), to > from ? to + 1 : to);
    auto& rows = above->children;
    if (from < to)
        std::rotate(rows.begin() + from, rows.begin() + from + 1, rows.begin() + to + 1);
    else
        std::rotate(rows.begin() + to, rows.begin() + from, rows.begin() + from + 1);
    above->renumber(std::size_t(qMin(from, to)));
    endMoveRows();
}

void ProjectTreeModel::refresh(DesignerObject* object)
{
    if (qobject_cast<Screen*>(object)) {
        // The mark of the current screen goes from one row to another.
        const Node* project = m_root->children.front().get();
        if (!project->children.empty()) {
            Q_EMIT dataChanged(nodeIndex(project->children.front().get()),
                               nodeIndex(project->children.back().get(), LockedColumn));
        }
        return;
    }
    if (const Node* changed = m_nodes.value(object))
        Q_EMIT dataChanged(nodeIndex(changed), nodeIndex(changed, LockedColumn));
}

void ProjectTreeModel::refreshBelow(const Node* node)
{
    if (node->children.empty())
        return;
    Q_EMIT dataChanged(nodeIndex(node->children.front().get()), nodeIndex(node->children.back().get(), LockedColumn));
    for (const auto& child : node->children)
        refreshBelow(child.get());
}

QList<DesignerObject*> ProjectTreeModel::dragged(const QMimeData* data) const
{
    QList<DesignerObject*> objects;
    if (!data || !data->hasFormat(RowsMimeType))
        return objects;
    const QList<QByteArray> paths = data->data(RowsMimeType).split('\n');
    for (const QByteArray& path : paths) {
        QModelIndex at;
        const QList<QByteArray> rows = path.split('/');
        for (const QByteArray& row : rows)
            at = index(row.toInt(), 0, at);
        if (DesignerObject* named = object(at))
            objects.append(named);
    }
    return objects;
}

} // namespace Korvex::Meridane::Designer
