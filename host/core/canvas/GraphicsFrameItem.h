#pragma once

#include "host/core/canvas/GraphicsItem.h"

#include <QGraphicsItem>

namespace Korvex::Meridane::Designer {

/**
 * Base of the canvas items whose content is a frame of the element's "size", resized by its handles: rectangle, ellipse,
 * text box, image. The content starts at (0, 0); a border, where an item has one, is centred on its outline.
 *
 * A derived item says what is painted in the frame and takes its other properties over.
 */
class MERIDANE_CORE_EXPORT GraphicsFrameItem : public QGraphicsItem, public GraphicsItem
{
public:
    ~GraphicsFrameItem() override;

    [[nodiscard]] QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    [[nodiscard]] QPainterPath getShape() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    UndoCommand* updateDataObject(const QSharedPointer<DesignerProperty>& property, UndoCommand* parent) override;
    void resizeGraphicsItem(int handle, const QSizeF& outerSize, const QPointF& position) override;
    /// The host's minimum and the border.
    [[nodiscard]] double minSize() const override;
    /// The content grown by the border; empty without a size.
    [[nodiscard]] QRectF outerRect() const override;
    [[nodiscard]] QRectF contentRect() const override;

protected:
    GraphicsFrameItem(DesignerObject* dataObject, const QSizeF& size);

    /// Draws the content and its border, in item coordinates.
    virtual void paintContent(QPainter* painter) = 0;
    /// The width of the border in pixels; 0 unless overridden.
    [[nodiscard]] virtual int borderWidth() const;
    /// Whether the item takes \a size on; any size unless overridden.
    [[nodiscard]] virtual bool acceptsSize(const QSizeF& size) const;

    /// The outer size that a drag of the frame to \a outerSize gives; just that unless overridden.
    [[nodiscard]] virtual QSizeF resizedTo(const QSizeF& outerSize) const;

    /// The size of the content in pixels.
    [[nodiscard]] const QSizeF& size() const { return m_size; }

private:
    void setSize(const QSizeF& size);

    QSizeF m_size;
};

} // namespace Korvex::Meridane::Designer
