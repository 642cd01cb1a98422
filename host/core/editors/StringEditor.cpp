#include "host/core/editors/StringEditor.h"

#include "host/core/properties/DesignerProperty.h"

#include <QLineEdit>

namespace Korvex::Meridane::Designer {

StringEditor::StringEditor(QWidget* parent)
    : StandardEditor(parent)
{}

StringEditor::~StringEditor() = default;

QString StringEditor::className() const
{
    return QStringLiteral("StringEditor");
}

bool StringEditor::createEditorWidget()
{
    m_field = new QLineEdit(this);
    m_field->setAccessibleName(property()->name());
    connect(m_field, &QLineEdit::editingFinished, this, &StringEditor::onEditingFinished);
    setEditorWidget(m_field);
    return true;
}

bool StringEditor::showValue(const QString& value)
{
    m_field->setPlaceholderText(isMixed() ? QStringLiteral("\u2014") : QString());
    m_field->setText(isMixed() ? QString() : value);
    m_field->setCursorPosition(0);
    return true;
}

QString StringEditor::widgetValue() const
{
    return m_field->text();
}

QString StringEditor::problemOf(const QString&) const
{
    return {};
}

void StringEditor::onEditingFinished()
{
    if (!m_field->isModified())
        return;
    // Enter and the focus that leaves afterwards are one edit.
    m_field->setModified(false);
    const QString problem = problemOf(m_field->text());
    if (problem.isEmpty())
        edit();
    else
        refuse(problem);
}

} // namespace Korvex::Meridane::Designer
