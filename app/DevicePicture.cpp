#include "app/DevicePicture.h"

#include "app/CoreText.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

DevicePicture::DevicePicture(QWidget* parent)
    : QWidget(parent)
{
    setAccessibleName(coreText("The screen as the panel shows it"));
}

void DevicePicture::setPicture(const QImage& picture)
{
    const bool sameSize = picture.size() == m_picture.size();
    m_picture = picture;
    if (!sameSize)
        resize(sizeHint());
    update();
}

void DevicePicture::setScale(double scale)
{
    if (scale == m_scale)
        return;
    m_scale = scale;
    resize(sizeHint());
    update();
}

double DevicePicture::pixelScale() const
{
    const double ratio = devicePixelRatioF();
    return std::max(std::floor(ratio), 1.0) / ratio;
}

QSizeF DevicePicture::shownSize() const
{
    return QSizeF(m_picture.size()) * (m_scale > 0 ? m_scale : pixelScale());
}

QSize DevicePicture::sizeHint() const
{
    const QSizeF shown = shownSize();
    return {int(std::ceil(shown.width())), int(std::ceil(shown.height()))};
}

void DevicePicture::paintEvent(QPaintEvent*)
{
    if (m_picture.isNull() || size().isEmpty())
        return;
    QPainter painter(this);
    const QSizeF shown = shownSize();
    const QSize pixels = (shown * devicePixelRatioF()).toSize();
    if (pixels.width() % m_picture.width() == 0 && pixels.height() % m_picture.height() == 0) {
        painter.drawImage(QRectF(QPointF(0, 0), shown), m_picture);
        return;
    }
    // Neither dropped nor doubled lines: at its physical size a pattern of single pixels is to look as even as it is.
    QImage scaled = m_picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    scaled.setDevicePixelRatio(devicePixelRatioF());
    painter.drawImage(QPointF(0, 0), scaled);
}

} // namespace Korvex::Meridane::Designer
