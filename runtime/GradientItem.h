#pragma once

#include "runtime/PointsItem.h"

#include <QtCore/QVariantList>
#include <QtGui/QBrush>

namespace Korvex::Meridane::Display {
/** Base of the outlines of points that are filled with a gradient. */
class GradientItem : public Korvex::Meridane::Display::PointsItem
{
    Q_OBJECT
    /**
     * The colours, each a list of a position and a colour; those at positions outside 0 to 1 are not drawn. A list with an
     * entry that is no such pair is refused with a warning, and the stops stay as they were.
     */
    Q_PROPERTY(QVariantList gradientStops READ gradientStops WRITE setGradientStops NOTIFY gradientStopsChanged FINAL)
    QML_ANONYMOUS

public:
    explicit GradientItem(QQuickItem* parent = nullptr);

    [[nodiscard]] QVariantList gradientStops() const;
    void setGradientStops(const QVariantList& stops);

Q_SIGNALS:
    void gradientStopsChanged();

protected:
    [[nodiscard]] const QGradientStops& stops() const { return m_stops; }
    /** Takes \p value over into \p member, a number of the gradient; \p changed announces it. */
    template <typename Number, typename Derived>
    void take(Number& member, Number value, void (Derived::*changed)())
    {
        if (value == member) {
            return;
        }
        member = value;
        contentChanged();
        Q_EMIT(static_cast<Derived*>(this)->*changed)();
    }

private:
    QVariantList m_gradientStops;
    QGradientStops m_stops;
};
} // namespace Korvex::Meridane::Display
