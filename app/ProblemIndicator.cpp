#include "app/ProblemIndicator.h"

#include "app/CoreText.h"
#include "app/ThemedIcon.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

ProblemIndicator::ProblemIndicator(QWidget* parent)
    : QToolButton(parent)
{
    setObjectName(QStringLiteral("ProblemIndicator"));
    setAutoRaise(true);
    setIconSize(QSize(16, 16));
    setFocusPolicy(Qt::TabFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    setToolTip(coreText("Show the problems of the project"));
    showProblems({});
}

void ProblemIndicator::showProblems(const QList<Problem>& problems)
{
    const bool hasError = std::any_of(problems.cbegin(), problems.cend(), [](const Problem& problem) {
        return problem.severity == Problem::Severity::Error;
    });
    const QString icon = problems.isEmpty() ? QStringLiteral("check")
                         : hasError         ? QStringLiteral("error")
                                            : QStringLiteral("warning");
    setIcon(ThemedIcon::named(icon));
    setText(problems.isEmpty() ? coreText("No problems") : coreText("%n problem", "%n problems", int(problems.size())));
    setAccessibleName(text());
}

} // namespace Korvex::Meridane::Designer
