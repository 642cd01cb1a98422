#include "host/core/commands/ChangeEditorMark.h"

#include "host/core/canvas/CanvasSelection.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/EditorMarks.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

ChangeEditorMark::ChangeEditorMark(DesignerObject* object, const QString& mark, const QString& value,
                                   UndoCommand* parent)
    : ChangeEditorMark(QList<DesignerObject*>{object}, mark, value, parent)
{}

ChangeEditorMark::ChangeEditorMark(const QList<DesignerObject*>& objects, const QString& mark, const QString& value,
                                   UndoCommand* parent)
    : UndoCommand(parent)
    , m_mark(mark)
    , m_value(value)
{
    m_objects.reserve(objects.size());
    for (DesignerObject* object : objects)
        m_objects.append({object, object ? object->editorMark(mark) : QString()});
}

ChangeEditorMark::~ChangeEditorMark() = default;

bool ChangeEditorMark::isValid() const
{
    return std::all_of(m_objects.cbegin(), m_objects.cend(), [this](const Marked& marked) {
        return marked.object && marked.object->editorMarkKeys().contains(m_mark);
    });
}

DesignerObject* ChangeEditorMark::activeItem() const
{
    return m_objects.isEmpty() ? nullptr : m_objects.constFirst().object.data();
}

void ChangeEditorMark::execute()
{
    m_changed = apply([this](const Marked&) { return m_value; });
}

void ChangeEditorMark::undoStructure()
{
    apply([](const Marked& marked) { return marked.before; });
}

void ChangeEditorMark::redoStructure()
{
    apply([this](const Marked&) { return m_value; });
}

bool ChangeEditorMark::structureChanged() const
{
    return m_changed;
}

/// Gives every object the value that \a value says; whether any of them had another.
bool ChangeEditorMark::apply(const std::function<QString(const Marked&)>& value)
{
    // What can no longer be selected is let go first: each by itself would look at all that are selected.
    if (m_objects.size() > 1 && (m_mark == EditorMarks::locked() || m_mark == EditorMarks::hidden())) {
        QList<DesignerObject*> going;
        for (const Marked& marked : std::as_const(m_objects)) {
            if (value(marked) == EditorMarks::setValue())
                going.append(marked.object);
        }
        CanvasSelection::letGo(going);
    }
    bool changed = false;
    for (const Marked& marked : std::as_const(m_objects))
        changed = marked.object->setEditorMark(m_mark, value(marked)) || changed;
    return changed;
}

} // namespace Korvex::Meridane::Designer
