#pragma once

#include "host/core/CoreExport.h"
#include "host/core/values/NumberOperation.h"

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <optional>

namespace Korvex::Meridane::Designer {
/**
 * Reads what a user types into a number field: a decimal number, arithmetic with `+ - * /`, parentheses and signs, and
 * relative operations (`+=10`, `-=5`, `*=2`, `/=4`, with arithmetic behind the sign). Blanks may stand anywhere between
 * numbers and signs; a suffix is removed by the caller.
 *
 * The decimal sign is "." or ",". A number with more than one of them ("1.234,5", "1,234,567") is refused, because
 * whether one of them separates thousands cannot be known.
 */
class MERIDANE_CORE_EXPORT NumberExpression
{
public:
    NumberExpression() = delete;

    enum class RelativeInput
    {
        Refused,
        Allowed
    };

    /** Parentheses and signs may be nested this deeply. */
    static constexpr int maximumDepth = 64;

    /**
     * The operation that @p text asks for. Refused are empty texts, unknown characters, incomplete arithmetic, division
     * by zero, results that are not finite, and nesting beyond maximumDepth; @p error (which may be null) then receives
     * a localised sentence that says why, and is cleared otherwise.
     */
    [[nodiscard]] static std::optional<NumberOperation> parse(QStringView text,
                                                              RelativeInput relativeInput = RelativeInput::Refused,
                                                              QString* error = nullptr);

    /** True when every character of @p text can be part of an expression, so that typing may go on. */
    [[nodiscard]] static bool mayBecomeExpression(QStringView text, RelativeInput relativeInput);
};
} // namespace Korvex::Meridane::Designer
