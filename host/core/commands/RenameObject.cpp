#include "host/core/commands/RenameObject.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/QmlIdentifier.h"
#include "host/core/project/ObjectLinks.h"
#include "host/core/properties/DesignerProperty.h"

#include "host/common/LocalizationHelper.h"

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

RenameObject::RenameObject(DesignerObject* object, const QString& id, UndoCommand* parent)
    : UndoCommand(parent)
    , m_object(object)
    , m_before(object ? object->getIdName() : QString())
    , m_after(id)
{
    setText(LocalizationHelper::coreString(QStringLiteral("Rename %1")).arg(m_before));
}

RenameObject::~RenameObject() = default;

QList<DesignerObject*> RenameObject::selectedItems() const
{
    return m_object ? QList<DesignerObject*>{m_object} : QList<DesignerObject*>();
}

DesignerObject* RenameObject::activeItem() const
{
    return m_object;
}

bool RenameObject::isValid() const
{
    return m_object;
}

void RenameObject::execute()
{
    QString reason;
    const QList<QSharedPointer<DesignerProperty>> links = ObjectLinks::linksTo(m_object);
    if (!isQmlIdentifier(m_after, &reason)) {
        setRefusal(reason);
    } else if (!m_object->setIdName(m_after)) {
        setRefusal(LocalizationHelper::coreString(QStringLiteral("The id \"%1\" is already used.")).arg(m_after));
    } else {
        // The record of the command holds these changes.
        for (const auto& link : links)
            link->parentObject()->changePropertyValue(link, m_after);
    }
}

void RenameObject::undoStructure()
{
    m_object->setIdName(m_before);
}

void RenameObject::redoStructure()
{
    m_object->setIdName(m_after);
}

bool RenameObject::structureChanged() const
{
    return m_before != m_after && refusal().isEmpty();
}

} // namespace Korvex::Meridane::Designer
