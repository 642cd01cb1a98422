#pragma once

#include "lines/GraphicsIrregularPolygon.h"
#include "lines/IrregularPolygon.h"
#include "tests/shapes/ShapeFixture.h"

#include "host/core/values/ValueConversion.h"

#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

#include <functional>

#include <rapidcheck.h>

namespace Korvex::Meridane::Designer::Test {

/// What \a paint draws on a white ground of 200 x 200 pixels, the origin of its coordinates being at (50, 50).
inline QImage picture(const std::function<void(QPainter*)>& paint)
{
    QImage image(200, 200, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(50, 50);
    paint(&painter);
    return image;
}

/// The same of an item, drawn as \a selected or not.
inline QImage picture(QGraphicsItem* item, bool selected = false)
{
    return picture([item, selected](QPainter* painter) {
        QStyleOptionGraphicsItem option;
        option.state.setFlag(QStyle::State_Selected, selected);
        item->paint(painter, &option, nullptr);
    });
}

/// The item of an irregular polygon, "kite", alone on a scene at zoom 1.
class PolygonItem
{
public:
    PolygonItem()
        : shape(std::make_unique<IrregularPolygon>())
        , item(shape.place<GraphicsIrregularPolygon>())
        , scene(-500, -500, 1000, 1000)
    {
        shape.element->setIdName(QStringLiteral("kite"));
        item->setFlags(QGraphicsItem::ItemIsSelectable | QGraphicsItem::ItemIsMovable);
        item->setResizable(true);
        item->setRotatable(true);
        scene.addItem(item);
    }

    ~PolygonItem() { scene.removeItem(item); }

    Q_DISABLE_COPY_MOVE(PolygonItem)

    void setPoints(const QPolygonF& points) { shape.set("pointList", ValueConversion::toString(points)); }

    [[nodiscard]] QSharedPointer<DesignerProperty> property(const char* id) const
    {
        return shape.element->getProperty(QLatin1String(id));
    }

    /// 3 to \a most points; within a property test.
    static QPolygonF somePoints(int most)
    {
        const auto coordinate = [] { return *rc::gen::inRange(-4000, 14000) / 100.0; };
        QPolygonF points;
        for (int i = *rc::gen::inRange(3, most + 1); i > 0; --i)
            points << QPointF(coordinate(), coordinate());
        return points;
    }

    ShapeFixture shape;
    GraphicsIrregularPolygon* item;
    QGraphicsScene scene;
};

} // namespace Korvex::Meridane::Designer::Test
