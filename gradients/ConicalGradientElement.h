#pragma once

#include "gradients/GradientElement.h"

namespace Korvex::Meridane::Designer {

/// A gradient that sweeps around a centre, counter-clockwise from a start angle, which itself is measured clockwise from
/// the x axis. The centre is percent of the outline's bounding rectangle and may lie outside of it.
class ConicalGradientElement : public GradientElement
{
    Q_OBJECT

public:
    explicit ConicalGradientElement(QObject* parent = nullptr);
    ~ConicalGradientElement() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;

private:
    QSharedPointer<DesignerProperty> m_center;
    QSharedPointer<DesignerProperty> m_startAngle;
};

} // namespace Korvex::Meridane::Designer
