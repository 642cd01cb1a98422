#include "host/core/qml/PendingValues.h"

#include "host/core/properties/DesignerProperty.h"

#include <algorithm>

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
    std::for_each(m_kept.crbegin(), m_kept.crend(), [](const auto& kept) { kept.property->fill(kept.value); });
}

} // namespace Korvex::Meridane::Designer
