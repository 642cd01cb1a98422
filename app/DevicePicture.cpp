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
    m_scale = scale;
    resize(sizeHint());
    update();
}

QSizeF DevicePicture::shownSize() const
{
    const double ratio = devicePixelRatioF();
    const double scale = m_scale > 0 ? m_scale : std::max(std::floor(ratio), 1.0) / ratio;
    return QSizeF(m_picture.size()) * scale;
}

QSize DevicePicture::sizeHint() const
{
    const QSizeF shown = shownSize();
    return {int(std::ceil(shown.width())), int(std::ceil(shown.height()))};
}

void DevicePicture::paintEvent(QPaintEvent*)
{
    if (m_picture.isNull())
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
