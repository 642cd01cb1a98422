#pragma once

#include "host/core/CoreExport.h"

#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerProperty;

/// Validators that elements install with DesignerProperty::setValidator().
class MERIDANE_CORE_EXPORT PropertyValidators
{
public:
    /// An empty link, or one that names an existing object of a class that the link filters on. Ids of image resources
    /// are plain file names of the project's images folder; anything else is refused.
    static bool validLinkValidator(const DesignerProperty* property, QString& message);
};

} // namespace Korvex::Meridane::Designer
