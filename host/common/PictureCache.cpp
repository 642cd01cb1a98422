#include "host/common/PictureCache.h"

#include <QtCore/QCache>
#include <QtCore/QCryptographicHash>
#include <QtCore/QDateTime>
#include <QtCore/QFileInfo>
#include <QtCore/QHash>
#include <QtCore/QMutex>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

namespace Korvex::Meridane::Common {
namespace {
using Content = std::shared_ptr<const PictureContent>;

constexpr qsizetype ContentBytes = 160 * 1024 * 1024; // room for one picture of the largest size
constexpr qsizetype ScaledBytes = 96 * 1024 * 1024;
constexpr qsizetype DrawingBytes = 1024 * 1024; // what a drawing is taken to occupy
constexpr qsizetype EntryBytes = 1024; // of the cache itself

/** A content with the state of the file that it was read from. */
struct Entry
{
    std::weak_ptr<const PictureContent> content;
    QString stamp;
    QByteArray hash; // of a file that was young then; see isYoung()
};

struct Caches
{
    QMutex mutex;
    QHash<QString, Entry> entries; // of what is shown and of the latest ones
    QCache<QString, Content> latest{ContentBytes};
    QCache<QString, QImage> scaled{ScaledBytes};
    QMutex drawing; // held while something is drawn: drawings change while they are painted
};

Caches& caches()
{
    static Caches caches;
    return caches;
}

/** Tells one state of \p file from another. Links are followed. */
QString stampOf(const QFileInfo& file)
{
    return QStringLiteral("%1 %2 %3")
        .arg(file.lastModified().toMSecsSinceEpoch())
        .arg(file.metadataChangeTime().toMSecsSinceEpoch())
        .arg(file.size());
}

/** Whether \p file has just been written: it may be written again, with the same stamp, within the same tick of the file
 *  system's clock. */
bool isYoung(const QFileInfo& file)
{
    constexpr qint64 Young = 100; // ms
    const QDateTime changed = file.metadataChangeTime();
    return changed.isValid() && changed.msecsTo(QDateTime::currentDateTimeUtc()) < Young;
}

QByteArray hashOf(const QFileInfo& file)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    QFile device(file.filePath());
    if (file.isFile() && device.open(QIODevice::ReadOnly)) {
        hash.addData(&device);
    }
    return hash.result();
}

/** The content of \p key as far as it is that of \p file in its present state; null otherwise. */
Content known(const QString& key, const QFileInfo& file)
{
    QMutexLocker lock(&caches().mutex);
    const Entry entry = caches().entries.value(key);
    Content content = entry.content.lock();
    if (!content || entry.stamp != stampOf(file)) {
        return nullptr;
    }
    caches().latest.object(key); // is one of the latest again
    if (entry.hash.isEmpty()) {
        return content;
    }
    lock.unlock();
    if (hashOf(file) != entry.hash) {
        return nullptr;
    }
    lock.relock();
    const auto present = caches().entries.find(key);
    if (present != caches().entries.end() && present->hash == entry.hash && !isYoung(file)) {
        present->hash.clear();
    }
    return content;
}

void removeUnshown(QHash<QString, Entry>& entries, qsizetype latest)
{
    constexpr qsizetype Few = 1000;
    if (entries.size() > Few + 2 * latest) {
        entries.removeIf([](const auto& entry) { return entry.value().content.expired(); });
    }
}

/** The content of the file \p path, which \p key stands for; read by \p read where nobody has it. */
template <typename Read>
Content shared(const QString& key, const QString& path, Read read)
{
    const QFileInfo file(path);
    if (Content content = known(key, file)) {
        return content;
    }
    Entry entry;
    entry.stamp = stampOf(file);
    entry.hash = isYoung(file) ? hashOf(file) : QByteArray();
    Content content = std::make_shared<const PictureContent>(read());

    const QMutexLocker lock(&caches().mutex);
    const Entry present = caches().entries.value(key);
    if (Content other = present.content.lock(); other && present.stamp == entry.stamp && present.hash == entry.hash) {
        return other; // another thread was quicker
    }
    entry.content = content;
    removeUnshown(caches().entries, caches().latest.size());
    caches().entries.insert(key, entry);
    caches().latest.insert(key, new Content(content),
                           EntryBytes + content->pixels.sizeInBytes() + content->animation.size()
                               + (content->drawing ? DrawingBytes : 0));
    return content;
}

/** The scaled picture that \p key stands for, made by \p make where there is none. */
template <typename Make>
QImage scaledPicture(const QString& key, Make make)
{
    {
        const QMutexLocker lock(&caches().mutex);
        if (const QImage* known = caches().scaled.object(key)) {
            return *known;
        }
    }
    QImage made = make();
    const QMutexLocker lock(&caches().mutex);
    caches().scaled.insert(key, new QImage(made), EntryBytes + made.sizeInBytes());
    return made;
}

QImage smoothlyScaled(const QImage& picture, const QSize& pixels)
{
    return picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/** \p picture halved as long as it stays twice as large as \p pixels: a step that is worth keeping for the next size. */
QImage halved(const QImage& picture, const QSize& pixels, bool passing)
{
    QImage result = picture;
    int level = 0;
    while (result.width() >= 4 * pixels.width() && result.height() >= 4 * pixels.height()) {
        ++level;
        const auto half = [&result] { return smoothlyScaled(result, result.size() / 2); };
        const QString key = QStringLiteral("%1 / %2").arg(picture.cacheKey()).arg(1 << level);
        result = passing ? half() : scaledPicture(key, half);
    }
    return result;
}
} // namespace

Content PictureCache::content(const QString& file)
{
    return shared(QLatin1String("picture ") + file, file, [&file] { return readPicture(file); });
}

Content PictureCache::drawing(const QString& file)
{
    return shared(QLatin1String("drawing ") + file, file, [&file] { return readDrawing(file); });
}

QImage PictureCache::still(const QString& file)
{
    return content(file)->pixels;
}

QImage PictureCache::scaled(const QImage& picture, const QSize& pixels, bool passing)
{
    if (picture.isNull() || pixels.isEmpty() || picture.size() == pixels) {
        return picture;
    }
    const auto scale = [&] { return smoothlyScaled(halved(picture, pixels, passing), pixels); };
    const QString key = QStringLiteral("%1 %2x%3").arg(picture.cacheKey()).arg(pixels.width()).arg(pixels.height());
    return passing ? scale() : scaledPicture(key, scale);
}

QImage PictureCache::painted(QSvgRenderer* drawing, quint64 id, const QSize& pixels)
{
    const QString key = QStringLiteral("drawing %1 %2x%3").arg(id).arg(pixels.width()).arg(pixels.height());
    return scaledPicture(key, [&] {
        QImage picture(pixels, QImage::Format_ARGB32_Premultiplied);
        if (picture.isNull()) {
            return picture;
        }
        picture.fill(Qt::transparent);
        const QMutexLocker lock(&caches().drawing);
        QPainter painter(&picture);
        drawing->render(&painter, QRectF(QPointF(0, 0), pixels));
        return picture;
    });
}
} // namespace Korvex::Meridane::Common
