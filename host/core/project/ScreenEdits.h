#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QSizeF>
#include <QString>

#include <memory>

namespace Korvex::Meridane::Designer {

class Project;
class Screen;

/// The edits of whole screens, each as one command that is yet to be executed.
class MERIDANE_CORE_EXPORT ScreenEdits
{
public:
    ScreenEdits() = delete;

    /// What becomes of a screen's elements when the screen gets another size.
    enum class Content
    {
        Leave, ///< they keep their places and sizes
        Scale ///< places, outer sizes and fonts follow; fonts by the smaller of both factors
    };

    struct Plan
    {
        std::unique_ptr<UndoCommand> command; ///< null when the edit is refused, or would change nothing
        Screen* screen = nullptr; ///< the screen that comes of it; owned by the command until that has been executed
        QString message; ///< why the edit is refused; empty when it is not
    };

    /// Adds a copy of \a screen behind it, with everything on it. \a id empty: a free one like that of the original. Ids
    /// on the copy are those of the original; links lead to the copies.
    [[nodiscard]] static Plan duplicate(Project* project, Screen* screen, const QString& id = {});
    /// Gives \a screen the size \a size, in pixels. The canvas items of its elements must exist for Content::Scale.
    [[nodiscard]] static Plan resize(Screen* screen, const QSizeF& size, Content content);
};

} // namespace Korvex::Meridane::Designer
