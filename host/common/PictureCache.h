#pragma once

#include "host/common/CommonExport.h"

#include <QtGui/QImage>

QT_BEGIN_NAMESPACE
class QSvgRenderer;
QT_END_NAMESPACE

namespace Korvex::Meridane::Common {
/**
 * Decoded and scaled pictures, shared by everything that shows the same file: on the canvas, in lists and on the display.
 * Bounded in memory; what has not been used for long goes first. May be used from any thread.
 */
class MERIDANE_COMMON_EXPORT PictureCache
{
public:
    PictureCache() = delete;

    /** The still picture of \p file, turned as its camera says; null when pictureInfo() finds it unreadable. A file that
     *  has changed on disk is read anew. */
    [[nodiscard]] static QImage still(const QString& file);

    /** \p picture scaled to \p pixels, smoothly. */
    [[nodiscard]] static QImage scaled(const QImage& picture, const QSize& pixels);

    /** \p drawing, which \p id stands for as long as the program runs, painted on a transparent picture of \p pixels. */
    [[nodiscard]] static QImage painted(QSvgRenderer* drawing, quint64 id, const QSize& pixels);

    /** An id for painted() that has not been given out before. */
    [[nodiscard]] static quint64 nextDrawingId();
};
} // namespace Korvex::Meridane::Common
