#include "app/ProjectTree.h"

#include "app/CoreText.h"
#include "app/ProjectTreeModel.h"
#include "app/ThemedIcon.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Element.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QStyledItemDelegate>

#include <functional>
#include <optional>

namespace Korvex::Meridane::Designer {

namespace {

/// The screen that \a object stands on; \a object itself for a screen, null for the project.
Screen* screenAbove(DesignerObject* object)
{
    for (DesignerObject* above = object; above; above = above->parentObject()) {
        if (auto* screen = qobject_cast<Screen*>(above))
            return screen;
    }
    return nullptr;
}

constexpr int MarkWidth = 24; // pixels, of the column of a mark
constexpr int MarkSide = 16; // of its icon

/// Paints the eye and the padlock: those that are set always, dimmed where a group has passed them on; the others while
/// the mouse is over the row. Those that are about to change look as they will.
class MarkDelegate : public QStyledItemDelegate
{
public:
    /// The mark that a cell is about to get; nothing for one that stays.
    using Pending = std::function<std::optional<ProjectTreeModel::Mark>(const QModelIndex& index)>;

    MarkDelegate(Pending pending, QObject* parent)
        : QStyledItemDelegate(parent)
        , m_pending(std::move(pending))
    {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        const QVariant value = index.data(ProjectTreeModel::MarkRole);
        if (!value.isValid())
            return;
        const auto mark = m_pending(index).value_or(ProjectTreeModel::Mark(value.toInt()));
        if (mark == ProjectTreeModel::Mark::None && !option.state.testFlag(QStyle::State_MouseOver))
            return;
        const bool set = mark != ProjectTreeModel::Mark::None;
        const bool isHiding = index.column() == ProjectTreeModel::HiddenColumn;
        const QString name = isHiding ? (set ? QStringLiteral("eye-off") : QStringLiteral("eye"))
                                      : (set ? QStringLiteral("padlock") : QStringLiteral("padlock-open"));
        QRect place(0, 0, MarkSide, MarkSide);
        place.moveCenter(option.rect.center());
        painter->save();
        if (mark != ProjectTreeModel::Mark::Own)
            painter->setOpacity(0.45);
        const bool selected = option.state.testFlag(QStyle::State_Selected);
        ThemedIcon::named(name, selected ? QPalette::HighlightedText : QPalette::Text).paint(painter, place);
        painter->restore();
    }

private:
    Pending m_pending;
};

} // namespace

struct ProjectTree::Rub
{
    int column = 0;
    bool sets = false; // or takes back
    int y = 0; // where the mouse was last, in the viewport
    QList<QPointer<DesignerObject>> objects; // the first one says what becomes of all; none after Escape
};

ProjectTree::ProjectTree(EditSession* session, QWidget* parent)
    : QTreeView(parent)
    , m_session(session)
    , m_model(new ProjectTreeModel(session, this))
{
    setObjectName(QStringLiteral("ProjectTree"));
    setAccessibleName(coreText("Project"));
    setModel(m_model);
    setHeaderHidden(true);
    setFrameShape(QFrame::NoFrame);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setEditTriggers(QAbstractItemView::EditKeyPressed);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropMode(QAbstractItemView::InternalMove);
    setItemDelegate(new MarkDelegate(
        [this](const QModelIndex& index) -> std::optional<ProjectTreeModel::Mark> {
            if (!m_rub || index.column() != m_rub->column || !m_rub->objects.contains(m_model->object(index)))
                return std::nullopt;
            return m_rub->sets ? ProjectTreeModel::Mark::Own : ProjectTreeModel::Mark::None;
        },
        this));
    header()->setStretchLastSection(false);
    header()->setMinimumSectionSize(MarkWidth);
    header()->setSectionResizeMode(ProjectTreeModel::NameColumn, QHeaderView::Stretch);
    for (const int column : {ProjectTreeModel::HiddenColumn, ProjectTreeModel::LockedColumn}) {
        header()->setSectionResizeMode(column, QHeaderView::Fixed);
        header()->resizeSection(column, MarkWidth);
    }
    viewport()->setMouseTracking(true);
    setDragDropOverwriteMode(false);
    setAllColumnsShowFocus(true);
    setDefaultDropAction(Qt::MoveAction);
    setAutoExpandDelay(600);
    setIconSize(QSize(18, 18));
    setIndentation(16);
    expand(m_model->index(0, 0));

    connect(m_model, &ProjectTreeModel::refused, this, &ProjectTree::refused);
    connect(m_model, &QAbstractItemModel::rowsInserted, this, &ProjectTree::filterLater);
    connect(m_model, &QAbstractItemModel::dataChanged, this, &ProjectTree::filterLater);
    connect(session, &EditSession::selectionChanged, this, &ProjectTree::showSessionSelection);
    connect(session, &EditSession::currentScreenChanged, this, [this](Screen* screen) {
        if (screen)
            expand(m_model->indexOf(screen));
        showSessionSelection();
    });
    if (Screen* screen = session->currentScreen())
        expand(m_model->indexOf(screen));
    showSessionSelection();
}

ProjectTree::~ProjectTree() = default;

QList<DesignerObject*> ProjectTree::selectedObjects() const
{
    QList<DesignerObject*> objects;
    const QModelIndexList rows = selectionModel()->selectedRows();
    objects.reserve(rows.size());
    for (const QModelIndex& row : rows)
        objects.append(m_model->object(row));
    return objects;
}

void ProjectTree::renameCurrent()
{
    // The current row may be one that is not selected any more.
    const QModelIndexList rows = selectionModel()->selectedRows();
    if (rows.size() != 1)
        return;
    const QModelIndex current = rows.first();
    if (m_model->flags(current).testFlag(Qt::ItemIsEditable)) {
        setFocus();
        edit(current);
    }
}

void ProjectTree::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTreeView::selectionChanged(selected, deselected);
    if (!m_following)
        selectInSession();
}

