#include "host/core/editors/StandardEditor.h"

#include "host/core/commands/UndoCommand.h"
#include "host/core/editors/EditRun.h"
#include "host/core/editors/ValueComponents.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/NumberOperation.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ColorWidget.h"
#include "host/core/widgets/NumberSlider.h"
#include "host/core/widgets/NumberWidget.h"
#include "host/core/widgets/SpinBox.h"

#include <QVariant>

#include <memory>
#include <utility>

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
    connect(field, &SpinBox::inputRefused, this, &StandardEditor::refuse);
}

void StandardEditor::joinSteps(NumberWidget* field)
{
    joinSteps(field->spinBox());
    m_run->watch(field->slider());
    connect(field, &NumberWidget::sliderReleased, this, &StandardEditor::endDrag);
}

void StandardEditor::joinSteps(ColorWidget* field)
{
    connect(field, &ColorWidget::sliderPressed, this, &StandardEditor::beginColorRun);
    connect(field, &ColorWidget::cancelled, this, &StandardEditor::takeColorRunBack);
    connect(field, &ColorWidget::sliderReleased, m_run, &EditRun::end);
    connect(field, &ColorWidget::inputRefused, this, &StandardEditor::refuse);
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

void StandardEditor::beginColorRun()
{
    m_run->begin();
    m_before.clear();
    if (!isPropertyChange())
        return;
    for (const auto& each : properties())
        m_before.append(each->valueString());
}

/// A single object has got its colour back already; of several each gets back its own.
void StandardEditor::takeColorRunBack()
{
    const QStringList before = std::exchange(m_before, {});
    Project* project = property() ? Project::parentProject(property()->parentObject()) : nullptr;
    if (!project || before.size() != properties().size())
        return;
    auto step = std::make_unique<UndoCommand>();
    step->setMergeKey(m_run->key());
    for (qsizetype i = 0; i < before.size(); ++i)
        PropertyEditor::createUpdateCommand(properties().at(i), before.at(i), step.get());
    project->execute(std::move(step));
}

/// What a drag led to beyond what the property takes is not worth keeping, unlike something typed.
void StandardEditor::endDrag()
{
    if (!isRefused())
        return;
    load();
    Q_EMIT accepted();
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
