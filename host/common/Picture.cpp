#include "host/common/Picture.h"

#include "host/common/PaintHelper.h"
#include "host/common/PictureCache.h"

#include <QtCore/QBuffer>
#include <QtGui/QMovie>

namespace Korvex::Meridane::Common {
namespace {
/** Frames are kept once they are decoded, unless they would take more bytes than this. */
constexpr qint64 MostCachedBytes = 128 * 1024 * 1024;

bool fitsIntoCache(const PictureInfo& info)
{
    constexpr qint64 BytesAPixel = 4;
    return BytesAPixel * info.size.width() * info.size.height() * info.frames <= MostCachedBytes;
}

const std::shared_ptr<const PictureContent>& nothing()
{
    static const auto content = std::make_shared<const PictureContent>();
    return content;
}
} // namespace

Picture::Picture(QObject* parent)
    : QObject(parent)
    , m_content(nothing())
{}

Picture::~Picture()
{
    endMovie();
}

void Picture::setFile(const QString& file)
{
    show(file.isEmpty() ? nothing() : PictureCache::content(file));
}

void Picture::setDrawing(const QString& file)
{
    show(PictureCache::drawing(file));
}

bool Picture::isNull() const
{
    return m_content->info.kind == PictureKind::Unreadable;
}

bool Picture::holdsMovie() const
{
    return m_content->info.kind == PictureKind::Animation && m_frozen.isNull();
}

bool Picture::holdsDrawing() const
{
    return m_content->info.kind == PictureKind::Drawing;
}

bool Picture::isRunning() const
{
    return m_movie && m_movie->state() == QMovie::Running;
}

int Picture::frame() const
{
    return m_movie ? qMax(m_movie->currentFrameNumber(), 0) : 0;
}

void Picture::start()
{
    if (!holdsMovie() || isRunning()) {
        return;
    }
    if (!m_movie) {
        m_frames = std::make_unique<QBuffer>();
        m_frames->setData(m_content->animation);
        m_frames->open(QIODevice::ReadOnly);
        m_movie = std::make_unique<QMovie>(m_frames.get());
        m_movie->setCacheMode(fitsIntoCache(m_content->info) ? QMovie::CacheAll : QMovie::CacheNone);
        connect(m_movie.get(), &QMovie::frameChanged, this, &Picture::changed);
    }
    m_movie->start();
}

void Picture::stop()
{
    if (m_movie) {
        endMovie();
        Q_EMIT changed();
    }
}

void Picture::pause()
{
    if (isRunning()) {
        m_movie->setPaused(true);
    }
}

void Picture::resume()
{
    if (m_movie && m_movie->state() == QMovie::Paused) {
        m_movie->setPaused(false);
    }
}

void Picture::freeze()
{
    if (!holdsMovie()) {
        return;
    }
    m_frozen = m_movie ? m_movie->currentImage() : m_content->pixels;
    endMovie();
    Q_EMIT changed();
}

void Picture::paint(const QSizeF& size, QPainter* painter) const
{
    if (m_movie) {
        PaintHelper::paintPicture(size, m_movie->currentImage(), true, painter);
    } else if (m_content->drawing) {
        PaintHelper::paintDrawing(size, m_content->drawing.get(), m_content->drawingId, painter);
    } else {
        PaintHelper::paintPicture(size, m_frozen.isNull() ? m_content->pixels : m_frozen, false, painter);
    }
}

void Picture::show(const std::shared_ptr<const PictureContent>& content)
{
    endMovie();
    m_frozen = QImage();
    m_content = content;
    Q_EMIT changed();
}

void Picture::endMovie()
{
    if (m_movie) {
        m_movie->disconnect(this);
        m_movie->stop();
    }
    m_movie.reset();
    m_frames.reset();
}
} // namespace Korvex::Meridane::Common
