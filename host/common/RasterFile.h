#pragma once

#include "host/common/PictureFile.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>
#include <QtGui/QImage>

namespace Korvex::Meridane::Common {
/**
 * Looks into \p file, the content of a picture file made of pixels, without decoding it. Of the kind Animation when it has
 * several frames that can be played, whatever the file is called.
 *
 * Unreadable is what cannot be recognised, and what would cost too much: more than 32 million pixels, a progressive JPEG
 * of more than 100 scans, vectors. \p reason (which may be null) says in the user's language what is wrong.
 */
[[nodiscard]] PictureInfo rasterInfo(const QByteArray& file, QString* reason);

/** The picture in \p file, the first one of an animation, turned as its camera says; null where rasterInfo() refuses it
 *  and when it is damaged. */
[[nodiscard]] QImage readRaster(const QByteArray& file, QString* reason);
} // namespace Korvex::Meridane::Common
