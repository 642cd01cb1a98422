#pragma once

#include "cli/apply/ApplyResult.h"

namespace Korvex::Meridane::Designer {

class ApplySession;

/// The operations that edits can ask for.
class ApplyOperations
{
public:
    ApplyOperations() = delete;

    /// Does what one edit asks for. What is no edit, an operation that there is not and arguments that do not fit are
    /// refused. \a op receives the operation's name, empty when there is none.
    [[nodiscard]] static ApplyResult apply(ApplySession& session, const QJsonValue& edit, QString* op);
};

} // namespace Korvex::Meridane::Designer
