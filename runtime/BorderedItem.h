#pragma once

#include "runtime/DisplayItem.h"

#include <QtGui/QColor>
#include <QtGui/QPen>

namespace Korvex::Meridane::Display {
/** Base of the shapes that are filled and have a border centred on their outline. */
class BorderedItem : public Korvex::Meridane::Display::DisplayItem
{
    Q_OBJECT
    /** The colour of the filling; it may be translucent. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    /** The width of the border in pixels, half of which lies outside; 0 and less draw none. */
    Q_PROPERTY(int borderWidth READ borderWidth WRITE setBorderWidth NOTIFY borderWidthChanged FINAL)
    /** The colour of the border; it may be translucent. */
    Q_PROPERTY(QColor borderColor READ borderColor WRITE setBorderColor NOTIFY borderColorChanged FINAL)
    QML_ANONYMOUS

public:
    explicit BorderedItem(QQuickItem* parent = nullptr);

    [[nodiscard]] QColor color() const;
    void setColor(const QColor& color);
    [[nodiscard]] int borderWidth() const;
    void setBorderWidth(int width);
    [[nodiscard]] QColor borderColor() const;
    void setBorderColor(const QColor& color);

Q_SIGNALS:
    void colorChanged();
    void borderWidthChanged();
    void borderColorChanged();

protected:
    /** The size of the content grown by the border; empty without a size. */
    QRectF outerRect() const override;
    /** The pen of the border. */
    [[nodiscard]] QPen pen() const;

private:
    QColor m_color = QColor(248, 151, 29);
    int m_borderWidth = 0;
    QColor m_borderColor = Qt::black;
};
} // namespace Korvex::Meridane::Display
