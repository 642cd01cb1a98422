#pragma once

#include "host/core/objects/VisualElement.h"

#include <QPolygonF>

namespace Korvex::Meridane::Designer {

/// A filled polygon whose points the user places freely. Its outer size follows from them.
class IrregularPolygon : public VisualElement
{
    Q_OBJECT

public:
    explicit IrregularPolygon(QObject* parent = nullptr);
    ~IrregularPolygon() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    /// Scales the points to a new "boundingSize" that was not written by the canvas item.
    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;
    [[nodiscard]] QRectF getBoundingRect() const override;

    /// The points in the element's coordinates; empty when they do not convert.
    [[nodiscard]] QPolygonF polygon() const;

private:
    QSharedPointer<DesignerProperty> m_boundingSize;
    QSharedPointer<DesignerProperty> m_keepRatio;
    QSharedPointer<DesignerProperty> m_pointList;
    QSharedPointer<DesignerProperty> m_color;
};

} // namespace Korvex::Meridane::Designer
