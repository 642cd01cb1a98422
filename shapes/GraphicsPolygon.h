#pragma once

#include "host/core/canvas/FillAndBorder.h"
#include "host/core/canvas/GraphicsItem.h"

#include <QGraphicsItem>

namespace Korvex::Meridane::Designer {

/// The canvas item of the regular polygon. A drag of its frame changes the length of the edges.
class GraphicsPolygon : public QGraphicsItem, public GraphicsItem
{
public:
    /// The limits of an edge length that comes from an outer size, in pixels.
    static constexpr double ShortestEdge = 1;
    static constexpr double LongestEdge = 320;

    explicit GraphicsPolygon(DesignerObject* dataObject);
    ~GraphicsPolygon() override;

    [[nodiscard]] QRectF boundingRect() const override;
    [[nodiscard]] QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QPainterPath getShape() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    UndoCommand* updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent) override;
    /// The width decides, for the top and bottom handles the height; the edges stay within their limits.
    void resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF& position) override;
    [[nodiscard]] double minSize() const override;
    /// Empty when the edge length is not above 0.
    [[nodiscard]] QRectF outerRect() const override;
    [[nodiscard]] QRectF contentRect() const override;

    /// The edge length, in pixels and not limited, with which the polygon would be \a width or \a height pixels large,
    /// its border included.
    [[nodiscard]] double edgeLengthFromWidth(double width) const;
    [[nodiscard]] double edgeLengthFromHeight(double height) const;

private:
    void setGeometry(int edges, double edgeLength);
    void setStyle(const FillAndBorder& style);

    int m_edges = 3;
    double m_edgeLength = 50;
    FillAndBorder m_style;
};

} // namespace Korvex::Meridane::Designer
