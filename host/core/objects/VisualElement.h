#pragma once

#include "host/core/objects/Element.h"

#include <QRectF>

namespace Korvex::Meridane::Designer {

class RuntimeProperty;

/// A visible element: it has a position in its parent (pixels) and a rotation (degrees, clockwise).
class MERIDANE_CORE_EXPORT VisualElement : public Element
{
    Q_OBJECT

public:
    explicit VisualElement(QObject* parent = nullptr);
    ~VisualElement() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    bool initializeProperties() override;

    /// The properties that the running display can change.
    [[nodiscard]] virtual QList<RuntimeProperty> runtimeProperties() const;
    /// The element's outline in its own coordinates, grown by its border; null when a value does not convert.
    [[nodiscard]] virtual QRectF getBoundingRect() const;

    /// The top-left corner of the content in the parent's coordinates; rank 1.
    [[nodiscard]] const QSharedPointer<DesignerProperty>& position() const { return m_position; }
    /// Angle and fixed point; rank 2.
    [[nodiscard]] const QSharedPointer<DesignerProperty>& rotation() const { return m_rotation; }

private:
    QSharedPointer<DesignerProperty> m_position;
    QSharedPointer<DesignerProperty> m_rotation;
};

} // namespace Korvex::Meridane::Designer
