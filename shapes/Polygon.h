#pragma once

#include "host/core/objects/VisualElement.h"

namespace Korvex::Meridane::Designer {

/// A filled, bordered regular polygon with one vertex at the top: its shape is given by the number and the length of its
/// edges, and its outer size follows from them.
class Polygon : public VisualElement
{
    Q_OBJECT

public:
    explicit Polygon(QObject* parent = nullptr);
    ~Polygon() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    /// Derives "edgeLength" from a new "boundingSize" that was not written by the canvas item.
    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;
    [[nodiscard]] QRectF getBoundingRect() const override;

private:
    QSharedPointer<DesignerProperty> m_boundingSize;
    QSharedPointer<DesignerProperty> m_edges;
    QSharedPointer<DesignerProperty> m_edgeLength;
    QSharedPointer<DesignerProperty> m_color;
    QSharedPointer<DesignerProperty> m_border;
};

} // namespace Korvex::Meridane::Designer
