#pragma once

#include "host/core/properties/DesignerProperty.h"

#include <QStringList>
#include <QVector>

namespace Korvex::Meridane::Designer {

/**
 * The ordered list of the objects that an object holds: back to front, which is z-order and file order.
 *
 * Objects enter and leave through DesignerObject::addListItem() and its siblings. The value string, the ids separated
 * by ", ", is for display only: it does not convert to objects.
 */
class MERIDANE_CORE_EXPORT ObjectListProperty : public DesignerProperty
{
public:
    ObjectListProperty(DesignerObject* parent, const QString& id, const QString& name);
    ~ObjectListProperty() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    bool convertToValue(const QString& valueString) override;
    [[nodiscard]] QString convertToValueString() const override;
    /// The QML of the objects, one after the other.
    [[nodiscard]] QString convertToQml(int indent) const override;
    [[nodiscard]] bool valueIsEqual(const QString& valueString) const override;
    /// Every item is there once and its id is unique in its scope.
    [[nodiscard]] bool validateListItems(QString& message) const override;

    [[nodiscard]] const QVector<DesignerObject*>& items() const { return m_items; }

private:
    friend class DesignerObject;

    QVector<DesignerObject*> m_items;
};

} // namespace Korvex::Meridane::Designer
