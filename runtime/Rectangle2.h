#pragma once

#include "runtime/DisplayItem.h"

#include <QtGui/QColor>

namespace Korvex::Meridane::Display {
/** A filled rectangle with a border centred on its outline and, if wished, round corners. */
class Rectangle2 : public Korvex::Meridane::Display::DisplayItem
{
    Q_OBJECT
    /** The colour of the filling; it may be translucent. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    /** The radius of the outline's corners in pixels, limited to half the smaller side; 0 gives sharp corners. */
    Q_PROPERTY(int cornerRadius READ cornerRadius WRITE setCornerRadius NOTIFY cornerRadiusChanged FINAL)
    /** The width of the border in pixels, half of which lies outside; 0 and less draw none. */
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth NOTIFY borderWidthChanged FINAL)
    /** The colour of the border; it may be translucent. */
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged FINAL)
    QML_ELEMENT

public:
    explicit Rectangle2(QQuickItem* parent = nullptr);

    [[nodiscard]] QColor color() const;
    void setColor(const QColor& color);
    [[nodiscard]] int cornerRadius() const;
    void setCornerRadius(int radius);
    [[nodiscard]] int borderWidth() const;
    void setBorderWidth(int width);
    [[nodiscard]] QColor borderColor() const;
    void setBorderColor(const QColor& color);

Q_SIGNALS:
    void colorChanged();
    void cornerRadiusChanged();
    void borderWidthChanged();
    void borderColorChanged();

protected:
    QRectF outerRect() const override;
    void paintContent(QPainter* painter) const override;

private:
    QColor m_color = QColor(248, 151, 29);
    int m_cornerRadius = 0;
    int m_borderWidth = 0;
    QColor m_borderColor = Qt::black;
};
} // namespace Korvex::Meridane::Display
