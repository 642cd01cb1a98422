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

protected:
    /// Takes ids of the form \a base1, unique in the screen; links find the element by its class name. False when the
    /// information is refused.
    bool declareIdentity(const QString& className, const QString& base);
    /// An item of \a itemClass for this element that can be selected, moved and resized and, unless \a rotatable is
    /// false, turned; null when no plug-in makes one. The caller owns it.
    [[nodiscard]] GraphicsItem* createEditableItem(const QString& itemClass, bool rotatable = true);

private:
    QSharedPointer<DesignerProperty> m_position;
    QSharedPointer<DesignerProperty> m_rotation;
};

} // namespace Korvex::Meridane::Designer
