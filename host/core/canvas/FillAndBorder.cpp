#include "host/core/canvas/FillAndBorder.h"

#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

FillAndBorder::FillAndBorder()
    : m_brush(QColor(248, 151, 29))
    , m_pen(Qt::NoPen)
{}

int FillAndBorder::penWidth() const
{
    return Common::PaintHelper::penCounts(m_pen) ? m_pen.width() : 0;
}

bool FillAndBorder::takeValue(const QString& id, const QString& valueString)
{
    bool ok = false;
    if (id == QLatin1String("color")) {
        const QColor color = ValueConversion::toColor(valueString, &ok);
        if (ok)
            m_brush = QBrush(color);
        return true;
    }
    if (id == QLatin1String("border")) {
        const BorderInfo border = ValueConversion::toBorderInfo(valueString, &ok);
        if (ok)
            m_pen = border.width() > 0 ? QPen(border.color(), border.width()) : QPen(Qt::NoPen);
        return true;
    }
    return false;
}

} // namespace Korvex::Meridane::Designer
