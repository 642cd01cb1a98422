#include "app/ProblemsPanel.h"

#include "app/CoreText.h"
#include "app/ThemedIcon.h"

#include "host/core/project/ProblemFix.h"
#include "host/core/project/Project.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QSet>

namespace Korvex::Meridane::Designer {

namespace {

constexpr int FixColumn = 1;
constexpr int FileColumn = 3;
constexpr int NarrowestMessage = 110; // pixels

} // namespace

ProblemsPanel::ProblemsPanel(QWidget* parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("ProblemsPanel"));
    setAccessibleName(coreText("Problems"));
    setFrameShape(QFrame::NoFrame);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setHeaderLabels({coreText("Problem"), coreText("Way to Mend"), coreText("Object"), coreText("File")});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(3, QHeaderView::ResizeToContents);
    setMouseTracking(true);
    connect(header(), &QHeaderView::sectionResized, this, [this](int column) {
        if (column > 0)
            fitColumns();
    });
    connect(this, &QTreeWidget::itemActivated, this, &ProblemsPanel::lead);
    connect(this, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item, int column) {
        const bool fixes = column == FixColumn && !item->text(FixColumn).isEmpty();
        if (fixes)
            fix(item);
        else if (QGuiApplication::keyboardModifiers() == Qt::NoModifier)
            lead(item);
    });
}

void ProblemsPanel::setProject(Project* project)
{
    m_project = project;
    m_reported.clear();
    m_checked.clear();
    refill();
}

void ProblemsPanel::setProblems(const QList<Problem>& problems)
{
    m_reported = problems;
    refill();
}

void ProblemsPanel::setCheckedProblems(const QList<Problem>& problems)
{
    m_checked = problems;
    m_reported.clear(); // the check knows what is still true of it
    refill();
}

void ProblemsPanel::refill()
{
    const QString current = currentItem() ? currentItem()->toolTip(0) : QString();
    m_problems = m_checked;
    QSet<QString> known;
    for (const Problem& problem : m_checked)
        known.insert(problem.text());
    for (const Problem& problem : m_reported) {
        if (!known.contains(problem.text())) {
            known.insert(problem.text());
            m_problems.append(problem);
        }
    }
    clear();
    // The width is for the messages: columns that would tell nothing are not shown. An object names its file as well.
    bool anyFix = false;
    bool anyWithoutObject = false;
    QList<QTreeWidgetItem*> rows;
    QTreeWidgetItem* kept = nullptr;
    for (const Problem& problem : std::as_const(m_problems)) {
        QString place = problem.object;
        if (!problem.property.isEmpty())
            place += place.isEmpty() ? problem.property : QStringLiteral(" · ") + problem.property;
        const QString mend = m_project ? ProblemFix::text(m_project, problem) : QString();
        anyFix = anyFix || !mend.isEmpty();
        anyWithoutObject = anyWithoutObject || problem.object.isEmpty();
        auto* row = new QTreeWidgetItem({problem.message, mend, place, problem.file});
        const bool error = problem.severity == Problem::Severity::Error;
        row->setIcon(0, ThemedIcon::named(error ? QStringLiteral("error") : QStringLiteral("warning")));
        row->setToolTip(0, problem.text());
        row->setData(0, Qt::AccessibleDescriptionRole, error ? coreText("Error") : coreText("Warning"));
        row->setForeground(FixColumn, palette().brush(QPalette::Link));
        QFont link = font();
        link.setUnderline(true);
        row->setFont(FixColumn, link);
        if (problem.text() == current)
            kept = row;
        rows.append(row);
    }
    addTopLevelItems(rows);
    if (kept)
        setCurrentItem(kept);
    setColumnHidden(FixColumn, !anyFix);
    setColumnHidden(FileColumn, !anyWithoutObject);
    fitColumns();
}

/// The messages take what the other columns leave.
void ProblemsPanel::fitColumns()
{
    int others = 0;
    for (int column = 1; column < columnCount(); ++column)
        others += header()->sectionSize(column);
    header()->resizeSection(0, qMax(NarrowestMessage, viewport()->width() - others));
}

void ProblemsPanel::resizeEvent(QResizeEvent* event)
{
    QTreeWidget::resizeEvent(event);
    fitColumns();
}

void ProblemsPanel::lead(QTreeWidgetItem* item)
{
    const Problem problem = m_problems.value(indexOfTopLevelItem(item));
    if (!problem.object.isEmpty() || !problem.property.isEmpty())
        Q_EMIT objectRequested(problem.object, problem.property);
}

void ProblemsPanel::fix(QTreeWidgetItem* item)
{
    if (item && !item->text(FixColumn).isEmpty())
        Q_EMIT fixRequested(m_problems.value(indexOfTopLevelItem(item)));
}

bool ProblemsPanel::event(QEvent* event)
{
    // Ctrl+C belongs to the rows while the panel has the focus, else to the elements of the canvas.
    if (event->type() == QEvent::ShortcutOverride && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return QTreeWidget::event(event);
}

void ProblemsPanel::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->matches(QKeySequence::Copy))
        copySelected();
    else if (isEnter && event->modifiers().testFlag(Qt::ControlModifier))
        fix(currentItem());
    else
        QTreeWidget::keyPressEvent(event);
}

void ProblemsPanel::contextMenuEvent(QContextMenuEvent* event)
{
    const bool isKeyboard = event->reason() == QContextMenuEvent::Keyboard;
    QTreeWidgetItem* item = isKeyboard ? currentItem() : itemAt(event->pos());
    if (!item)
        return;
    QMenu menu(this);
    QAction* show = menu.addAction(coreText("Show the Place"));
    QAction* mend = item->text(FixColumn).isEmpty() ? nullptr : menu.addAction(item->text(FixColumn));
    QAction* copy = menu.addAction(coreText("Copy"));
    const QPoint place = isKeyboard ? viewport()->mapToGlobal(visualItemRect(item).center()) : event->globalPos();
    const QAction* chosen = menu.exec(place);
    if (chosen == copy)
        copySelected();
    else if (chosen == show)
        lead(item);
    else if (chosen)
        fix(mend ? item : nullptr);
}

void ProblemsPanel::paintEvent(QPaintEvent* event)
{
    QTreeWidget::paintEvent(event);
    if (!m_problems.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter, coreText("No problems."));
}

QSize ProblemsPanel::sizeHint() const
{
    return {600, 140};
}

void ProblemsPanel::copySelected() const
{
    QStringList lines;
    for (int row = 0; row < topLevelItemCount(); ++row) {
        if (topLevelItem(row)->isSelected())
            lines.append(m_problems.at(row).text());
    }
    if (!lines.isEmpty())
        QGuiApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

} // namespace Korvex::Meridane::Designer
