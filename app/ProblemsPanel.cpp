#include "app/ProblemsPanel.h"

#include "app/CoreText.h"
#include "app/ThemedIcon.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>

namespace Korvex::Meridane::Designer {

ProblemsPanel::ProblemsPanel(QWidget* parent)
    : QTreeWidget(parent)
{
    setObjectName(QStringLiteral("ProblemsPanel"));
    setAccessibleName(coreText("Problems"));
    setFrameShape(QFrame::NoFrame);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setHeaderLabels({coreText("Problem"), coreText("Object"), coreText("File")});
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(0, QHeaderView::Stretch);
    header()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(2, QHeaderView::ResizeToContents);
    connect(this, &QTreeWidget::itemActivated, this, [this](QTreeWidgetItem* item) {
        const int row = indexOfTopLevelItem(item);
        if (row >= 0 && !m_problems.at(row).object.isEmpty())
            Q_EMIT objectRequested(m_problems.at(row).object);
    });
}

void ProblemsPanel::setProblems(const QList<Problem>& problems)
{
    m_problems = problems;
    clear();
    QList<QTreeWidgetItem*> rows;
    for (const Problem& problem : problems) {
        QString place = problem.object;
        if (!problem.property.isEmpty())
            place += place.isEmpty() ? problem.property : QStringLiteral(" · ") + problem.property;
        auto* row = new QTreeWidgetItem({problem.message, place, problem.file});
        const bool error = problem.severity == Problem::Severity::Error;
        row->setIcon(0, ThemedIcon::named(error ? QStringLiteral("error") : QStringLiteral("warning")));
        row->setToolTip(0, problem.text());
        row->setData(0, Qt::AccessibleDescriptionRole, error ? coreText("Error") : coreText("Warning"));
        rows.append(row);
    }
    addTopLevelItems(rows);
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
    if (event->matches(QKeySequence::Copy))
        copySelected();
    else
        QTreeWidget::keyPressEvent(event);
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
