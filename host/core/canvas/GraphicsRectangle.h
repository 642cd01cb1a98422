#pragma once

#include "host/core/canvas/GraphicsFramedShape.h"

namespace Korvex::Meridane::Designer {

/// The canvas item of rectangles: filled, bordered, with rounded corners. Serves elements with the properties "size",
/// "color", "border" and, where there are round corners, "cornerRadius".
class MERIDANE_CORE_EXPORT GraphicsRectangle : public GraphicsFramedShape
{
public:
    explicit GraphicsRectangle(DesignerObject* dataObject);
    ~GraphicsRectangle() override;

    [[nodiscard]] QPainterPath shape() const override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;

protected:
    void paintContent(QPainter* painter) override;

private:
    int m_cornerRadius = 0;
};

} // namespace Korvex::Meridane::Designer
