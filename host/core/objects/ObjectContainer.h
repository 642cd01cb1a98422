#pragma once

namespace Korvex::Meridane::Designer {

class IdRegistry;
class ObjectListProperty;

/// What an object that holds others offers beside being a DesignerObject.
class ObjectContainer
{
public:
    /// The list of the objects held, in their order.
    [[nodiscard]] virtual ObjectListProperty* containedObjects() const = 0;
    /// The registry of the ids below the object, or null where the ids belong to a scope further up.
    [[nodiscard]] virtual IdRegistry* containedIds() { return nullptr; }

protected:
    ~ObjectContainer() = default;
};

} // namespace Korvex::Meridane::Designer
