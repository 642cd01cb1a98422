#pragma once

#include "host/core/CoreExport.h"
#include "host/core/commands/UndoStack.h"

#include <QPointF>
#include <QSizeF>
#include <QStringList>

namespace Korvex::Meridane::Designer {

class EditSession;
class Screen;

/// Adds elements that show images of the project, without a palette: for images that are dropped or pasted.
class MERIDANE_CORE_EXPORT ImagePlacement
{
public:
    ImagePlacement() = delete;

    enum class Anchor
    {
        TopLeft, ///< the point is the top left corner of the first image
        Center ///< the images stand about the point, on the screen where they fit, beside what stands there already
    };

    /// The first element class of the plug-ins that has a link to an image; empty when there is none.
    [[nodiscard]] static QString elementClass();
    /// The outer size of a new element that shows \a image on \a screen, in pixels: that of the picture, reduced where the
    /// screen is smaller. Empty for a picture that cannot be shown.
    [[nodiscard]] static QSizeF sizeOf(const Screen* screen, const QString& image);
    /// Adds an element for each of \a images to the current screen, at \a point (pixels of the screen) and one aside of the
    /// other, as one step, and selects them.
    static EditResult place(EditSession* session, const QStringList& images, const QPointF& point, Anchor anchor);

    /// The MIME type of images dragged from a list; its data are their names in UTF-8, one a line.
    [[nodiscard]] static QString mimeType();
};

} // namespace Korvex::Meridane::Designer
