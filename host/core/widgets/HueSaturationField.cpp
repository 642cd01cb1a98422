#include "host/core/widgets/HueSaturationField.h"

#include "host/common/LocalizationHelper.h"
#include "host/core/accessibility/ControlRoles.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

#include <algorithm>

namespace Korvex::Meridane::Designer {
namespace {
constexpr double ringRadius = 5;

/** Full brightness everywhere; hue runs along x, saturation falls along y. */
QImage paintedField(const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    const double right = std::max(size.width() - 1, 1);
    const double bottom = std::max(size.height() - 1, 1);
    for (int y = 0; y < size.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            line[x] = QColor::fromHsvF(static_cast<float>(x / right), static_cast<float>(1 - y / bottom), 1).rgb();
        }
    }
    return image;
}
} // namespace

HueSaturationField::HueSaturationField(QWidget* parent)
    : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::CrossCursor);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    ControlRoles::install();
    setAccessibleName(Common::LocalizationHelper::coreString(QStringLiteral("Hue and saturation")));
    describe();
}

void HueSaturationField::setHueAndSaturation(double hue, double saturation)
{
    m_hue = std::clamp(hue, 0.0, 1.0);
    m_saturation = std::clamp(saturation, 0.0, 1.0);
    describe();
    update();
}

QSize HueSaturationField::sizeHint() const
{
    return {220, 150};
}

QSize HueSaturationField::minimumSizeHint() const
{
    return {100, 70};
}

void HueSaturationField::describe()
{
    setAccessibleDescription(Common::LocalizationHelper::coreString(QStringLiteral("Hue %1\u00b0, saturation %2%"))
                                 .arg(qRound(m_hue * 360))
                                 .arg(qRound(m_saturation * 100)));
}

/** The coloured area; around it is room for the ring and the focus frame. */
QRectF HueSaturationField::fieldRect() const
{
    return QRectF(rect()).adjusted(3, 3, -3, -3);
}

void HueSaturationField::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    const QRectF field = fieldRect();
    if (field.isEmpty()) {
        return;
    }
    const QSize pixels = (field.size() * devicePixelRatio()).toSize();
    if (m_field.size() != pixels) {
        m_field = paintedField(pixels);
    }
    QPainter painter(this);
    painter.drawImage(field, m_field);
    painter.setRenderHint(QPainter::Antialiasing);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    }
    // Dark and light, so that the ring is seen on every colour.
    const QPointF center(field.left() + m_hue * field.width(), field.bottom() - m_saturation * field.height());
    painter.setPen(QPen(Qt::white, 3));
    painter.drawEllipse(center, ringRadius, ringRadius);
    painter.setPen(QPen(Qt::black, 1.2));
    painter.drawEllipse(center, ringRadius, ringRadius);
}

void HueSaturationField::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_field = QImage();
}

void HueSaturationField::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    m_gesture = true;
    Q_EMIT gestureStarted();
    editAt(event->position());
}

void HueSaturationField::mouseMoveEvent(QMouseEvent* event)
{
    if (m_gesture) {
        editAt(event->position());
    }
}

void HueSaturationField::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        finishGesture();
    }
}

void HueSaturationField::hideEvent(QHideEvent* event)
{
    finishGesture();
    QWidget::hideEvent(event);
}

void HueSaturationField::finishGesture()
{
    if (m_gesture) {
        m_gesture = false;
        Q_EMIT gestureFinished();
    }
}

void HueSaturationField::keyPressEvent(QKeyEvent* event)
{
    const double step = event->modifiers().testFlag(Qt::ShiftModifier) ? 0.1 : 0.01;
    switch (event->key()) {
    case Qt::Key_Left:
        edit(m_hue - step, m_saturation);
        break;
    case Qt::Key_Right:
        edit(m_hue + step, m_saturation);
        break;
    case Qt::Key_Up:
        edit(m_hue, m_saturation + step);
        break;
    case Qt::Key_Down:
        edit(m_hue, m_saturation - step);
        break;
    default:
        QWidget::keyPressEvent(event);
        break;
    }
}

void HueSaturationField::editAt(const QPointF& point)
{
    const QRectF field = fieldRect();
    if (!field.isEmpty()) {
        edit((point.x() - field.left()) / field.width(), (field.bottom() - point.y()) / field.height());
    }
}

void HueSaturationField::edit(double hue, double saturation)
{
    const double oldHue = m_hue;
    const double oldSaturation = m_saturation;
    setHueAndSaturation(hue, saturation);
    if (m_hue != oldHue || m_saturation != oldSaturation) {
        Q_EMIT userModified();
    }
}
} // namespace Korvex::Meridane::Designer
