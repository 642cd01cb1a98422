#pragma once

#include "host/core/canvas/FramedShape.h"
#include "host/core/canvas/GraphicsItem.h"

#include <QGraphicsItem>

namespace Korvex::Meridane::Designer {

/// The canvas item of rectangles: filled, bordered, with rounded corners. Serves elements with the properties "size",
/// "color", "border" and, where there are round corners, "cornerRadius".
class MERIDANE_CORE_EXPORT GraphicsRectangle : public QGraphicsItem, public GraphicsItem
{
public:
    explicit GraphicsRectangle(DesignerObject* dataObject);
    ~GraphicsRectangle() override;

    [[nodiscard]] QRectF boundingRect() const override;
    [[nodiscard]] QPainterPath shape() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QPainterPath getShape() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    UndoCommand* updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent) override;
    void resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF& position) override;
    [[nodiscard]] double minSize() const override;
    [[nodiscard]] QRectF outerRect() const override;
    [[nodiscard]] QRectF contentRect() const override;

private:
    void setFramedShape(const FramedShape& framed);

    FramedShape m_framed;
    int m_cornerRadius = 0;
};

} // namespace Korvex::Meridane::Designer
