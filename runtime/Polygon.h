#pragma once

#include "runtime/BorderedItem.h"

namespace Korvex::Meridane::Display {
/**
 * A filled regular polygon with one vertex at the top and a border centred on its outline.
 *
 * Its implicit size is that of the outline without the border; "width" and "height" are not meant to be set.
 */
class Polygon : public Korvex::Meridane::Display::BorderedItem
{
    Q_OBJECT
    /** The number of edges; fewer than 3 draw nothing. */
    Q_PROPERTY(int edges READ edges WRITE setEdges NOTIFY edgesChanged FINAL)
    /** The length of each edge in pixels; 0 and less draw nothing. */
    Q_PROPERTY(double edgeLength READ edgeLength WRITE setEdgeLength NOTIFY edgeLengthChanged FINAL)
    QML_ELEMENT

public:
    explicit Polygon(QQuickItem* parent = nullptr);

    [[nodiscard]] int edges() const;
    void setEdges(int edges);
    [[nodiscard]] double edgeLength() const;
    void setEdgeLength(double length);

Q_SIGNALS:
    void edgesChanged();
    void edgeLengthChanged();

protected:
    QRectF outerRect() const override;
    void paintContent(QPainter* painter) const override;

private:
    void takeSize();

    int m_edges = 3;
    double m_edgeLength = 50;
};
} // namespace Korvex::Meridane::Display
