#include "host/core/qml/PendingValues.h"

#include "host/core/properties/DesignerProperty.h"

namespace Korvex::Meridane::Designer {

PendingValues::PendingValues(const QVector<PropertyChange>& changes)
{
    m_kept.reserve(changes.size());
    for (const PropertyChange& change : changes) {
        m_kept.append({change.property, change.property->valueString()});
        change.property->fill(change.after);
    }
}

PendingValues::~PendingValues()
{
    // Backwards: of a property that is named twice the first value is its own.
    for (auto kept = m_kept.crbegin(); kept != m_kept.crend(); ++kept)
        kept->property->fill(kept->value);
}

} // namespace Korvex::Meridane::Designer
