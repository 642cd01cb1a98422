#include "host/core/widgets/ScreenColorOverlay.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/values/ValueConversion.h"

#include <QtGui/QCloseEvent>
#include <QtGui/QCursor>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QScreen>

#include <cmath>

namespace Korvex::Meridane::Designer {
namespace {
/** Picture pixels along a side of the magnifier (odd, so that one lies in the middle), and how large each is shown. */
constexpr int magnifiedPixels = 15;
constexpr int magnification = 8;
constexpr int magnifierSide = magnifiedPixels * magnification;
constexpr int labelHeight = 22;
constexpr int pointerDistance = 20;
} // namespace

ScreenColorOverlay::ScreenColorOverlay(QScreen* screen, const QPixmap& picture)
    : QWidget(nullptr, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_picture(picture.toImage().convertToFormat(QImage::Format_RGB32))
    , m_ratio(picture.devicePixelRatio())
{
    m_picture.setDevicePixelRatio(1);
    setGeometry(screen->geometry());
    setMouseTracking(true);
    setCursor(Qt::CrossCursor);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(Common::LocalizationHelper::coreString(QStringLiteral("Pick a color from the screen")));
    m_pointer = mapFromGlobal(QCursor::pos());
}

QPoint ScreenColorOverlay::pixelAt(const QPointF& point) const
{
    return {static_cast<int>(std::floor(point.x() * m_ratio)), static_cast<int>(std::floor(point.y() * m_ratio))};
}

QColor ScreenColorOverlay::colorAt(const QPointF& point) const
{
    const QPoint pixel = pixelAt(point);
    return m_picture.valid(pixel) ? m_picture.pixelColor(pixel) : QColor();
}

/** Beside the pointer, on the side where there is room. */
QRectF ScreenColorOverlay::magnifierRect() const
{
    QRectF area(m_pointer + QPointF(pointerDistance, pointerDistance),
                QSizeF(magnifierSide, magnifierSide + labelHeight));
    if (area.right() > width()) {
        area.moveRight(m_pointer.x() - pointerDistance);
    }
    if (area.bottom() > height()) {
        area.moveBottom(m_pointer.y() - pointerDistance);
    }
    return area;
}

void ScreenColorOverlay::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    painter.drawImage(QRectF(0, 0, m_picture.width() / m_ratio, m_picture.height() / m_ratio), m_picture);
    const QColor color = colorAt(m_pointer);
    if (!color.isValid()) {
        return;
    }
    const QRectF area = magnifierRect();
    painter.fillRect(area, palette().window());
    const QPoint center = pixelAt(m_pointer);
    for (int row = 0; row < magnifiedPixels; ++row) {
        for (int column = 0; column < magnifiedPixels; ++column) {
            const QPoint pixel = center + QPoint(column - magnifiedPixels / 2, row - magnifiedPixels / 2);
            if (m_picture.valid(pixel)) {
                painter.fillRect(QRectF(area.left() + column * magnification, area.top() + row * magnification,
                                        magnification, magnification),
                                 m_picture.pixelColor(pixel));
            }
        }
    }
    const int middle = magnifiedPixels / 2 * magnification;
    const QRectF marked(area.left() + middle, area.top() + middle, magnification, magnification);
    painter.setPen(QPen(Qt::white, 1));
    painter.drawRect(marked.adjusted(-1.5, -1.5, 0.5, 0.5));
    painter.setPen(QPen(Qt::black, 1));
    painter.drawRect(marked.adjusted(-0.5, -0.5, -0.5, -0.5));
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawRect(area.adjusted(0.5, 0.5, -0.5, -0.5));
    painter.drawText(QRectF(area.left(), area.bottom() - labelHeight, area.width(), labelHeight), Qt::AlignCenter,
                     ValueConversion::toString(color));
}

void ScreenColorOverlay::mouseMoveEvent(QMouseEvent* event)
{
    m_pointer = event->position();
    update();
}

void ScreenColorOverlay::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        pick(event->position());
    } else if (event->button() == Qt::RightButton) {
        Q_EMIT cancelled();
    }
}

void ScreenColorOverlay::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        Q_EMIT cancelled();
        break;
    case Qt::Key_Enter:
    case Qt::Key_Return:
    case Qt::Key_Space:
        pick(m_pointer);
        break;
    case Qt::Key_Left:
        movePointer(-1, 0);
        break;
    case Qt::Key_Right:
        movePointer(1, 0);
        break;
    case Qt::Key_Up:
        movePointer(0, -1);
        break;
    case Qt::Key_Down:
        movePointer(0, 1);
        break;
    default:
        QWidget::keyPressEvent(event);
        break;
    }
}

void ScreenColorOverlay::closeEvent(QCloseEvent* event)
{
    event->accept();
    Q_EMIT cancelled();
}

void ScreenColorOverlay::movePointer(int dx, int dy)
{
    const QPointF moved = m_pointer + QPointF(dx, dy);
    if (colorAt(moved).isValid()) {
        m_pointer = moved;
        QCursor::setPos(screen(), mapToGlobal(moved).toPoint());
        update();
    }
}

void ScreenColorOverlay::pick(const QPointF& point)
{
    const QColor color = colorAt(point);
    if (color.isValid()) {
        Q_EMIT picked(color);
    }
}
} // namespace Korvex::Meridane::Designer
