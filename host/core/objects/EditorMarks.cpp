#include "host/core/objects/EditorMarks.h"

#include "host/core/objects/DesignerObject.h"

namespace Korvex::Meridane::Designer {

namespace {

bool isSetAbove(const DesignerObject* object, const QString& mark)
{
    for (; object; object = object->parentObject()) {
        if (object->editorMark(mark) == EditorMarks::setValue())
            return true;
    }
    return false;
}

} // namespace

QString EditorMarks::locked()
{
    return QStringLiteral("locked");
}

QString EditorMarks::hidden()
{
    return QStringLiteral("hidden");
}

QString EditorMarks::guides()
{
    return QStringLiteral("guides");
}

bool EditorMarks::isLocked(const DesignerObject* object)
{
    return isSetAbove(object, locked());
}

bool EditorMarks::isHidden(const DesignerObject* object)
{
    return isSetAbove(object, hidden());
}

} // namespace Korvex::Meridane::Designer
