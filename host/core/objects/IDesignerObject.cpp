#include "host/core/objects/IDesignerObject.h"

namespace Korvex::Meridane::Designer {

IDesignerObject::~IDesignerObject() = default;

} // namespace Korvex::Meridane::Designer
