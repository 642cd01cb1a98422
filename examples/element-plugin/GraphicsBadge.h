#pragma once

#include "host/core/canvas/GraphicsItem.h"

#include <QColor>
#include <QGraphicsItem>

namespace Example {

using namespace Korvex::Meridane::Designer;

/// The canvas item of badges.
class GraphicsBadge : public QGraphicsItem, public GraphicsItem
{
public:
    explicit GraphicsBadge(DesignerObject* dataObject);

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;
    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;

private:
    double m_diameter = 24;
    QColor m_color;
};

} // namespace Example
