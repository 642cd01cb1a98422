#pragma once

namespace Korvex::Meridane::Designer {

/// Puts the process into the state that the rest of the program relies on.
class ProcessSetup
{
public:
    ProcessSetup() = delete;

    /**
     * Runs first of all, before any file is opened:
     * - standard descriptors that the caller closed are occupied, so that no project file ever becomes "standard
     *   output"; reading and writing them then fails as it should;
     * - a closed pipe and a reached file size limit become errors of the write instead of signals that kill;
     * - the locale's character encoding is UTF-8, and there is a folder for run-time files: Qt would see to both, but
     *   with warnings on standard error.
     */
    static void prepare();

    /// Whether a window could be shown: there is an X or Wayland display, or a Qt platform was chosen explicitly.
    [[nodiscard]] static bool hasDisplay();
};

} // namespace Korvex::Meridane::Designer
