#include "host/core/objects/IdRegistry.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

namespace {

/// Splits "rectangle12" into its base and its number; false when there is no number that freeId() could have made.
bool splitNumber(const QString& id, QString& base, int& number)
{
    qsizetype digits = id.size();
    while (digits > 0 && id.at(digits - 1) >= QLatin1Char('0') && id.at(digits - 1) <= QLatin1Char('9'))
        --digits;
    if (digits == 0 || digits == id.size() || id.at(digits) == QLatin1Char('0'))
        return false;
    bool ok = false;
    number = QStringView(id).mid(digits).toInt(&ok);
    base = id.left(digits);
    return ok;
}

} // namespace

bool IdRegistry::insert(const QString& id, DesignerObject* object)
{
    const auto existing = m_objects.constFind(id);
    if (existing != m_objects.constEnd())
        return existing.value() == object;
    m_objects.insert(id, object);
    return true;
}

void IdRegistry::remove(const QString& id)
{
    if (m_objects.remove(id) == 0)
        return;
    QString base;
    int number = 0;
    if (splitNumber(id, base, number)) {
        const auto candidate = m_smallestCandidate.find(base);
        if (candidate != m_smallestCandidate.end())
            candidate.value() = std::min(candidate.value(), number);
    }
}

QString IdRegistry::freeId(const QString& base)
{
    int& candidate = m_smallestCandidate[base];
    candidate = std::max(candidate, 1);
    QString id = base + QString::number(candidate);
    while (m_objects.contains(id))
        id = base + QString::number(++candidate);
    return id;
}

} // namespace Korvex::Meridane::Designer
