#pragma once

#include "host/core/CoreExport.h"

#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;

/**
 * The headings that the rows of the property sheet stand under.
 *
 * Which one a property belongs to follows from its type, its editor and its id, by an ordered list of rules of which the
 * first that fits decides. The color of a text stands with the text. A property that no rule knows stands under the name of
 * its object's type.
 */
class MERIDANE_CORE_EXPORT SheetSections
{
public:
    SheetSections() = delete;

    /// The key of the section for \a property, the same in every language; "own" where no rule knows the property.
    [[nodiscard]] static QString keyOf(const DesignerProperty& property);
    /// The heading of the section with that key, for the user; \a object is the first that is shown, \a sameType whether
    /// the others are of its type.
    [[nodiscard]] static QString title(const QString& key, const DesignerObject& object, bool sameType);
};

} // namespace Korvex::Meridane::Designer
