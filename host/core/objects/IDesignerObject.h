#pragma once

#include "host/core/CoreExport.h"

#include <QString>
#include <QStringList>

namespace Korvex::Meridane::Designer {

/// Root interface of data objects, properties, canvas items and editors: what a factory makes by name.
class MERIDANE_CORE_EXPORT IDesignerObject
{
public:
    virtual ~IDesignerObject();

    /// The name under which a factory creates the object, for example "Rectangle".
    [[nodiscard]] virtual QString className() const = 0;

    /// The class names of the object's bases and of the object itself, the root first.
    [[nodiscard]] virtual QStringList classNames() const = 0;

    /// Completes a newly constructed object; false means that the object cannot be used and is to be discarded.
    virtual bool initialize() = 0;
};

} // namespace Korvex::Meridane::Designer
