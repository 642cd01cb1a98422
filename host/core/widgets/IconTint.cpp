#include "host/core/widgets/IconTint.h"

#include <QPainter>

namespace Korvex::Meridane::Designer {

QPixmap IconTint::tinted(const QPixmap& drawing, const QColor& ink)
{
    QPixmap tinted = drawing;
    if (tinted.isNull())
        return tinted;
    QPainter painter(&tinted);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(QRectF(QPointF(0, 0), tinted.deviceIndependentSize()), ink);
    return tinted;
}

} // namespace Korvex::Meridane::Designer
