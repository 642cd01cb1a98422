#pragma once

#include "gradients/GradientElement.h"

namespace Korvex::Meridane::Designer {

/// A gradient in circles about a centre. Centre, radius and focal point are pixels of the element's coordinates and do not
/// scale with the outline.
class RadialGradientElement : public GradientElement
{
    Q_OBJECT

public:
    explicit RadialGradientElement(QObject* parent = nullptr);
    ~RadialGradientElement() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;

private:
    QSharedPointer<DesignerProperty> m_center;
    QSharedPointer<DesignerProperty> m_radius;
    QSharedPointer<DesignerProperty> m_focalPoint;
    QSharedPointer<DesignerProperty> m_spread;
};

} // namespace Korvex::Meridane::Designer
