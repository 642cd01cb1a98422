#pragma once

#include "host/core/project/Problem.h"

#include <QPointer>
#include <QTreeWidget>

namespace Korvex::Meridane::Designer {

class Project;

/**
 * What is wrong with the project, a row each: the message, the object, the file, and where there is one a way to mend it.
 *
 * A click on a row leads to its object and property, one on the way to mend it does that. The list holds what the check
 * while somebody works has found, and besides what an export or an opening has reported, until the check finds something
 * else.
 */
class ProblemsPanel : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ProblemsPanel(QWidget* parent = nullptr);

    /// The project that ways to mend are asked for; null: none.
    void setProject(Project* project);
    /// What an export or an opening reports, beside what the check has found.
    void setProblems(const QList<Problem>& problems);
    /// What the check has found.
    void setCheckedProblems(const QList<Problem>& problems);
    /// All problems that are shown.
    [[nodiscard]] const QList<Problem>& problems() const { return m_problems; }

Q_SIGNALS:
    /// The object of a row is wanted: "screen/id", the id of a screen, or empty for the project; and its \a property,
    /// which may be empty.
    void objectRequested(const QString& object, const QString& property);
    /// \a problem is to be mended (see ProblemFix).
    void fixRequested(const Problem& problem);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    void copySelected() const;
    void refill();
    void fitColumns();
    void lead(QTreeWidgetItem* item);
    void fix(QTreeWidgetItem* item);

    QPointer<Project> m_project;
    QList<Problem> m_reported;
    QList<Problem> m_checked;
    QList<Problem> m_problems; // both, without repetitions, in the order of the rows
};

} // namespace Korvex::Meridane::Designer
