#pragma once

#include "host/core/canvas/GraphicsFramedShape.h"

namespace Korvex::Meridane::Designer {

/// The canvas item of the ellipse.
class GraphicsEllipse : public GraphicsFramedShape
{
public:
    explicit GraphicsEllipse(DesignerObject* dataObject);
    ~GraphicsEllipse() override;

    [[nodiscard]] QPainterPath shape() const override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;

protected:
    void paintContent(QPainter* painter) override;
};

} // namespace Korvex::Meridane::Designer
