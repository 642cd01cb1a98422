#include "host/common/PictureCache.h"

#include "host/common/PictureFile.h"

#include <QtCore/QCache>
#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QMutex>
#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <atomic>

namespace Korvex::Meridane::Common {
namespace {
constexpr qsizetype StillBytes = 160 * 1024 * 1024; // room for one picture of the largest size
constexpr qsizetype ScaledBytes = 96 * 1024 * 1024;

struct Caches
{
    QMutex mutex;
    QCache<QString, QImage> stills{StillBytes};
    QCache<QString, QImage> scaled{ScaledBytes};
};

Caches& caches()
{
    static Caches caches;
    return caches;
}

/** The cached picture of \p key, made by \p make where there is none. */
template <typename Make>
QImage cached(QCache<QString, QImage>& cache, const QString& key, Make make)
{
    {
        const QMutexLocker lock(&caches().mutex);
        if (const QImage* known = cache.object(key)) {
            return *known;
        }
    }
    const QImage made = make();
    const QMutexLocker lock(&caches().mutex);
    cache.insert(key, new QImage(made), qMax<qsizetype>(made.sizeInBytes(), 1));
    return made;
}

QImage readStill(const QString& file)
{
    if (pictureInfo(file).kind == PictureKind::Unreadable) {
        return QImage();
    }
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QImage picture = reader.read();
    return picture.convertToFormat(picture.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied
                                                             : QImage::Format_RGB32);
}

/** \p picture halved as long as it stays twice as large as \p pixels: a step that is worth keeping for the next size. */
QImage halved(const QImage& picture, const QSize& pixels)
{
    QImage result = picture;
    int level = 0;
    while (result.width() >= 4 * pixels.width() && result.height() >= 4 * pixels.height()) {
        ++level;
        const QString key = QStringLiteral("%1 / %2").arg(picture.cacheKey()).arg(1 << level);
        result = cached(caches().scaled, key, [&result] {
            return result.scaled(result.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        });
    }
    return result;
}
} // namespace

QImage PictureCache::still(const QString& file)
{
    const QFileInfo info(file);
    const QString key =
        QStringLiteral("%1 %2 %3").arg(info.lastModified().toMSecsSinceEpoch()).arg(info.size()).arg(file);
    return cached(caches().stills, key, [&file] { return readStill(file); });
}

QImage PictureCache::scaled(const QImage& picture, const QSize& pixels)
{
    if (picture.isNull() || pixels.isEmpty() || picture.size() == pixels) {
        return picture;
    }
    const QString key = QStringLiteral("%1 %2x%3").arg(picture.cacheKey()).arg(pixels.width()).arg(pixels.height());
    return cached(caches().scaled, key, [&] {
        return halved(picture, pixels).scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    });
}

QImage PictureCache::painted(QSvgRenderer* drawing, quint64 id, const QSize& pixels)
{
    const QString key = QStringLiteral("drawing %1 %2x%3").arg(id).arg(pixels.width()).arg(pixels.height());
    return cached(caches().scaled, key, [&] {
        QImage picture(pixels, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        drawing->render(&painter, QRectF(QPointF(0, 0), pixels));
        return picture;
    });
}

quint64 PictureCache::nextDrawingId()
{
    static std::atomic<quint64> next = 1;
    return next++;
}
} // namespace Korvex::Meridane::Common
