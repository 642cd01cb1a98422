#pragma once

class QMainWindow;

namespace Korvex::Meridane::Designer {

/// Size, place and arrangement of the main window, kept in the settings.
class WindowLayout
{
public:
    /// Puts \a window as it was when the program was left last; false when nothing is known of that.
    static bool restore(QMainWindow* window);
    static void store(const QMainWindow* window);
};

} // namespace Korvex::Meridane::Designer
