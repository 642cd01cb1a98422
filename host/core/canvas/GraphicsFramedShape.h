#pragma once

#include "host/core/canvas/FillAndBorder.h"
#include "host/core/canvas/GraphicsFrameItem.h"

namespace Korvex::Meridane::Designer {

/// What the canvas items of the rectangle and the ellipse have in common: a filled, bordered shape in a frame.
class MERIDANE_CORE_EXPORT GraphicsFramedShape : public GraphicsFrameItem
{
public:
    ~GraphicsFramedShape() override;

    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;
    /// Empty without a size, and when there is neither a border nor a filling.
    [[nodiscard]] QRectF outerRect() const override;

protected:
    explicit GraphicsFramedShape(DesignerObject* dataObject);

    [[nodiscard]] int borderWidth() const override;
    [[nodiscard]] const FillAndBorder& style() const { return m_style; }

private:
    void setStyle(const FillAndBorder& style);

    FillAndBorder m_style;
};

} // namespace Korvex::Meridane::Designer
