#pragma once

namespace Korvex::Meridane::Designer {

/// Text that the user has typed into an editor of the property sheet and not yet confirmed.
class PendingEdit
{
public:
    /// Has the focused editor take what was typed in it, as leaving it does; the focus comes back to it. Called before
    /// the project is saved, exported or closed, so that the last edit is never missing.
    static void finish();
};

} // namespace Korvex::Meridane::Designer
