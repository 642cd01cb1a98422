#pragma once

#include <QList>
#include <QString>

namespace Korvex::Meridane::Designer {

struct Problem;

/// What is said on standard error, a line each, with the name of the program in front.
class Messages
{
public:
    Messages() = delete;

    static void print(const QString& message);
    /// "severity: file: object.property: message", without the name of the program: the line that `check` writes.
    [[nodiscard]] static QString line(const Problem& problem);
    static void print(const QList<Problem>& problems);
    /// "error" or "warning".
    [[nodiscard]] static QString severityName(const Problem& problem);
    [[nodiscard]] static bool hasError(const QList<Problem>& problems);
};

} // namespace Korvex::Meridane::Designer
