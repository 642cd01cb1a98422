#include "host/core/editors/StandardEditor.h"

#include "host/core/editors/EditRun.h"
#include "host/core/editors/ValueComponents.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/NumberOperation.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SpinBox.h"

#include <QVariant>

namespace Korvex::Meridane::Designer {

StandardEditor::StandardEditor(QWidget* parent)
    : PropertyEditor(parent)
    , m_run(new EditRun(this))
{
    connect(this, &PropertyEditor::accepted, this, &StandardEditor::valueTaken);
}

StandardEditor::~StandardEditor() = default;

QStringList StandardEditor::classNames() const
{
    return PropertyEditor::classNames() << className();
}

QString StandardEditor::editorValue() const
{
    if (m_touched.isEmpty())
        return m_loaded;
    const QString shown = widgetValue();
    if (!property() || m_touched.contains(QString()))
        return shown;
    QString value = m_loaded;
    for (const QString& component : m_touched)
        value = ValueComponents::withComponent(property()->className(), value, component, shown);
    return value;
}

bool StandardEditor::loadEditorValue()
{
    m_loaded = valueToLoad();
    m_touched.clear();
    return showValue(m_loaded);
}

bool StandardEditor::showsMixed() const
{
    return true;
}

void StandardEditor::edit(const QString& component, const QString& operation)
{
    if (isLoading())
        return;
    if (!m_touched.contains(component))
        m_touched.append(component);
    setEdited(component, operation);
    setMergeKey(m_run->key());
    save();
}

void StandardEditor::joinSteps(SpinBox* field)
{
    m_run->watch(field);
}

void StandardEditor::joinSteps(NumberWidget* field)
{
    m_run->watch(field->spinBox());
    m_run->watch(field->slider());
}

void StandardEditor::joinSteps(ColorWidget* field)
{
    connect(field, &ColorWidget::sliderPressed, m_run, &EditRun::begin);
    connect(field, &ColorWidget::sliderReleased, m_run, &EditRun::end);
}

void StandardEditor::endSteps()
{
    m_run->end();
}

QString StandardEditor::operationText(const NumberOperation& operation)
{
    const char* sign = nullptr;
    switch (operation.kind) {
    case NumberOperation::Kind::Set:
        return {};
    case NumberOperation::Kind::Add:
        sign = "+=";
        break;
    case NumberOperation::Kind::Subtract:
        sign = "-=";
        break;
    case NumberOperation::Kind::Multiply:
        sign = "*=";
        break;
    case NumberOperation::Kind::Divide:
        sign = "/=";
        break;
    }
    return QLatin1String(sign) + ValueConversion::toString(operation.operand);
}

QVariant StandardEditor::parameter(const char* name, const QVariant& fallback) const
{
    return property() ? property()->editorParameters().value(QString::fromLatin1(name), fallback) : fallback;
}

void StandardEditor::valueTaken()
{
    // What the widget shows stands in the property now. In property-change mode the sheet loads the editor anew.
    if (isPropertyChange() || !property())
        return;
    m_loaded = property()->valueString();
    m_touched.clear();
}

} // namespace Korvex::Meridane::Designer
