#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QByteArray>
#include <QtCore/QSize>
#include <QtCore/QString>

namespace Korvex::Meridane::Common {
/** How a picture file is shown. */
enum class PictureKind
{
    Unreadable, ///< not at all: missing, damaged, of an unknown kind or too expensive to show
    Still, ///< as pixels
    Animation, ///< as a sequence of frames
    Drawing ///< as vectors
};

/** What can be told of a picture file without decoding it. */
struct PictureInfo
{
    PictureKind kind = PictureKind::Unreadable;
    QSize size; ///< the natural size in pixels
    int frames = 1; ///< more than 1 for an animation
    QByteArray format; ///< "png", "svg", …, as QImageReader calls it
};

/**
 * Looks into the picture file \p file. The name decides how it is read, as on the canvas: ".gif" is an animation when it
 * has several frames, ".svg" a drawing, everything else a still picture, whatever capitals the name has.
 *
 * A file is unreadable that would cost too much: a picture of more than 32 million pixels, an animation of more than
 * 10 000 frames, a drawing that isHarmlessDrawing() refuses, vectors under another name than ".svg".
 * \p reason (which may be null) says in English what is wrong.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT PictureInfo pictureInfo(const QString& file, QString* reason = nullptr);
} // namespace Korvex::Meridane::Common
