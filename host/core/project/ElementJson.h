#pragma once

#include "host/core/CoreExport.h"
#include "host/core/project/Problem.h"

#include <QJsonObject>

#include <memory>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;
class ObjectListProperty;

/**
 * An object with everything below it as JSON, in project files and on the clipboard.
 *
 * | key | value |
 * |---|---|
 * | "class" | the class name |
 * | "id" | the object's id |
 * | "properties" | the value strings of all stored properties, by property id |
 * | "editor" | the value strings of what the property sheet keeps for itself (shown and editable, but not stored), and the
 *              object's editor marks |
 * | "elements" | the children, back to front; only for objects that can have children |
 *
 * What this version does not know is carried along and written back as it was: unknown keys and properties in
 * DesignerObject::unknownKeys() (unknown properties below "properties" and "editor"), elements of unknown classes as
 * UnknownElement.
 */
class MERIDANE_CORE_EXPORT ElementJson
{
public:
    ElementJson() = delete;

    [[nodiscard]] static QJsonObject write(const DesignerObject* object);

    /// The object of \a entry with its children, in no project yet and owned by the caller; ids as they stand in the
    /// entry. Where it cannot be made as the entry says, the result carries the entry as UnknownElement; \a problems
    /// (when given) then says why, as it does for values that had to be changed.
    [[nodiscard]] static std::unique_ptr<DesignerObject> read(const QJsonObject& entry,
                                                              QList<Problem>* problems = nullptr);

    /// Whether \a property stands below "properties".
    [[nodiscard]] static bool isStored(const DesignerProperty& property);
    /// Whether \a property stands below "editor". "boundingSize" does not: the host derives it.
    [[nodiscard]] static bool isEditorState(const DesignerProperty& property);
};

} // namespace Korvex::Meridane::Designer
