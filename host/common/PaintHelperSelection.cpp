#include "host/common/PaintHelper.h"

#include <QtGui/QPainter>
#include <QtGui/QPen>
// Only the public member "state" is read: no symbol of the Widgets library is used.
#include <QtWidgets/QStyleOptionGraphicsItem>

namespace Korvex::Meridane::Common {
void PaintHelper::paintHighlightSelected(const QRectF& rect, QPainter* painter, const QStyleOptionGraphicsItem* option)
{
    if (!option || !(option->state & QStyle::State_Selected) || rect.isNull()) {
        return;
    }
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing, false);
    painter->setBrush(Qt::NoBrush);
    // Width 0 is one pixel of the device, whatever the zoom and the device pixel ratio.
    painter->setPen(QPen(Qt::white, 0));
    painter->drawRect(rect);
    QPen dashes(Qt::black, 0);
    dashes.setDashPattern({4, 4});
    painter->setPen(dashes);
    painter->drawRect(rect);
    painter->restore();
}
} // namespace Korvex::Meridane::Common
