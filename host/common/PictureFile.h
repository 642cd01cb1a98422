#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QByteArray>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QImage>

#include <memory>

QT_BEGIN_NAMESPACE
class QSvgRenderer;
QT_END_NAMESPACE

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
    QSize size; ///< the natural size in pixels; of a drawing maybe empty or beyond all bounds
    int frames = 1; ///< more than 1 for an animation
    QByteArray format; ///< "png", "svg", …, as QImageReader calls it
};

/**
 * Looks into the picture file \p file. The name decides how it is read, as on the canvas: ".gif" is an animation when it
 * has several frames, ".svg" a drawing, everything else a still picture, whatever capitals the name has.
 *
 * A file is unreadable that would cost too much: one of more than 64 MiB, a picture that rasterInfo() refuses, an animation
 * of more than 10 000 frames, a drawing that isHarmlessDrawing() refuses or that takes more than five seconds to paint on
 * 1000 × 1000 pixels (paintingEffort()), vectors under another name than ".svg". So is everything that is no regular file.
 * \p reason (which may be null) says in the user's language what is wrong.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT PictureInfo pictureInfo(const QString& file, QString* reason = nullptr);

/** A picture file, read. */
struct PictureContent
{
    PictureInfo info; ///< Unreadable also for a file that turned out to be damaged
    QString reason; ///< for an unreadable one, in the user's language
    QImage pixels; ///< of a still picture, turned as its camera says; the first frame of an animation
    QByteArray animation; ///< the file, from which the frames of an animation are decoded as they are shown
    std::shared_ptr<QSvgRenderer> drawing; ///< stands still, and belongs to no thread
    quint64 drawingId = 0; ///< what no other drawing has had as long as the program runs
};

/** Reads the picture file \p file. See PictureCache::content() for one that is shared. */
[[nodiscard]] MERIDANE_COMMON_EXPORT PictureContent readPicture(const QString& file);

/** Reads the drawing \p file, whatever it is called, for instance one of the program's own resources. */
[[nodiscard]] MERIDANE_COMMON_EXPORT PictureContent readDrawing(const QString& file);
} // namespace Korvex::Meridane::Common
