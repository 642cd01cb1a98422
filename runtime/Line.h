#pragma once

#include "runtime/OutlinedItem.h"

#include <QtGui/QColor>
#include <QtGui/QPolygonF>

namespace Korvex::Meridane::Display {
/** A straight line. It starts at the item's position, about which it is turned, too. */
class Line : public Korvex::Meridane::Display::OutlinedItem
{
    Q_OBJECT
    /** The colour of the line; it may be translucent. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    /** The length in pixels; 0 and less draw nothing. */
    Q_PROPERTY(double length READ length WRITE setLength NOTIFY lengthChanged FINAL)
    /** The direction in degrees, clockwise from the x axis. */
    Q_PROPERTY(double angle READ angle WRITE setAngle NOTIFY angleChanged FINAL)
    /** The thickness in pixels, half of it to each side; below 1 nothing is drawn. */
    Q_PROPERTY(int lineWidth READ lineWidth WRITE setLineWidth NOTIFY lineWidthChanged FINAL)
    QML_ELEMENT

public:
    explicit Line(QQuickItem* parent = nullptr);

    [[nodiscard]] QColor color() const;
    void setColor(const QColor& color);
    [[nodiscard]] double length() const;
    void setLength(double length);
    [[nodiscard]] double angle() const;
    void setAngle(double angle);
    [[nodiscard]] int lineWidth() const;
    void setLineWidth(int width);

Q_SIGNALS:
    void colorChanged();
    void lengthChanged();
    void angleChanged();
    void lineWidthChanged();

protected:
    QRectF outerRect() const override;
    QRectF contentRect() const override;
    void paintContent(QPainter* painter) const override;

private:
    [[nodiscard]] QPolygonF outline() const;

    QColor m_color = QColor(248, 151, 29);
    double m_length = 100;
    double m_angle = 0;
    int m_lineWidth = 2;
};
} // namespace Korvex::Meridane::Display
