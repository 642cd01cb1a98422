#pragma once

#include <QtGui/QColor>

namespace Korvex::Meridane::Designer {
/** The border of an element: a line of one colour, centred on the outline. */
class BorderInfo
{
public:
    /** No border: width 0, black. */
    BorderInfo() = default;

    /** @param width in whole pixels, 0 or more; 0 means no border. */
    BorderInfo(int width, const QColor& color)
        : m_width(width)
        , m_color(color)
    {}

    /** In whole pixels. */
    [[nodiscard]] int width() const { return m_width; }
    [[nodiscard]] const QColor& color() const { return m_color; }

    friend bool operator==(const BorderInfo& a, const BorderInfo& b) = default;

private:
    int m_width = 0;
    QColor m_color = QColor(Qt::black);
};
} // namespace Korvex::Meridane::Designer
