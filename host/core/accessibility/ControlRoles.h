#pragma once

namespace Korvex::Meridane::Designer {

/// Tells assistive programs what the controls are that are painted here and derive from no control of Qt's. Their state is
/// in their accessible description.
class ControlRoles
{
public:
    ControlRoles() = delete;

    /// To be called by the constructors of such controls; more than once does no harm.
    static void install();
};

} // namespace Korvex::Meridane::Designer
