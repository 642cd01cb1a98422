#pragma once

#include "gradients/GraphicsGradient.h"

namespace Korvex::Meridane::Designer {

/// The canvas item of the conical gradient. The gradient's centre is percent, its angle degrees clockwise, 0 to 359.99.
class GraphicsConicalGradient : public GraphicsGradient
{
public:
    explicit GraphicsConicalGradient(DesignerObject* dataObject);
    ~GraphicsConicalGradient() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;

protected:
    void paintOutline(QPainter* painter) override;

private:
    QConicalGradient m_gradient;
};

} // namespace Korvex::Meridane::Designer
