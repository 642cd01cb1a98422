#include "host/core/widgets/ItemButton.h"

#include <QtWidgets/QStyleOptionToolButton>
#include <QtWidgets/QStylePainter>

namespace Korvex::Meridane::Designer {
namespace {
/** Half the length of the strokes, as a share of an icon's side. */
constexpr double strokeReach = 0.32;
constexpr double strokeWidth = 1.5;
} // namespace

ItemButton::ItemButton(Action action, QWidget* parent)
    : QToolButton(parent)
    , m_action(action)
{
    setObjectName(action == Action::Add ? QStringLiteral("addItem") : QStringLiteral("removeItem"));
    setAutoRaise(true);
    // A click takes the focus, so that what is being typed beside the button is taken over first.
    setFocusPolicy(Qt::StrongFocus);
}

QSize ItemButton::sizeHint() const
{
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this) + 6;
    return {side, side};
}

void ItemButton::paintEvent(QPaintEvent* event)
{
    Q_UNUSED(event);
    QStylePainter painter(this);
    QStyleOptionToolButton option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ToolButton, option);

    const double reach = strokeReach * style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    const QPointF middle = QRectF(rect()).center();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText),
                        strokeWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(middle - QPointF(reach, 0), middle + QPointF(reach, 0));
    if (m_action == Action::Add) {
        painter.drawLine(middle - QPointF(0, reach), middle + QPointF(0, reach));
    }
}
} // namespace Korvex::Meridane::Designer
