#pragma once

#include "host/core/objects/VisualElement.h"

namespace Korvex::Meridane::Designer {

/// A picture from the project's image resources.
class Image : public VisualElement
{
    Q_OBJECT

public:
    explicit Image(QObject* parent = nullptr);
    ~Image() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    /// "Image2": the display's own type beside Qt Quick's.
    [[nodiscard]] QString qmlName() const override;
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    /// Tells the size editor of a new picture, and derives "size" from a new "boundingSize" that was not written by the
    /// canvas item.
    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override;
    /// "source": the element needs the image file.
    [[nodiscard]] QList<QSharedPointer<DesignerProperty>> getDependencyProperties() const override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;
    [[nodiscard]] QRectF getBoundingRect() const override;

private:
    void announceSource();

    QSharedPointer<DesignerProperty> m_size;
    QSharedPointer<DesignerProperty> m_boundingSize;
    QSharedPointer<DesignerProperty> m_keepRatio;
    QSharedPointer<DesignerProperty> m_source;
};

} // namespace Korvex::Meridane::Designer
