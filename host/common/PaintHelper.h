#pragma once

#include "host/common/CommonExport.h"
#include "host/common/TransformOrigin.h"

#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtGui/QPolygonF>

QT_BEGIN_NAMESPACE
class QBrush;
class QColor;
class QConicalGradient;
class QFont;
class QImage;
class QLinearGradient;
class QPainter;
class QPen;
class QRadialGradient;
class QStyleOptionGraphicsItem;
class QSvgRenderer;
QT_END_NAMESPACE

namespace Korvex::Meridane::Common {
class TextBoxLayout;

/**
 * Draws the elements: on the canvas, into pictures and on the running display, always by these functions.
 *
 * An element is drawn in its own coordinates, in pixels: its content starts at (0, 0) and the border is centred on the
 * content's outline, half of it outside. Drawing is antialiased. The painter comes back in the state in which it came.
 * A pen counts only when its width is above 0 and its colour is valid, a brush only when its colour is valid; what
 * does not count is not drawn. An empty size draws nothing.
 */
class MERIDANE_COMMON_EXPORT PaintHelper
{
public:
    PaintHelper() = delete;

    /** True when @p pen draws a border: its width is above 0 and its colour is valid. */
    [[nodiscard]] static bool penCounts(const QPen& pen);

    /** The colour that stands out from @p color channel by channel: above 127 becomes 0, any other 255; opaque. */
    [[nodiscard]] static QColor contrastColor(const QColor& color);

    /**
     * The outer rectangle of a content of @p width × @p height with a border centred on its outline:
     * (−b/2, −b/2, width + b, height + b). A negative border width counts as 0.
     */
    [[nodiscard]] static QRectF getBoundingRect(double width, double height, int borderWidth);

    /**
     * The outer rectangle of a regular polygon with mitred corners, in the coordinates of its content; the exact
     * inverse of edgeLengthFromWidth() and edgeLengthFromHeight(). The border width is made even. The null rectangle
     * for fewer than 3 edges or a length not above 0.
     */
    [[nodiscard]] static QRectF getPolygonBoundingRect(int edges, double edgeLength, int borderWidth);

    /**
     * A rectangle of @p size. @p cornerRadius, in pixels, is that of the outline; it is limited to half the smaller side
     * and 0 gives sharp corners, also on the outside of the border.
     */
    static void paintRectangle(const QSizeF& size, int cornerRadius, const QPen& pen, const QBrush& brush,
                               QPainter* painter);

    /** The ellipse that touches the four sides of a content of @p size. */
    static void paintEllipse(const QSizeF& size, const QPen& pen, const QBrush& brush, QPainter* painter);

    /**
     * The regular polygon of @p edges edges of @p edgeLength with one vertex at the top, its corners mitred.
     * @return the outline that was drawn, without the border: its bounding rectangle starts at (0, 0).
     */
    static QPolygonF paintPolygon(const double& edgeLength, const int& edges, const QPen& pen, const QBrush& brush,
                                  QPainter* painter);

    /** Fills @p polygon, closed or not; where it crosses itself, by the odd-even rule. */
    static void paintIrregularPolygon(const QPolygonF& polygon, const QBrush& brush, QPainter* painter);

    /** A filled dot of @p diameter about @p center. */
    static void paintDot(const QPointF& center, const double& diameter, const QColor& color, QPainter* painter);

    /**
     * A text in a box of @p size, broken at the box's width (between words, inside a word that is too long) and clipped
     * to the box. Every line break in it starts a paragraph, which has the direction of its own first letter.
     *
     * @param font drawn as displayFont() makes it
     * @param pen the colour of the letters
     * @param alignment a horizontal and a vertical bit of Qt::Alignment; what is missing is left and top
     * @param textStyle "Outline" (a line of one pixel around the letters), "Raised" (a shade one pixel below), "Sunken"
     *        (one pixel above); any other name draws the plain text
     * @param stylePen the colour of that line or shade
     */
    static void paintTextBox(QSizeF size, const QFont& font, const QPen& pen, const QString& text, int alignment,
                             const QString& textStyle, const QPen& stylePen, QPainter* painter);

    /** The same for a box that is drawn again and again: @p layout is its own, and keeps what took time. */
    static void paintTextBox(QSizeF size, const QFont& font, const QPen& pen, const QString& text, int alignment,
                             const QString& textStyle, const QPen& stylePen, QPainter* painter, TextBoxLayout* layout);

    /**
     * @p picture, stretched over a content of @p size. It is scaled smoothly, once for each size in device pixels;
     * @p moving says that it is one frame of many, and that what becomes of it is not worth keeping.
     */
    static void paintPicture(const QSizeF& size, const QImage& picture, bool moving, QPainter* painter);

    /** @p drawing, stretched over a content of @p size and as sharp as the device. @p id: see PictureCache. */
    static void paintDrawing(const QSizeF& size, QSvgRenderer* drawing, quint64 id, QPainter* painter);

    /**
     * Fills @p polygon with a gradient whose start and final stop are percent (0 … 100) of the polygon's bounding
     * rectangle. Only the two points are mapped: the stripes stay at right angles to the line between them.
     *
     * Of this and the other gradients nothing is drawn when one of their numbers is not finite.
     */
    static void paintGradientItem(const QPolygonF& polygon, const QLinearGradient& gradient, QPainter* painter);

    /**
     * Fills @p polygon with a gradient whose centre, radius and focal point are pixels of the polygon's coordinates. A
     * radius that is not above 0 leaves the last colour to everything.
     */
    static void paintGradientItem(const QPolygonF& polygon, const QRadialGradient& gradient, QPainter* painter);

    /**
     * Fills @p polygon with a gradient whose centre is percent of the polygon's bounding rectangle (it may lie outside)
     * and whose angle is degrees clockwise from the x axis, 0 … 359.99.
     */
    static void paintGradientItem(const QPolygonF& polygon, const QConicalGradient& gradient, QPainter* painter);

    /**
     * When @p option says that the item is selected: a frame along @p rect, one pixel of the screen wide at every
     * zoom, dashed in black on white so that it can be seen on any ground.
     */
    static void paintHighlightSelected(const QRectF& rect, QPainter* painter, const QStyleOptionGraphicsItem* option);

    /**
     * Resizes a frame by one of its handles.
     *
     * All coordinates are those of the present frame: its top left corner is (0, 0).
     *
     * @param fixedOrigin the point that stays in place, usually oppositeOrigin() of the handle. Opposite a side handle
     *        lies the middle of a side: along that side the top or left end stays (a right handle keeps the top left
     *        corner also when a kept ratio changes the height). Center grows the frame evenly to both sides.
     * @param handle the dragged handle, 0 … 8 in TransformOrigin order; 4 or a number outside drags nothing
     * @param size in: the wanted size, in which a kept ratio and limits are already observed (sizeKeepingRatio()).
     *        out: the new size; a negative dimension has become 0, and when nothing is dragged it is the present size
     * @param position in: the bottom right corner of the present frame, that is its present width and height.
     *        out: the top left corner of the new frame, that is the vector by which the item has to be moved
     *
     * A caller that keeps width and height of its frame thus writes: position = (width, height), resizeShape(…),
     * moveBy(position).
     */
    static void resizeShape(TransformOrigin fixedOrigin, int handle, QSizeF& size, QPointF& position);
};
} // namespace Korvex::Meridane::Common
