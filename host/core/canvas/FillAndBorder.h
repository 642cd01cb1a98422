#pragma once

#include "host/core/CoreExport.h"

#include <QBrush>
#include <QPen>
#include <QString>

namespace Korvex::Meridane::Designer {

/**
 * How a filled, bordered shape is drawn: the copy that its canvas item keeps of the element's "color" and "border".
 *
 * A pen counts only when its width is above 0 and its colour is valid. Values that do not convert are ignored.
 */
class MERIDANE_CORE_EXPORT FillAndBorder
{
public:
    FillAndBorder();

    [[nodiscard]] const QPen& pen() const { return m_pen; }
    [[nodiscard]] const QBrush& brush() const { return m_brush; }
    /// The width of the pen in pixels; 0 when it does not count.
    [[nodiscard]] int penWidth() const;
    /// Whether there is anything to draw with.
    [[nodiscard]] bool isVisible() const { return penWidth() > 0 || m_brush.color().isValid(); }

    /// Takes the value string of "color" or "border" over. False when \a id is neither.
    bool takeValue(const QString& id, const QString& valueString);

    friend bool operator==(const FillAndBorder& a, const FillAndBorder& b) = default;

private:
    QBrush m_brush;
    QPen m_pen;
};

} // namespace Korvex::Meridane::Designer
