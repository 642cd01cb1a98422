#pragma once

#include "host/core/CoreExport.h"

namespace Korvex::Meridane::Designer {
/**
 * What a user asked a number to become: a value of its own, or its present value changed by an amount. With several
 * elements selected the operation is applied to the value of each.
 */
struct MERIDANE_CORE_EXPORT NumberOperation
{
    enum class Kind
    {
        Set,
        Add,
        Subtract,
        Multiply,
        Divide
    };

    Kind kind = Kind::Set;
    /** Finite; not 0 for Divide. */
    double operand = 0;

    /** @p value after the operation. Where the result would not be finite, @p value itself. */
    [[nodiscard]] double applyTo(double value) const;

    /** True unless the operation is Set. */
    [[nodiscard]] bool isRelative() const { return kind != Kind::Set; }

    friend bool operator==(const NumberOperation& a, const NumberOperation& b) = default;
};
} // namespace Korvex::Meridane::Designer
