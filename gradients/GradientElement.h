#pragma once

#include "host/core/objects/VisualElement.h"

namespace Korvex::Meridane::Designer {

/// Base of the gradient elements: an outline of points, filled with colours that run into each other. Its canvas item is a
/// GraphicsOutline.
class GradientElement : public VisualElement
{
    Q_OBJECT

public:
    explicit GradientElement(QObject* parent = nullptr);
    ~GradientElement() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    bool initializeProperties() override;
    /// Scales the outline to a new "boundingSize" that was not written by the canvas item.
    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;
    [[nodiscard]] QRectF getBoundingRect() const override;

private:
    QSharedPointer<DesignerProperty> m_points;
    QSharedPointer<DesignerProperty> m_boundingSize;
    QSharedPointer<DesignerProperty> m_keepRatio;
    QSharedPointer<DesignerProperty> m_gradientStops;
};

} // namespace Korvex::Meridane::Designer
