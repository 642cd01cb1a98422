#pragma once

#include "host/core/objects/VisualElement.h"

namespace Korvex::Meridane::Designer {

class GraphicsLine;

/// A straight line: it starts at its position and has a length, an angle and a thickness. Its outer size follows from
/// them.
class Line : public VisualElement
{
    Q_OBJECT

public:
    explicit Line(QObject* parent = nullptr);
    ~Line() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    GraphicsItem* createGraphicsItem() override;
    bool initializeProperties() override;
    /// Turns a new "boundingSize" that was not written by the canvas item into length, angle, thickness and position.
    void afterPropertyChanged(const DesignerProperty* property, const QString& oldValue) override;
    [[nodiscard]] QList<RuntimeProperty> runtimeProperties() const override;
    [[nodiscard]] QRectF getBoundingRect() const override;

private:
    void takeBoundingSize(const QSizeF& before, const QSizeF& wanted, const GraphicsLine& item);

    QSharedPointer<DesignerProperty> m_boundingSize;
    QSharedPointer<DesignerProperty> m_length;
    QSharedPointer<DesignerProperty> m_color;
    QSharedPointer<DesignerProperty> m_width;
    QSharedPointer<DesignerProperty> m_angle;
    QSharedPointer<DesignerProperty> m_keepRatio;
};

} // namespace Korvex::Meridane::Designer
