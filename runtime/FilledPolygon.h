#pragma once

#include "runtime/PointsItem.h"

#include <QtGui/QColor>

namespace Korvex::Meridane::Display {
/** Base of the outlines of points that are filled with one colour. */
class FilledPolygon : public Korvex::Meridane::Display::PointsItem
{
    Q_OBJECT
    /** The colour of the filling; it may be translucent. */
    Q_PROPERTY(QColor color READ color WRITE setColor NOTIFY colorChanged FINAL)
    QML_ANONYMOUS

public:
    explicit FilledPolygon(QQuickItem* parent = nullptr);

    [[nodiscard]] QColor color() const;
    void setColor(const QColor& color);

Q_SIGNALS:
    void colorChanged();

protected:
    void paintContent(QPainter* painter) const override;

private:
    QColor m_color = QColor(248, 151, 29);
};
} // namespace Korvex::Meridane::Display
