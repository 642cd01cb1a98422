#include "runtime/Ellipse.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Display {
Ellipse::Ellipse(QQuickItem* parent)
    : BorderedItem(parent)
{}

void Ellipse::paintContent(QPainter* painter) const
{
    Common::PaintHelper::paintEllipse(size(), pen(), color(), painter);
}
} // namespace Korvex::Meridane::Display