void ProjectTree::offer(const QList<QAction*>& actions)
{
    for (QAction* action : actions) {
        QAction* entry = action;
        if (!entry) {
            entry = new QAction(this);
            entry->setSeparator(true);
        }
        addAction(entry);
    }
}

void ProjectTree::contextMenuEvent(QContextMenuEvent* event)
{
    if (actions().isEmpty())
        return;
    QMenu menu(this);
    const QList<QAction*> offered = actions();
    for (QAction* action : offered) {
        if (action->isSeparator() || action->isEnabled())
            menu.addAction(action);
    }
    menu.exec(event->globalPos());
}

void ProjectTree::keyPressEvent(QKeyEvent* event)
{
    if (m_rub && event->key() == Qt::Key_Escape) {
        m_rub->objects.clear(); // until the mouse is let go
        viewport()->update();
        return;
    }
    // Keys that the window uses must not start the search by typing, and Enter goes to the name.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && state() != EditingState)
        renameCurrent();
    else
        QTreeView::keyPressEvent(event);
}

void ProjectTree::mousePressEvent(QMouseEvent* event)
{
    // A mark changes without changing the selection.
    if (pressMark(event))
        event->accept();
    else
        QTreeView::mousePressEvent(event);
}

void ProjectTree::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (pressMark(event))
        event->accept();
    else
        QTreeView::mouseDoubleClickEvent(event);
}

bool ProjectTree::pressMark(const QMouseEvent* event)
{
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !pressed.data(ProjectTreeModel::MarkRole).isValid())
        return false;
    QList<DesignerObject*> objects = selectedObjects();
    DesignerObject* object = m_model->object(pressed);
    // The pressed one says what becomes of all.
    if (objects.removeAll(object) == 0)
        objects.clear();
    objects.prepend(object);
    m_rub = std::make_unique<Rub>();
    m_rub->column = pressed.column();
    m_rub->sets =
        ProjectTreeModel::Mark(pressed.data(ProjectTreeModel::MarkRole).toInt()) != ProjectTreeModel::Mark::Own;
    m_rub->y = event->position().toPoint().y();
    m_rub->objects = QList<QPointer<DesignerObject>>(objects.cbegin(), objects.cend());
    viewport()->update();
    return true;
}

void ProjectTree::mouseMoveEvent(QMouseEvent* event)
{
    if (m_rub && event->buttons().testFlag(Qt::LeftButton))
        rubTo(event->position().toPoint().y());
    else
        QTreeView::mouseMoveEvent(event);
}

void ProjectTree::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_rub && event->button() == Qt::LeftButton)
        endRub();
    else
        QTreeView::mouseReleaseEvent(event);
}

/// Takes the marks of the rows down or up to \a y, in the viewport, along.
void ProjectTree::rubTo(int y)
{
    if (m_rub->objects.isEmpty())
        return;
    const int x = columnViewportPosition(m_rub->column);
    const int step = m_rub->y < y ? 1 : -1;
    for (int at = m_rub->y; at != y + step; at += step) {
        const QModelIndex index = indexAt(QPoint(x, at));
        const QPointer<DesignerObject> object = m_model->object(index);
        if (index.data(ProjectTreeModel::MarkRole).isValid() && !m_rub->objects.contains(object))
            m_rub->objects.append(object);
    }
    m_rub->y = y;
    viewport()->update();
}

void ProjectTree::endRub()
{
    const std::unique_ptr<Rub> rub = std::move(m_rub);
    QList<DesignerObject*> objects;
    for (const QPointer<DesignerObject>& object : rub->objects) {
        // An undo meanwhile may have taken some away.
        if (object && object->parentObject())
            objects.append(object);
    }
    m_model->toggleMark(rub->column, objects);
    viewport()->update();
}

void ProjectTree::setFilter(const QString& text)
{
    const QString wanted = text.trimmed();
    if (wanted == m_filter)
        return;
    m_filter = wanted;
    if (m_filter.isEmpty()) {
        unhideBelow({});
        scrollTo(currentIndex());
    } else {
        filterBelow({});
    }
}

