#include "text/TextAlignmentEditor.h"

#include "text/TextAlignButtonGroup.h"

#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

namespace Korvex::Meridane::Designer {

TextAlignmentEditor::TextAlignmentEditor(QWidget* parent)
    : PropertyEditor(parent)
{}

TextAlignmentEditor::~TextAlignmentEditor() = default;

QString TextAlignmentEditor::className() const
{
    return QStringLiteral("TextAlignmentEditor");
}

QStringList TextAlignmentEditor::classNames() const
{
    return PropertyEditor::classNames() << QStringLiteral("TextAlignmentEditor");
}

bool TextAlignmentEditor::createEditorWidget()
{
    m_group = new TextAlignButtonGroup(this);
    m_group->setAccessibleName(property()->name());
    setEditorWidget(m_group);
    // Of elements that differ, all are to take the alignment, the first one's own included.
    connect(m_group, &TextAlignButtonGroup::userModified, this, [this] { setEdited({}); });
    connect(m_group, &TextAlignButtonGroup::userModified, this, &TextAlignmentEditor::userModified);
    saveOn(m_group, &TextAlignButtonGroup::userModified);
    return true;
}

QString TextAlignmentEditor::editorValue() const
{
    return QString::number(m_group->alignment());
}

bool TextAlignmentEditor::loadEditorValue()
{
    const QString value = valueToLoad();
    bool ok = false;
    const int alignment = ValueConversion::toInt(value, &ok);
    if (ok)
        m_group->setAlignment(alignment);
    m_group->setMixed(isMixed());
    return true;
}

void TextAlignmentEditor::propertyReplaced()
{
    if (m_group)
        m_group->setAlignment(TextAlignButtonGroup::InitialAlignment);
}

bool TextAlignmentEditor::showsMixed() const
{
    return true;
}

} // namespace Korvex::Meridane::Designer
