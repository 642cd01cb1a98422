#pragma once

#include <QImage>
#include <QStringList>

namespace Korvex::Meridane::Designer::Test {

/// The pictures of the user guide.
class GuidePictures
{
public:
    GuidePictures() = delete;

    /// The names of all of them, without ".png".
    [[nodiscard]] static QStringList names();

    /// \a picture with at most 256 colors: those of the window stay as they are, only shades are merged.
    [[nodiscard]] static QImage reduced(const QImage& picture);
};

} // namespace Korvex::Meridane::Designer::Test
