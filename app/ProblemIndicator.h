#pragma once

#include "host/core/project/Problem.h"

#include <QToolButton>

namespace Korvex::Meridane::Designer {

/// The number of problems in the status bar; a click shows them.
class ProblemIndicator : public QToolButton
{
    Q_OBJECT

public:
    explicit ProblemIndicator(QWidget* parent = nullptr);

    void showProblems(const QList<Problem>& problems);
};

} // namespace Korvex::Meridane::Designer
