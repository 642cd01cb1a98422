#include "host/core/commands/ChangeEditorMark.h"

#include "host/core/objects/DesignerObject.h"

namespace Korvex::Meridane::Designer {

ChangeEditorMark::ChangeEditorMark(DesignerObject* object, const QString& mark, const QString& value,
                                   UndoCommand* parent)
    : UndoCommand(parent)
    , m_object(object)
    , m_mark(mark)
    , m_before(object ? object->editorMark(mark) : QString())
    , m_after(value)
{}

ChangeEditorMark::~ChangeEditorMark() = default;

bool ChangeEditorMark::isValid() const
{
    return m_object && m_object->editorMarkKeys().contains(m_mark);
}

DesignerObject* ChangeEditorMark::activeItem() const
{
    return m_object;
}

void ChangeEditorMark::execute()
{
    m_changed = m_object->setEditorMark(m_mark, m_after);
}

void ChangeEditorMark::undoStructure()
{
    m_object->setEditorMark(m_mark, m_before);
}

void ChangeEditorMark::redoStructure()
{
    m_object->setEditorMark(m_mark, m_after);
}

bool ChangeEditorMark::structureChanged() const
{
    return m_changed;
}

} // namespace Korvex::Meridane::Designer
