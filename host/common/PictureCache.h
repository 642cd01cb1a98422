#pragma once

#include "host/common/CommonExport.h"
#include "host/common/PictureFile.h"

#include <QtGui/QImage>

#include <memory>

namespace Korvex::Meridane::Common {
/**
 * Decoded and scaled pictures, shared by everything that shows the same file: on the canvas, in lists and on the display.
 * What nobody shows is kept as long as it is among the latest and fits into a bounded memory. May be used from any thread.
 */
class MERIDANE_COMMON_EXPORT PictureCache
{
public:
    PictureCache() = delete;

    /** What readPicture() makes of \p file; never null. A file that has changed on disk is read anew. */
    [[nodiscard]] static std::shared_ptr<const PictureContent> content(const QString& file);
    /** The same of readDrawing(). */
    [[nodiscard]] static std::shared_ptr<const PictureContent> drawing(const QString& file);

    /** The pixels of content(): null for a drawing and for what cannot be read. */
    [[nodiscard]] static QImage still(const QString& file);

    /** \p picture scaled to \p pixels, smoothly. It is kept for the next time unless it is \p passing. */
    [[nodiscard]] static QImage scaled(const QImage& picture, const QSize& pixels, bool passing = false);

    /** \p drawing, whose id in its content is \p id, painted on a transparent picture of \p pixels. */
    [[nodiscard]] static QImage painted(QSvgRenderer* drawing, quint64 id, const QSize& pixels);
};
} // namespace Korvex::Meridane::Common
