#include "host/core/widgets/NineGrid.h"

#include "host/common/LocalizationHelper.h"
#include "host/common/TransformOrigin.h"
#include "host/core/accessibility/ControlRoles.h"
#include "host/core/values/RotationInfo.h"

#include <QtGui/QHelpEvent>
#include <QtGui/QKeyEvent>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QToolTip>

#include <algorithm>
#include <array>

namespace Korvex::Meridane::Designer {
namespace {
using Common::LocalizationHelper;

constexpr int side = 54;
constexpr int columns = 3;
constexpr int lastIndex = 8;
constexpr double margin = 8;
constexpr double dotRadius = 3;
constexpr double chosenRadius = 5;

QString pointLabel(int index)
{
    const std::array<QString, lastIndex + 1> labels{
        QStringLiteral(QT_TRANSLATE_NOOP("Core", "Top left")),     QStringLiteral(QT_TRANSLATE_NOOP("Core", "Top")),
        QStringLiteral(QT_TRANSLATE_NOOP("Core", "Top right")),    QStringLiteral(QT_TRANSLATE_NOOP("Core", "Left")),
        QStringLiteral(QT_TRANSLATE_NOOP("Core", "Center")),       QStringLiteral(QT_TRANSLATE_NOOP("Core", "Right")),
        QStringLiteral(QT_TRANSLATE_NOOP("Core", "Bottom left")),  QStringLiteral(QT_TRANSLATE_NOOP("Core", "Bottom")),
        QStringLiteral(QT_TRANSLATE_NOOP("Core", "Bottom right")),
    };
    return LocalizationHelper::coreString(labels.at(static_cast<std::size_t>(index)));
}
} // namespace

NineGrid::NineGrid(QWidget* parent)
    : QWidget(parent)
    , m_chosen(Common::Center)
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    ControlRoles::install();
    setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Fixed point")));
    describe();
}

QString NineGrid::fixedPoint() const
{
    return RotationInfo::fixedPointNames().at(m_chosen);
}

void NineGrid::setFixedPoint(const QString& name)
{
    const qsizetype index = RotationInfo::fixedPointNames().indexOf(name);
    if (index < 0) {
        return;
    }
    m_chosen = static_cast<int>(index);
    m_mixed = false;
    describe();
    update();
}

void NineGrid::setMixed(bool mixed)
{
    m_mixed = mixed;
    describe();
    update();
}

QSize NineGrid::sizeHint() const
{
    return {side, side};
}

QSize NineGrid::minimumSizeHint() const
{
    return {side, side};
}

void NineGrid::describe()
{
    setAccessibleDescription(m_mixed ? QStringLiteral("\u2014") : pointLabel(m_chosen));
}

QRectF NineGrid::frame() const
{
    return QRectF(rect()).adjusted(margin, margin, -margin, -margin);
}

QPointF NineGrid::pointPosition(int index) const
{
    const QPointF fractions = Common::originFractions(static_cast<Common::TransformOrigin>(index));
    return frame().topLeft() + QPointF(fractions.x() * frame().width(), fractions.y() * frame().height());
}

int NineGrid::pointAt(const QPointF& position) const
{
    const auto third = [](double x, double extent) {
        return extent > 0 ? std::clamp(static_cast<int>(x / extent * columns), 0, columns - 1) : 0;
    };
    return third(position.y(), height()) * columns + third(position.x(), width());
}

bool NineGrid::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto* help = static_cast<QHelpEvent*>(event);
        QToolTip::showText(help->globalPos(), pointLabel(pointAt(help->pos())), this);
        return true;
    }
    return QWidget::event(event);
}

void NineGrid::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    QColor line = palette().color(group, QPalette::WindowText);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(group, QPalette::Highlight), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 2, 2);
    }
    line.setAlphaF(line.alphaF() * 0.5F);
    painter.setPen(QPen(line, 1));
    painter.drawRect(frame());
    for (int index = 0; index <= lastIndex; ++index) {
        const bool chosen = index == m_chosen && !m_mixed;
        painter.setPen(QPen(palette().color(group, QPalette::WindowText), index == m_hovered && isEnabled() ? 2 : 1));
        painter.setBrush(palette().brush(group, chosen ? QPalette::Highlight : QPalette::Base));
        const double radius = chosen ? chosenRadius : dotRadius;
        painter.drawEllipse(pointPosition(index), radius, radius);
    }
}

void NineGrid::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        choose(pointAt(event->position()));
    } else {
        event->ignore();
    }
}

void NineGrid::mouseMoveEvent(QMouseEvent* event)
{
    setHovered(pointAt(event->position()));
}

void NineGrid::leaveEvent(QEvent* event)
{
    setHovered(-1);
    QWidget::leaveEvent(event);
}

void NineGrid::keyPressEvent(QKeyEvent* event)
{
    const int row = m_chosen / columns;
    const int column = m_chosen % columns;
    switch (event->key()) {
    case Qt::Key_Left:
        choose(row * columns + std::max(column - 1, 0));
        break;
    case Qt::Key_Right:
        choose(row * columns + std::min(column + 1, columns - 1));
        break;
    case Qt::Key_Up:
        choose(std::max(row - 1, 0) * columns + column);
        break;
    case Qt::Key_Down:
        choose(std::min(row + 1, columns - 1) * columns + column);
        break;
    case Qt::Key_Home:
        choose(0);
        break;
    case Qt::Key_End:
        choose(lastIndex);
        break;
    case Qt::Key_Space:
        choose(m_chosen); // settles a mixed state
        break;
    default:
        QWidget::keyPressEvent(event);
        break;
    }
}

void NineGrid::focusInEvent(QFocusEvent* event)
{
    QWidget::focusInEvent(event);
    Q_EMIT focusedIn();
}

void NineGrid::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    Q_EMIT focusedOut();
}

void NineGrid::choose(int index)
{
    if (index == m_chosen && !m_mixed) {
        return;
    }
    m_chosen = index;
    m_mixed = false;
    describe();
    update();
    Q_EMIT userModified();
}

void NineGrid::setHovered(int index)
{
    if (index != m_hovered) {
        m_hovered = index;
        update();
    }
}
} // namespace Korvex::Meridane::Designer
