#include "app/ScreensPanel.h"

#include "app/CoreText.h"
#include "app/ScreenDelegate.h"
#include "app/ScreenListModel.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

namespace Korvex::Meridane::Designer {

namespace {

/// How many places a key moves the current screen; 0 for other keys.
int stepsOf(const QKeyEvent* event)
{
    if ((event->modifiers() & ~Qt::KeypadModifier) != (Qt::ControlModifier | Qt::ShiftModifier))
        return 0;
    return event->key() == Qt::Key_Up ? -1 : event->key() == Qt::Key_Down ? 1 : 0;
}

} // namespace

ScreensPanel::ScreensPanel(EditSession* session, QWidget* parent)
    : QListView(parent)
    , m_session(session)
    , m_model(new ScreenListModel(session, this))
{
    setObjectName(QStringLiteral("ScreensPanel"));
    setAccessibleName(coreText("Screens"));
    setModel(m_model);
    setItemDelegate(new ScreenDelegate(this));
    setFrameShape(QFrame::NoFrame);
    setUniformItemSizes(true);
    setResizeMode(QListView::Adjust);
    setMouseTracking(true);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setSelectionMode(SingleSelection);
    setEditTriggers(EditKeyPressed);
    setDragEnabled(true);
    setAcceptDrops(true);
    setDropIndicatorShown(true);
    setDragDropMode(InternalMove);
    setDragDropOverwriteMode(false);
    setDefaultDropAction(Qt::MoveAction);
    setViewportMargins(0, 4, 0, 4);
    connect(m_model, &ScreenListModel::refused, this, &ScreensPanel::refused);
    connect(this, &QListView::doubleClicked, this, &ScreensPanel::show);
    connect(session, &EditSession::currentScreenChanged, this,
            [this](Screen* screen) { setCurrentIndex(m_model->indexOf(screen)); });
    setCurrentIndex(m_model->indexOf(session->currentScreen()));
}

ScreensPanel::~ScreensPanel() = default;

Screen* ScreensPanel::currentRow() const
{
    return m_model->screen(currentIndex());
}

void ScreensPanel::rename(Screen* screen)
{
    const QModelIndex row = m_model->indexOf(screen);
    if (!m_model->flags(row).testFlag(Qt::ItemIsEditable))
        return;
    setFocus();
    setCurrentIndex(row);
    edit(row);
}

bool ScreensPanel::event(QEvent* event)
{
    // These keys belong to the rows while the panel has the focus, else to the elements of the canvas.
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_F2 || key->matches(QKeySequence::Delete) || stepsOf(key) != 0) {
            event->accept();
            return true;
        }
    }
    return QListView::event(event);
}

void ScreensPanel::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && state() != EditingState)
        show(currentIndex());
    else if (stepsOf(event) != 0)
        moveCurrent(stepsOf(event));
    else if (event->matches(QKeySequence::Delete) && currentRow())
        Q_EMIT removalRequested(currentRow());
    else
        QListView::keyPressEvent(event);
}

void ScreensPanel::contextMenuEvent(QContextMenuEvent* event)
{
    const bool isKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex row = isKeyboard ? currentIndex() : indexAt(event->pos());
    const QPoint place = isKeyboard ? viewport()->mapToGlobal(visualRect(row).center()) : event->globalPos();
    Q_EMIT menuRequested(m_model->screen(row), place);
}

QSize ScreensPanel::sizeHint() const
{
    return {260, 300};
}

void ScreensPanel::show(const QModelIndex& index)
{
    if (Screen* screen = m_model->screen(index))
        m_session->setCurrentScreen(screen);
}

void ScreensPanel::moveCurrent(int steps)
{
    Screen* screen = currentRow();
    const int target = currentIndex().row() + steps;
    if (!screen || target < 0 || target >= m_model->rowCount())
        return;
    const EditResult result = m_session->reorder(screen, target);
    if (!result.message.isEmpty())
        Q_EMIT refused(result.message);
    setCurrentIndex(m_model->indexOf(screen));
    scrollTo(currentIndex());
}

} // namespace Korvex::Meridane::Designer
