#pragma once

#include "gradients/GradientElement.h"

namespace Korvex::Meridane::Designer {

/// A gradient along a line. Start and final stop are percent of the outline's bounding rectangle.
class LinearGradientElement : public GradientElement
{
    Q_OBJECT

public:
    explicit LinearGradientElement(QObject* parent = nullptr);
    ~LinearGradientElement() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;

private:
    QSharedPointer<DesignerProperty> m_start;
    QSharedPointer<DesignerProperty> m_finalStop;
};

} // namespace Korvex::Meridane::Designer
