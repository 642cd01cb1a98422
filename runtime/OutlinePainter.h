#pragma once

#include "runtime/PainterPlacement.h"

#include <QtQuick/QQuickPaintedItem>

namespace Korvex::Meridane::Display {
class DisplayItem;

/**
 * The private child of a display item that holds its picture. It lies behind the item's other children and is placed by
 * the item, which also paints into it.
 */
class OutlinePainter : public QQuickPaintedItem
{
    Q_OBJECT

public:
    /** A painter of @p item, which becomes its parent and owner. */
    explicit OutlinePainter(DisplayItem* item);

    /** Moves to @p placement; the picture is painted anew when that changes its pixels. */
    void place(const PainterPlacement& placement);

    void paint(QPainter* painter) override;

private:
    DisplayItem* m_item;
    PainterPlacement m_placement;
};
} // namespace Korvex::Meridane::Display
