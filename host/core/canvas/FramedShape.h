#pragma once

#include "host/core/CoreExport.h"

#include <QBrush>
#include <QPen>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace Korvex::Meridane::Designer {

/**
 * What a filled, bordered shape in a rectangular frame draws: the copy that the canvas items of the rectangle and the
 * ellipse keep of their element's "size", "color" and "border".
 *
 * The frame starts at (0, 0); the border is centred on its outline. A pen counts only when its width is above 0 and
 * its colour is valid. Values that do not convert are ignored.
 */
class MERIDANE_CORE_EXPORT FramedShape
{
public:
    FramedShape();

    [[nodiscard]] const QSizeF& size() const { return m_size; }
    void setSize(const QSizeF& size) { m_size = size; }
    [[nodiscard]] const QPen& pen() const { return m_pen; }
    [[nodiscard]] const QBrush& brush() const { return m_brush; }
    /// The width of the pen in pixels; 0 when it does not count.
    [[nodiscard]] int penWidth() const;

    /// Takes the value string of "size", "color" or "border" over. False when \a id is none of them.
    bool takeValue(const QString& id, const QString& valueString);

    /// The outer rectangle: empty without a size, and when neither pen nor brush draws anything.
    [[nodiscard]] QRectF outerRect() const;
    [[nodiscard]] QRectF contentRect() const { return {QPointF(0, 0), m_size}; }
    /// The content that belongs to an outer size, without the noise of the subtraction.
    [[nodiscard]] QSizeF contentSize(const QSizeF& outerSize) const;

    friend bool operator==(const FramedShape& a, const FramedShape& b);

private:
    QSizeF m_size = {100, 75};
    QBrush m_brush;
    QPen m_pen;
};

} // namespace Korvex::Meridane::Designer
