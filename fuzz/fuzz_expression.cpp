// Any text in a number field is either refused with a reason or gives a finite number.

#include "host/core/values/NumberExpression.h"

#include <cmath>

using namespace Korvex::Meridane::Designer;

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    for (const auto input : {NumberExpression::RelativeInput::Refused, NumberExpression::RelativeInput::Allowed}) {
        QString error;
        const std::optional<NumberOperation> operation = NumberExpression::parse(text, input, &error);
        if (operation.has_value() != error.isEmpty())
            qFatal("a refusal without a reason, or a reason without a refusal");
        if (!operation)
            continue;
        if (!std::isfinite(operation->operand) || !std::isfinite(operation->applyTo(1)))
            qFatal("the result is not finite");
        if (operation->isRelative() && input == NumberExpression::RelativeInput::Refused)
            qFatal("a relative operation where none is allowed");
        if (operation->kind == NumberOperation::Kind::Divide && operation->operand == 0)
            qFatal("a division by zero");
        if (!NumberExpression::mayBecomeExpression(text, input))
            qFatal("an expression of which typing would be refused");
    }
    return 0;
}
