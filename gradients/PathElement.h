#pragma once

#include "host/core/objects/VisualElement.h"

namespace Korvex::Meridane::Designer {

/// A free outline, filled with one colour.
class PathElement : public VisualElement
{
    Q_OBJECT

public:
    explicit PathElement(QObject* parent = nullptr);
    ~PathElement() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    [[nodiscard]] QString qmlName() const override;
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    /// Scales the outline to a new "boundingSize" that was not written by the canvas item.
    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;
    [[nodiscard]] QRectF getBoundingRect() const override;

private:
    QSharedPointer<DesignerProperty> m_boundingSize;
    QSharedPointer<DesignerProperty> m_keepRatio;
    QSharedPointer<DesignerProperty> m_points;
    QSharedPointer<DesignerProperty> m_color;
};

} // namespace Korvex::Meridane::Designer
