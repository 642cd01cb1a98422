#include "host/core/commands/ChangeRecording.h"

#include "host/core/properties/DesignerProperty.h"

#include <QHash>

namespace Korvex::Meridane::Designer {

namespace {
ChangeRecording* s_current = nullptr; // GUI thread only
}

ChangeRecording::ChangeRecording()
    : m_outer(std::exchange(s_current, this))
{}

ChangeRecording::~ChangeRecording()
{
    s_current = m_outer;
    if (m_outer)
        m_outer->m_changes += m_changes;
}

ChangeRecording* ChangeRecording::current()
{
    return s_current;
}

void ChangeRecording::record(const QSharedPointer<DesignerProperty>& property, const QString& before,
                             const QString& after)
{
    m_changes.append({property, before, after});
}

QVector<PropertyChange> ChangeRecording::take()
{
    return joined(std::exchange(m_changes, {}));
}

QVector<PropertyChange> ChangeRecording::joined(const QVector<PropertyChange>& changes)
{
    QVector<PropertyChange> result;
    result.reserve(changes.size());
    QHash<const DesignerProperty*, qsizetype> places;
    for (const PropertyChange& change : changes) {
        const auto place = places.constFind(change.property.data());
        if (place == places.constEnd()) {
            places.insert(change.property.data(), result.size());
            result.append(change);
        } else {
            result[place.value()].after = change.after;
        }
    }
    result.removeIf([](const PropertyChange& change) { return change.before == change.after; });
    return result;
}

} // namespace Korvex::Meridane::Designer
