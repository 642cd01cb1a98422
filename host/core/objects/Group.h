#pragma once

#include "host/core/objects/ObjectContainer.h"
#include "host/core/objects/VisualElement.h"

namespace Korvex::Meridane::Designer {

/// Elements that move, turn and are ordered as one. Child coordinates are relative to the group's position.
class MERIDANE_CORE_EXPORT Group : public VisualElement, public ObjectContainer
{
    Q_OBJECT

public:
    explicit Group(QObject* parent = nullptr);
    ~Group() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString displayName() const override;
    /// Width and height of the group, for the fixed point of its rotation.
    [[nodiscard]] QString onCompletedQml(int indent) const override;
    bool initializeProperties() override;
    GraphicsItem* createGraphicsItem() override;
    [[nodiscard]] ObjectListProperty* containedObjects() const override;
    /// From the group's origin over its children: where the fixed point of its rotation is found, on the canvas and on
    /// the display.
    [[nodiscard]] QRectF contentRect() const;
    /// The union of the children's bounding rectangles, their rotation left aside.
    [[nodiscard]] QRectF getBoundingRect() const override;

private:
    QSharedPointer<ObjectListProperty> m_elements;
};

} // namespace Korvex::Meridane::Designer
