#pragma once

namespace Korvex::Meridane::Designer {
/** Whether a colour may let shine through what lies behind it. */
enum TransparentOption
{
    /** The user picks opaque colours only. */
    OpaqueOnly = 0,
    /** The user also picks the alpha channel. */
    TransparencyAllowed = 1
};
} // namespace Korvex::Meridane::Designer
