#include "host/core/editors/ImageThumbnails.h"

#include "host/common/PictureCache.h"

#include <QCache>
#include <QDateTime>
#include <QFileInfo>
#include <QPainter>
#include <QSvgRenderer>

namespace Korvex::Meridane::Designer {

using Common::PictureCache;
using Common::PictureKind;

namespace {

/// The largest size in the ratio of \a natural that fits into a square of \a side pixels; no larger than \a natural.
QSize fitted(const QSize& natural, int side)
{
    const QSize square(side, side);
    const bool fits = natural.width() <= side && natural.height() <= side;
    return fits ? natural : natural.scaled(square, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

QImage painted(const QString& file, const QSize& natural, int side)
{
    QSvgRenderer drawing(file);
    // A drawing is as sharp at any size.
    const QSize size =
        natural.isEmpty() ? QSize(side, side) : natural.scaled(side, side, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    QImage picture(size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    drawing.render(&painter, QRectF(QPointF(0, 0), size));
    return picture;
}

ImageThumbnail makeThumbnail(const QString& file, int side)
{
    ImageThumbnail thumbnail;
    thumbnail.info = Common::pictureInfo(file, &thumbnail.reason);
    if (thumbnail.info.kind == PictureKind::Unreadable)
        return thumbnail;
    if (thumbnail.info.kind == PictureKind::Drawing) {
        thumbnail.picture = painted(file, thumbnail.info.size, side);
        return thumbnail;
    }
    const QImage still = PictureCache::still(file);
    if (still.isNull()) {
        thumbnail.info.kind = PictureKind::Unreadable;
        thumbnail.reason = QStringLiteral("the file is damaged");
        return thumbnail;
    }
    thumbnail.picture = PictureCache::scaled(still, fitted(still.size(), side));
    return thumbnail;
}

/// What has been made, by file, time and size of the file, and side. GUI thread only.
QCache<QString, ImageThumbnail>& cache()
{
    constexpr int Kept = 500;
    static QCache<QString, ImageThumbnail> thumbnails(Kept);
    return thumbnails;
}

QString keyOf(const QString& file, int side)
{
    const QFileInfo info(file);
    return QStringLiteral("%1|%2|%3|%4")
        .arg(info.lastModified().toMSecsSinceEpoch())
        .arg(info.size())
        .arg(side)
        .arg(file);
}

} // namespace

ImageThumbnails::ImageThumbnails(int side, QObject* parent)
    : QObject(parent)
    , m_side(side)
{}

ImageThumbnails::~ImageThumbnails()
{
    m_waiting.clear();
    m_thread.quit();
    m_thread.wait();
    delete m_worker;
}

void ImageThumbnails::request(const QString& file)
{
    if (!m_waiting.contains(file))
        m_waiting.append(file);
    if (!m_loading)
        QMetaObject::invokeMethod(this, &ImageThumbnails::loadNext, Qt::QueuedConnection);
}

void ImageThumbnails::cancel()
{
    m_waiting.clear();
}

void ImageThumbnails::loadNext()
{
    while (!m_loading && !m_waiting.isEmpty()) {
        const QString file = m_waiting.takeFirst();
        const QString key = keyOf(file, m_side);
        if (const ImageThumbnail* known = cache().object(key)) {
            const ImageThumbnail thumbnail = *known;
            Q_EMIT loaded(file, thumbnail);
            continue;
        }
        if (!m_worker) {
            m_worker = new QObject;
            m_worker->moveToThread(&m_thread);
            m_thread.start(QThread::LowPriority);
        }
        m_loading = true;
        QMetaObject::invokeMethod(m_worker, [this, file, key, side = m_side] {
            const ImageThumbnail thumbnail = makeThumbnail(file, side);
            // This object is there: it waits for the thread before it goes.
            QMetaObject::invokeMethod(
                this,
                [this, file, key, thumbnail] {
                    cache().insert(key, new ImageThumbnail(thumbnail));
                    finish(file, thumbnail);
                },
                Qt::QueuedConnection);
        });
    }
}

void ImageThumbnails::finish(const QString& file, const ImageThumbnail& thumbnail)
{
    m_loading = false;
    Q_EMIT loaded(file, thumbnail);
    loadNext();
}

QPixmap ImageThumbnails::squarePixmap(const QImage& thumbnail, int side, qreal scale)
{
    QPixmap square(QSize(side, side) * scale);
    square.fill(Qt::transparent);
    square.setDevicePixelRatio(scale);
    if (!thumbnail.isNull()) {
        QPainter painter(&square);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        QSizeF size = thumbnail.size();
        if (size.width() > side || size.height() > side)
            size.scale(side, side, Qt::KeepAspectRatio);
        painter.drawImage(QRectF(QPointF((side - size.width()) / 2, (side - size.height()) / 2), size), thumbnail);
    }
    return square;
}

} // namespace Korvex::Meridane::Designer
