#pragma once

#include "host/core/objects/VisualElement.h"

namespace Korvex::Meridane::Designer {

/// A filled, bordered ellipse.
class Ellipse : public VisualElement
{
    Q_OBJECT

public:
    explicit Ellipse(QObject* parent = nullptr);
    ~Ellipse() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    /// Derives "size" from a new "boundingSize" that was not written by the canvas item.
    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;
    [[nodiscard]] QRectF getBoundingRect() const override;

private:
    QSharedPointer<DesignerProperty> m_size;
    QSharedPointer<DesignerProperty> m_boundingSize;
    QSharedPointer<DesignerProperty> m_keepRatio;
    QSharedPointer<DesignerProperty> m_color;
    QSharedPointer<DesignerProperty> m_border;
};

} // namespace Korvex::Meridane::Designer
