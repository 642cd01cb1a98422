#include "images/ImageUpdater.h"

#include "host/common/Picture.h"

#include <QGraphicsItem>

namespace Korvex::Meridane::Designer {

ImageUpdater::ImageUpdater(QGraphicsItem* item)
    : m_item(item)
    , m_picture(new Common::Picture(this))
{
    connect(m_picture, &Common::Picture::changed, this, [this] { onFrameChanged(m_picture->frame()); });
}

ImageUpdater::~ImageUpdater() = default;

void ImageUpdater::paint(const QSizeF& size, QPainter* painter) const
{
    m_picture->paint(size, painter);
}

void ImageUpdater::setImageFile(const QString& path)
{
    m_picture->setFile(path);
    m_placeholder = m_picture->isNull();
    if (m_placeholder)
        m_picture->setDrawing(QStringLiteral(":/images/defaultImage"));
}

void ImageUpdater::startAnimation()
{
    m_picture->start();
}

void ImageUpdater::stopAnimation()
{
    m_picture->stop();
}

void ImageUpdater::pauseAnimation()
{
    m_picture->pause();
}

void ImageUpdater::resumeAnimation()
{
    m_picture->resume();
}

void ImageUpdater::unload()
{
    m_picture->freeze();
}

void ImageUpdater::onFrameChanged(int)
{
    m_item->update();
}

} // namespace Korvex::Meridane::Designer
