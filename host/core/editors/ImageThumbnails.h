#pragma once

#include <QIcon>
#include <QString>

namespace Korvex::Meridane::Designer {

/// Small pictures of image files for lists, cached by file and time of change. GUI thread only.
class ImageThumbnails
{
public:
    ImageThumbnails() = delete;

    /// The side of a thumbnail, in pixels.
    static constexpr int Side = 32;

    /// The thumbnail of \a file in a square of Side; an empty icon when the file cannot be read, and for drawings that
    /// could take long to paint.
    [[nodiscard]] static QIcon thumbnail(const QString& file);
};

} // namespace Korvex::Meridane::Designer
