#include "host/core/canvas/FramedShape.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/PaintHelper.h"

namespace Korvex::Meridane::Designer {

using Common::PaintHelper;

namespace {

QPen penOf(const BorderInfo& border)
{
    return border.width() > 0 ? QPen(border.color(), border.width()) : QPen(Qt::NoPen);
}

} // namespace

FramedShape::FramedShape()
    : m_brush(QColor(248, 151, 29))
    , m_pen(Qt::NoPen)
{}

int FramedShape::penWidth() const
{
    return PaintHelper::penCounts(m_pen) ? m_pen.width() : 0;
}

bool FramedShape::takeValue(const QString& id, const QString& valueString)
{
    bool ok = false;
    if (id == QLatin1String("size")) {
        const QSizeF size = ValueConversion::toSize(valueString, &ok);
        if (ok)
            m_size = size;
        return true;
    }
    if (id == QLatin1String("color")) {
        const QColor color = ValueConversion::toColor(valueString, &ok);
        if (ok)
            m_brush = QBrush(color);
        return true;
    }
    if (id == QLatin1String("border")) {
        const BorderInfo border = ValueConversion::toBorderInfo(valueString, &ok);
        if (ok)
            m_pen = penOf(border);
        return true;
    }
    return false;
}

QRectF FramedShape::outerRect() const
{
    if (!(m_size.width() > 0 && m_size.height() > 0) || (penWidth() == 0 && !m_brush.color().isValid()))
        return {};
    return PaintHelper::getBoundingRect(m_size.width(), m_size.height(), penWidth());
}

QSizeF FramedShape::contentSize(const QSizeF& outerSize) const
{
    const int border = penWidth();
    return border == 0 ? outerSize : withoutNoise(outerSize - QSizeF(border, border));
}

bool operator==(const FramedShape& a, const FramedShape& b)
{
    // Sizes are compared exactly: what is drawn is what the property says.
    return a.m_size.width() == b.m_size.width() && a.m_size.height() == b.m_size.height() && a.m_brush == b.m_brush
           && a.m_pen == b.m_pen;
}

} // namespace Korvex::Meridane::Designer
