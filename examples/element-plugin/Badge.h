#pragma once

#include "host/core/objects/VisualElement.h"

namespace Example {

using namespace Korvex::Meridane::Designer;

/// A round badge, described by its diameter in pixels. The display shows it as a rectangle with round corners.
class Badge : public VisualElement
{
    Q_OBJECT

public:
    explicit Badge(QObject* parent = nullptr);

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    [[nodiscard]] QString qmlName() const override;
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;
    [[nodiscard]] QRectF getBoundingRect() const override;

private:
    QSharedPointer<DesignerProperty> m_diameter;
    QSharedPointer<DesignerProperty> m_color;
};

} // namespace Example
