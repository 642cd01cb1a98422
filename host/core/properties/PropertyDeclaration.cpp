#include "host/core/properties/PropertyDeclaration.h"

namespace Korvex::Meridane::Designer {

void PropertyDeclarationBase::add(DesignerObject* object, const QSharedPointer<DesignerProperty>& property)
{
    object->addProperty(property);
}

} // namespace Korvex::Meridane::Designer
