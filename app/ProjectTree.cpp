#include "app/ProjectTree.h"

#include "app/CoreText.h"
#include "app/ProjectTreeModel.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QScopedValueRollback>

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

} // namespace

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
    setDragDropOverwriteMode(false);
    setDefaultDropAction(Qt::MoveAction);
    setAutoExpandDelay(600);
    setIconSize(QSize(18, 18));
    setIndentation(16);
    expand(m_model->index(0, 0));

    connect(m_model, &ProjectTreeModel::refused, this, &ProjectTree::refused);
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

void ProjectTree::contextMenuEvent(QContextMenuEvent* event)
{
    if (actions().isEmpty())
        return;
    QMenu menu(this);
    menu.addActions(actions());
    menu.exec(event->globalPos());
}

void ProjectTree::keyPressEvent(QKeyEvent* event)
{
    // Keys that the window uses must not start the search by typing, and Enter goes to the name.
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) && state() != EditingState)
        renameCurrent();
    else
        QTreeView::keyPressEvent(event);
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
        ranges.append(QItemSelectionRange(indexes.at(first), indexes.at(last)));
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
