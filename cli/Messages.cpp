#include "cli/Messages.h"

#include "host/core/project/Problem.h"

#include <algorithm>
#include <cstdio>

namespace Korvex::Meridane::Designer {

void Messages::print(const QString& message)
{
    const QByteArray bytes = QStringLiteral("meridane: %1\n").arg(message).toUtf8();
    // Where standard error is gone there is nobody left to tell; the exit status still says it.
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stderr);
    std::fflush(stderr);
}

QString Messages::line(const Problem& problem)
{
    return severityName(problem) + QLatin1String(": ") + problem.text();
}

void Messages::print(const QList<Problem>& problems)
{
    for (const Problem& problem : problems)
        print(line(problem));
}

QString Messages::severityName(const Problem& problem)
{
    return problem.severity == Problem::Severity::Error ? QStringLiteral("error") : QStringLiteral("warning");
}

bool Messages::hasError(const QList<Problem>& problems)
{
    return std::any_of(problems.cbegin(), problems.cend(),
                       [](const Problem& problem) { return problem.severity == Problem::Severity::Error; });
}

} // namespace Korvex::Meridane::Designer
