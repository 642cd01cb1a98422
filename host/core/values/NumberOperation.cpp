#include "host/core/values/NumberOperation.h"

#include <cmath>

namespace Korvex::Meridane::Designer {
double NumberOperation::applyTo(double value) const
{
    double result = value;
    switch (kind) {
    case Kind::Set:
        result = operand;
        break;
    case Kind::Add:
        result = value + operand;
        break;
    case Kind::Subtract:
        result = value - operand;
        break;
    case Kind::Multiply:
        result = value * operand;
        break;
    case Kind::Divide:
        result = operand == 0 ? value : value / operand;
        break;
    }
    if (!std::isfinite(result)) {
        return value;
    }
    return result == 0 ? 0 : result; // never -0
}
} // namespace Korvex::Meridane::Designer
