#pragma once

#include <memory>

class QCoreApplication;

namespace Korvex::Meridane::Designer {

/// How much of Qt a command needs. Each kind starts more slowly than the one before.
enum class ApplicationKind
{
    Core, ///< no fonts, pictures or windows
    Gui, ///< fonts and pictures
    Widgets, ///< canvas scenes and views
};

/**
 * Makes the application object of \a kind.
 *
 * No command of this program shows a window of its own, so Qt's "offscreen" platform is chosen whatever display there
 * is, unless the environment variable QT_QPA_PLATFORM names another. The choice is not handed to child processes.
 *
 * @param program the program as it was called, argv[0]; outlives the object
 */
[[nodiscard]] std::unique_ptr<QCoreApplication> makeApplication(ApplicationKind kind, char* program);

} // namespace Korvex::Meridane::Designer
