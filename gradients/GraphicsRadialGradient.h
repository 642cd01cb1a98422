#pragma once

#include "gradients/GraphicsGradient.h"

namespace Korvex::Meridane::Designer {

/// The canvas item of the radial gradient. The gradient's points and radius are pixels of the item.
class GraphicsRadialGradient : public GraphicsGradient
{
public:
    explicit GraphicsRadialGradient(DesignerObject* dataObject);
    ~GraphicsRadialGradient() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    void updateGraphicsItem(const QSharedPointer<DesignerProperty>& property) override;

protected:
    void paintOutline(QPainter* painter) override;

private:
    QRadialGradient m_gradient;
};

} // namespace Korvex::Meridane::Designer