/// Hides the rows below \a parent that neither match nor hold what does; whether any row is left.
bool ProjectTree::filterBelow(const QModelIndex& parent)
{
    if (m_model->canFetchMore(parent))
        m_model->fetchMore(parent);
    bool any = false;
    const int count = m_model->rowCount(parent);
    for (int row = 0; row < count; ++row) {
        const QModelIndex index = m_model->index(row, 0, parent);
        const DesignerObject* object = m_model->object(index);
        const bool matches =
            object->getIdName().contains(m_filter, Qt::CaseInsensitive)
            || (qobject_cast<const Element*>(object) && object->displayName().contains(m_filter, Qt::CaseInsensitive));
        const bool holds = filterBelow(index);
        if (holds && !isExpanded(index))
            expand(index);
        // What stands in a match is shown with it only where it matches itself: the filter is for finding.
        const bool hide = !matches && !holds && parent.isValid();
        if (isRowHidden(row, parent) != hide)
            setRowHidden(row, parent, hide);
        any = any || matches || holds;
    }
    return any;
}

void ProjectTree::unhideBelow(const QModelIndex& parent)
{
    const int count = m_model->rowCount(parent);
    for (int row = 0; row < count; ++row) {
        if (isRowHidden(row, parent))
            setRowHidden(row, parent, false);
        unhideBelow(m_model->index(row, 0, parent));
    }
}

/// Rows have come or have other names while a filter is set.
void ProjectTree::filterLater()
{
    if (m_filter.isEmpty() || std::exchange(m_filterPending, true))
        return;
    const auto filter = [this] {
        m_filterPending = false;
        if (!m_filter.isEmpty())
            filterBelow({});
    };
    QMetaObject::invokeMethod(this, filter, Qt::QueuedConnection);
}

void ProjectTree::openAll()
{
    const QModelIndex project = m_model->index(0, 0);
    for (int row = 0; row < m_model->rowCount(project); ++row) {
        const QModelIndex screen = m_model->index(row, 0, project);
        if (m_model->canFetchMore(screen))
            m_model->fetchMore(screen);
    }
    expandAll();
    scrollTo(currentIndex());
}

void ProjectTree::closeAll()
{
    collapseAll();
    expand(m_model->index(0, 0));
}

QSize ProjectTree::sizeHint() const
{
    return {260, 300};
}

void ProjectTree::selectInSession()
{
    const QScopedValueRollback<bool> following(m_following, true);
    const QList<DesignerObject*> objects = selectedObjects();
    // Only one screen is shown: the one of the row that was touched last.
    DesignerObject* current = m_model->object(currentIndex());
    Screen* screen = screenAbove(objects.contains(current) || objects.isEmpty() ? current : objects.constLast());
    QList<DesignerObject*> elements;
    for (DesignerObject* object : objects) {
        if (object != screen && screenAbove(object) == screen)
            elements.append(object);
    }
    if (screen)
        m_session->setCurrentScreen(screen);
    if (!elements.isEmpty())
        m_session->setSelection(elements);
    else if (!objects.isEmpty())
        m_session->setSelection({screen ? static_cast<DesignerObject*>(screen) : m_session->project()});
    else
        m_session->setSelection({});
    // Rows of other screens cannot stay selected. The view is still busy with the click, so that this waits.
    if (objects.size() > qMax<qsizetype>(1, m_session->selection().size()))
        QMetaObject::invokeMethod(this, &ProjectTree::showSessionSelection, Qt::QueuedConnection);
}

void ProjectTree::showSessionSelection()
{
    if (m_following)
        return;
    const QScopedValueRollback<bool> following(m_following, true);
    QModelIndexList indexes;
    const QList<DesignerObject*> selection = m_session->selection();
    for (DesignerObject* object : selection) {
        const QModelIndex index = m_model->indexOf(object);
        if (index.isValid())
            indexes.append(index);
    }
    std::sort(indexes.begin(), indexes.end());
    // Rows that follow each other are one range; thousands of single ranges would be slow.
    QItemSelection ranges;
    for (qsizetype first = 0; first < indexes.size();) {
        qsizetype last = first;
        while (last + 1 < indexes.size() && indexes.at(last + 1).row() == indexes.at(last).row() + 1
               && indexes.at(last + 1).parent() == indexes.at(first).parent())
            ++last;
        ranges.append(
            QItemSelectionRange(indexes.at(first), indexes.at(last).siblingAtColumn(ProjectTreeModel::LockedColumn)));
        first = last + 1;
    }
    if (!indexes.isEmpty()) {
        const QModelIndex shown = m_model->indexOf(selection.constLast());
        selectionModel()->setCurrentIndex(shown.isValid() ? shown : indexes.constFirst(),
                                          QItemSelectionModel::NoUpdate);
        scrollTo(currentIndex());
    }
    selectionModel()->select(ranges, QItemSelectionModel::ClearAndSelect);
}

} // namespace Korvex::Meridane::Designer
