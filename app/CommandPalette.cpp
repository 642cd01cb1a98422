#include "app/CommandPalette.h"

#include "app/AppSettings.h"
#include "app/CommandDelegate.h"
#include "app/CommandModel.h"
#include "app/CoreText.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPainter>
#include <QVBoxLayout>

namespace Korvex::Meridane::Designer {

namespace {

const QString RecentKey = QStringLiteral("commands/recent");
constexpr int RecentLimit = 12;
constexpr int LargestWidth = 620; // pixels
constexpr int Rows = 12; // seen at once
constexpr int DistanceFromTop = 64;
constexpr double Radius = 8; // of the corners

} // namespace

CommandPalette::CommandPalette(QWidget* window)
    : QFrame(window)
    , m_model(new CommandModel(this))
    , m_field(new QLineEdit)
    , m_list(new QListView)
    , m_nothing(new QLabel(coreText("No command has a name like this.")))
{
    setObjectName(QStringLiteral("CommandPalette"));
    setAccessibleName(coreText("Commands"));
    m_field->setPlaceholderText(coreText("Find a command, screen or element"));
    m_field->setAccessibleName(coreText("Find a command"));
    m_field->setClearButtonEnabled(true);
    m_list->setModel(m_model);
    m_list->setItemDelegate(new CommandDelegate(m_list));
    m_list->setAccessibleName(coreText("Commands that were found"));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setUniformItemSizes(true);
    m_list->setFocusPolicy(Qt::NoFocus);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setMouseTracking(true);
    m_nothing->setForegroundRole(QPalette::PlaceholderText);
    m_nothing->setAlignment(Qt::AlignCenter);
    m_nothing->setMargin(12);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(8, 8, 8, 8);
    layout->setSpacing(6);
    layout->addWidget(m_field);
    layout->addWidget(m_list, 1);
    layout->addWidget(m_nothing);

    m_field->installEventFilter(this);
    window->installEventFilter(this);
    connect(m_field, &QLineEdit::textChanged, this, &CommandPalette::search);
    connect(m_list, &QListView::clicked, this, &CommandPalette::runChosen);
    connect(qApp, &QApplication::focusChanged, this, &CommandPalette::onFocusChanged);
    hide();
}

CommandPalette::~CommandPalette() = default;

void CommandPalette::open(QList<Command> commands)
{
    if (!isVisible())
        m_focusBefore = QApplication::focusWidget();
    m_search.setCommands(std::move(commands), recentCommands());
    m_field->clear();
    search();
    show();
    raise();
    m_field->setFocus(Qt::PopupFocusReason);
}

void CommandPalette::dismiss()
{
    if (isHidden())
        return;
    const QPointer<QWidget> before = std::exchange(m_focusBefore, nullptr);
    const bool hadFocus = isAncestorOf(QApplication::focusWidget());
    hide();
    if (hadFocus && before)
        before->setFocus(Qt::PopupFocusReason);
    // The commands hold on to what they work on.
    m_model->setCommands({});
    m_search.setCommands({}, {});
}

QList<Command> CommandPalette::found() const
{
    return m_model->commands();
}

QStringList CommandPalette::recentCommands()
{
    return AppSettings().value(RecentKey).toStringList().mid(0, RecentLimit);
}

bool CommandPalette::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_field && event->type() == QEvent::ShortcutOverride) {
        // No shortcut of the window while a name is being typed; Ctrl+K itself closes again.
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape || key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Delete
            || key == Qt::Key_Tab)
            event->accept();
    } else if (watched == m_field && event->type() == QEvent::KeyPress) {
        return handleKey(static_cast<QKeyEvent*>(event)->key());
    } else if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible()) {
        place();
    }
    return QFrame::eventFilter(watched, event);
}

void CommandPalette::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(QPalette::Mid), 1));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), Radius, Radius);
}

bool CommandPalette::handleKey(int key)
{
    const int count = m_model->rowCount();
    const int row = m_list->currentIndex().row();
    const auto go = [this, count](int to) {
        if (count > 0)
            m_list->setCurrentIndex(m_model->index(qBound(0, to, count - 1), 0));
    };
    switch (key) {
    case Qt::Key_Escape:
        dismiss();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        runChosen();
        return true;
    case Qt::Key_Up: // around the ends
        go(row > 0 ? row - 1 : count - 1);
        return true;
    case Qt::Key_Down:
        go(row + 1 < count ? row + 1 : 0);
        return true;
    case Qt::Key_PageUp:
        go(row - Rows);
        return true;
    case Qt::Key_PageDown:
        go(row + Rows);
        return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
        return true; // there is nowhere else to go
    default:
        return false;
    }
}

void CommandPalette::search()
{
    const QList<int> indices = m_search.find(m_field->text());
    QList<Command> found;
    found.reserve(indices.size());
    for (const int index : indices)
        found.append(m_search.commands().at(index));
    m_model->setCommands(std::move(found));
    m_list->setCurrentIndex(m_model->index(0, 0));
    m_list->setVisible(!indices.isEmpty());
    m_nothing->setVisible(indices.isEmpty());
    place();
}

void CommandPalette::place()
{
    const QSize room = parentWidget()->size();
    const int width = qMin(LargestWidth, room.width() - 40);
    const int row = m_list->sizeHintForRow(0);
    m_list->setFixedHeight(qMin(Rows, qMax(1, m_model->rowCount())) * qMax(row, 1));
    layout()->activate();
    const int height = qMin(layout()->sizeHint().height(), room.height() - DistanceFromTop - 20);
    setGeometry((room.width() - width) / 2, DistanceFromTop, width, height);
}

void CommandPalette::runChosen()
{
    const QModelIndex chosen = m_list->currentIndex();
    if (!chosen.isValid() || !m_model->commands().at(chosen.row()).enabled)
        return;
    const Command command = m_model->commands().at(chosen.row());
    dismiss();
    remember(command.id);
    command.run();
}

void CommandPalette::onFocusChanged(QWidget*, QWidget* now)
{
    // Another window, a menu, or nothing at all may have the focus for a while.
    if (!isVisible() || !now || now == this || isAncestorOf(now) || now->window() != window())
        return;
    m_focusBefore = nullptr;
    dismiss();
}

void CommandPalette::remember(const QString& id)
{
    QStringList recent = recentCommands();
    recent.removeAll(id);
    recent.prepend(id);
    AppSettings().setValue(RecentKey, recent.mid(0, RecentLimit));
}

} // namespace Korvex::Meridane::Designer
