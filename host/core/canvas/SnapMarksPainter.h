#pragma once

#include <QLineF>
#include <QList>
#include <QRegion>

class QPainter;

namespace Korvex::Meridane::Designer {

class CanvasView;
struct SnapGap;
struct SnapMarks;

/// Draws the lines between aligned things, and equal gaps with their width, one screen pixel thin at every zoom.
class SnapMarksPainter
{
public:
    explicit SnapMarksPainter(const CanvasView* view)
        : m_view(view)
    {}

    /// In viewport pixels.
    void paint(const SnapMarks& marks, QPainter* painter) const;
    /// The part of the viewport that paint() draws in.
    [[nodiscard]] QRegion region(const SnapMarks& marks) const;

private:
    [[nodiscard]] QList<QLineF> linesOf(const SnapMarks& marks) const;
    [[nodiscard]] QList<QLineF> linesOf(const SnapGap& gap) const;
    [[nodiscard]] QRectF labelOf(const SnapGap& gap) const;

    const CanvasView* m_view;
};

} // namespace Korvex::Meridane::Designer
