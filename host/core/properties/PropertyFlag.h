#pragma once

#include <QFlags>

namespace Korvex::Meridane::Designer {

/// What the host does with a property. The numbers are part of the plug-in contract.
enum PropertyFlag
{
    Stored = 1, ///< part of the object's saved state
    Exported = 2, ///< a QML line is written
    Shown = 4, ///< has a row in the property sheet
    Editable = 8, ///< may be edited in the property sheet; code and scripted edits may set every property
};
Q_DECLARE_FLAGS(PropertyFlags, PropertyFlag)
Q_DECLARE_OPERATORS_FOR_FLAGS(PropertyFlags)

} // namespace Korvex::Meridane::Designer
