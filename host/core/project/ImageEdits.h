#pragma once

#include "host/core/commands/UndoCommand.h"

#include <QList>
#include <QSet>
#include <QString>

#include <memory>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class Project;

/**
 * The edits of a project's images, each as one command that is yet to be executed. Every screen is read for them: any may
 * use the image.
 */
class MERIDANE_CORE_EXPORT ImageEdits
{
public:
    ImageEdits() = delete;

    struct Plan
    {
        std::unique_ptr<UndoCommand> command; ///< null when the edit is refused, or would change nothing
        QString image; ///< the image's name afterwards; empty when it goes
        QString message; ///< why the edit is refused; empty when it is not
    };

    /// Calls \a image \a name, and all links to it with it. A name without an ending of pictures keeps the present one.
    /// \a selection: what is selected while the edit is made.
    [[nodiscard]] static Plan rename(Project* project, const QString& image, const QString& name,
                                     const QList<DesignerObject*>& selection = {});
    /// Lets \a image hold the picture in \a file. Its name stays, but for the ending where the new picture is of another
    /// format; links follow.
    [[nodiscard]] static Plan replace(Project* project, const QString& image, const QString& file,
                                      const QList<DesignerObject*>& selection = {});
    /// Removes \a image. Refused while anything uses it, with the places.
    [[nodiscard]] static Plan remove(Project* project, const QString& image);

    /// The images of \a project that its next save drops of itself: something has shown them, and nothing does any more.
    /// Screens that have not been read may still want them.
    [[nodiscard]] static QSet<QString> droppedBySave(const Project* project);
};

} // namespace Korvex::Meridane::Designer
