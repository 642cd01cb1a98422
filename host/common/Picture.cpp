#include "host/common/Picture.h"

#include "host/common/PaintHelper.h"
#include "host/common/PictureCache.h"
#include "host/common/PictureFile.h"

#include <QtGui/QMovie>
#include <QtSvg/QSvgRenderer>

#include <utility>

namespace Korvex::Meridane::Common {
namespace {
/** Frames are kept once they are decoded, unless they would take more bytes than this. */
constexpr qint64 MostCachedBytes = 128 * 1024 * 1024;

bool fitsIntoCache(const PictureInfo& info)
{
    constexpr qint64 BytesAPixel = 4;
    return BytesAPixel * info.size.width() * info.size.height() * info.frames <= MostCachedBytes;
}
} // namespace

Picture::Picture(QObject* parent)
    : QObject(parent)
{}

Picture::~Picture() = default;

void Picture::setFile(const QString& file)
{
    clear();
    const PictureInfo info = file.isEmpty() ? PictureInfo() : pictureInfo(file);
    switch (info.kind) {
    case PictureKind::Unreadable:
        break;
    case PictureKind::Animation:
        m_movie = std::make_unique<QMovie>(file);
        m_movie->setCacheMode(fitsIntoCache(info) ? QMovie::CacheAll : QMovie::CacheNone);
        connect(m_movie.get(), &QMovie::frameChanged, this, &Picture::changed);
        if (!m_movie->jumpToFrame(0)) {
            clear();
        }
        break;
    case PictureKind::Drawing:
        setDrawing(file);
        return;
    case PictureKind::Still:
        m_still = PictureCache::still(file);
        break;
    }
    Q_EMIT changed();
}

void Picture::setDrawing(const QString& file)
{
    clear();
    m_drawing = std::make_unique<QSvgRenderer>(file);
    m_drawingId = PictureCache::nextDrawingId();
    Q_EMIT changed();
}

bool Picture::isRunning() const
{
    return m_movie && m_movie->state() == QMovie::Running;
}

int Picture::frame() const
{
    return m_movie ? m_movie->currentFrameNumber() : 0;
}

void Picture::start()
{
    if (m_movie && m_movie->state() != QMovie::Running) {
        m_movie->start();
    }
}

void Picture::stop()
{
    if (!m_movie) {
        return;
    }
    m_movie->stop();
    m_movie->jumpToFrame(0);
    Q_EMIT changed();
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
    if (!m_movie) {
        return;
    }
    const auto movie = std::exchange(m_movie, nullptr);
    movie->disconnect(this);
    movie->stop();
    m_still = movie->currentImage();
    Q_EMIT changed();
}

void Picture::paint(const QSizeF& size, QPainter* painter) const
{
    if (m_movie) {
        PaintHelper::paintPicture(size, m_movie->currentImage(), true, painter);
    } else if (m_drawing) {
        PaintHelper::paintDrawing(size, m_drawing.get(), m_drawingId, painter);
    } else {
        PaintHelper::paintPicture(size, m_still, false, painter);
    }
}

void Picture::clear()
{
    if (m_movie) {
        m_movie->disconnect(this);
        m_movie->stop();
        m_movie.reset();
    }
    m_drawing.reset();
    m_still = QImage();
}
} // namespace Korvex::Meridane::Common
