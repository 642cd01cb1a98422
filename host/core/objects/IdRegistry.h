#pragma once

#include "host/core/CoreExport.h"

#include <QHash>
#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerObject;

/// The ids of one scope (a screen, a project): each names one object.
class MERIDANE_CORE_EXPORT IdRegistry
{
public:
    [[nodiscard]] DesignerObject* find(const QString& id) const { return m_objects.value(id); }
    [[nodiscard]] bool contains(const QString& id) const { return m_objects.contains(id); }
    /// False when the id is taken by another object.
    bool insert(const QString& id, DesignerObject* object);
    void remove(const QString& id);
    /// \a base plus the smallest free number from 1. Amortised constant time.
    [[nodiscard]] QString freeId(const QString& base);
    [[nodiscard]] qsizetype count() const { return m_objects.size(); }

private:
    QHash<QString, DesignerObject*> m_objects;
    QHash<QString, int> m_smallestCandidate; // per base: every smaller number is taken
};

} // namespace Korvex::Meridane::Designer
