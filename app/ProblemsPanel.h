#pragma once

#include "host/core/project/Problem.h"

#include <QTreeWidget>

namespace Korvex::Meridane::Designer {

/// What is wrong with the project, a row each: the message, the object, and the file. A row leads to its object.
class ProblemsPanel : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ProblemsPanel(QWidget* parent = nullptr);

    void setProblems(const QList<Problem>& problems);
    [[nodiscard]] const QList<Problem>& problems() const { return m_problems; }

Q_SIGNALS:
    /// The object of a row is wanted: "screen/id" or the id of a screen.
    void objectRequested(const QString& object);

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] QSize sizeHint() const override;

private:
    void copySelected() const;

    QList<Problem> m_problems;
};

} // namespace Korvex::Meridane::Designer
