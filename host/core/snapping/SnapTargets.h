#pragma once

#include "host/core/snapping/SnapAxis.h"

#include <QFlags>
#include <QPointF>
#include <QRectF>

namespace Korvex::Meridane::Designer {

/// A side or a middle of a rectangle.
enum class SnapEdge
{
    Left = 0x01,
    HorizontalCenter = 0x02,
    Right = 0x04,
    Top = 0x08,
    VerticalCenter = 0x10,
    Bottom = 0x20,
    All = 0x3f
};
Q_DECLARE_FLAGS(SnapEdges, SnapEdge)
Q_DECLARE_OPERATORS_FOR_FLAGS(SnapEdges)

/// Something that moves and would like to be in place. All in pixels of the screen that is designed.
struct SnapRequest
{
    QRectF rect; ///< where it is without snapping; empty for a point
    SnapEdges edges = SnapEdge::All; ///< what of it moves; a point has its left and top
    double reach = 6; ///< the farthest that snapping may move it
    bool wholePixels = true; ///< move by whole pixels only
};

/// A line that shows what is aligned, along x or y.
struct SnapLine
{
    Qt::Orientation orientation = Qt::Vertical; ///< a vertical line stands at an x
    double position = 0;
    double from = 0;
    double to = 0;
    SnapKind kind = SnapKind::Element;
};

/// One of several equal gaps. A horizontal one reaches from x to x.
struct SnapGap
{
    Qt::Orientation orientation = Qt::Horizontal;
    double from = 0;
    double to = 0;
    double across = 0; ///< where to draw it: the middle of what both neighbours share
};

/// How to move, and what then is in place.
struct SnapResult
{
    QPointF correction;
    bool snapsX = false;
    bool snapsY = false;
    SnapKind kindX = SnapKind::Grid; ///< why it snaps in x, if it does
    SnapKind kindY = SnapKind::Grid;
};

/// The lines and gaps that show why something stands where it stands.
struct SnapMarks
{
    QVector<SnapLine> lines;
    QVector<SnapGap> gaps;
};

/**
 * What a gesture snaps to, in the coordinates of the screen that is designed: the edges and centres of elements and of the
 * screen, equal gaps between elements, guides and a grid. Geometry alone: filled once per gesture, prepared, then asked
 * at every move of the mouse.
 */
class MERIDANE_CORE_EXPORT SnapTargets
{
public:
    void addScreen(const QRectF& rect);
    void addElement(const QRectF& rect);
    /// \a orientation: a vertical guide stands at the x of \a position.
    void addGuide(Qt::Orientation orientation, double position);
    /// The distances of the grid's lines, 0 for none; it begins at (0, 0).
    void setGrid(const QSizeF& spacing);
    /// To be called after the last addition.
    void prepare();

    /// x and y are chosen independently of each other.
    [[nodiscard]] SnapResult snap(const SnapRequest& request) const;
    /// What \a edges of \a placed are aligned with and which gaps are equal, for the directions that \a result snaps in.
    [[nodiscard]] SnapMarks marks(const QRectF& placed, SnapEdges edges, const SnapResult& result) const;

private:
    SnapAxis m_x;
    SnapAxis m_y;
};

} // namespace Korvex::Meridane::Designer
