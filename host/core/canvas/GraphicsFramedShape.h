#pragma once

#include "host/core/canvas/FillAndBorder.h"
#include "host/core/canvas/GraphicsItem.h"

#include <QGraphicsItem>

namespace Korvex::Meridane::Designer {

/**
 * What the canvas items of the rectangle and the ellipse have in common: a filled, bordered shape in a frame of the
 * element's "size", resized by its frame handles.
 *
 * The frame starts at (0, 0); the border is centred on its outline. A derived item says what is painted in the frame.
 */
class MERIDANE_CORE_EXPORT GraphicsFramedShape : public QGraphicsItem, public GraphicsItem
{
public:
    ~GraphicsFramedShape() override;

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    [[nodiscard]] QPainterPath getShape() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    UndoCommand* updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent) override;
    void resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF& position) override;
    /// The host's minimum and the border.
    [[nodiscard]] double minSize() const override;
    /// Empty without a size, and when there is neither a border nor a filling.
    [[nodiscard]] QRectF outerRect() const override;
    [[nodiscard]] QRectF contentRect() const override;

protected:
    explicit GraphicsFramedShape(DesignerObject* dataObject);

    /// Draws the shape, in item coordinates.
    virtual void paintShape(QPainter* painter) const = 0;

    [[nodiscard]] const QSizeF& size() const { return m_size; }
    [[nodiscard]] const FillAndBorder& style() const { return m_style; }

private:
    void setSize(const QSizeF& size);
    void setStyle(const FillAndBorder& style);

    QSizeF m_size = {100, 75};
    FillAndBorder m_style;
};

} // namespace Korvex::Meridane::Designer
