#pragma once

#include <QString>

namespace Korvex::Meridane::Designer {

/// Other words that people use for the actions of the window, in the user's language.
class CommandKeywords
{
public:
    /// The words for the action called \a objectName, separated by spaces; empty where there are none.
    [[nodiscard]] static QString of(const QString& objectName);
};

} // namespace Korvex::Meridane::Designer
