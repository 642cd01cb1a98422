#pragma once

#include "gradients/GraphicsGradient.h"

namespace Korvex::Meridane::Designer {

/// The canvas item of the linear gradient. The gradient's points are percent.
class GraphicsLinearGradient : public GraphicsGradient
{
public:
    explicit GraphicsLinearGradient(DesignerObject* dataObject);
    ~GraphicsLinearGradient() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;

protected:
    void paintOutline(QPainter* painter) override;

private:
    QLinearGradient m_gradient;
};

} // namespace Korvex::Meridane::Designer
