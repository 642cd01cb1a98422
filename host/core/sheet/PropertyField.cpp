#include "host/core/sheet/PropertyField.h"

#include "host/core/commands/UndoCommand.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/editors/ValueComponents.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/DefaultValues.h"
#include "host/core/sheet/DirectChangeRecorder.h"
#include "host/core/sheet/SelectAgain.h"
#include "host/core/values/NumberExpression.h"

#include "host/common/LocalizationHelper.h"

#include <QSet>

#include <algorithm>
#include <memory>
#include <optional>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

PropertyField::PropertyField(PropertyEditor* editor, bool several, DirectChangeRecorder* recorder, QObject* parent)
    : QObject(parent)
    , m_editor(editor)
    , m_recorder(recorder)
{
    m_editor->setPropertyChange(several);
    connect(m_editor, &PropertyEditor::changeSaved, this, &PropertyField::applyToAll);
    connect(m_editor, &PropertyEditor::accepted, this, &PropertyField::compareWithDefaults);
}

PropertyField::~PropertyField() = default;

void PropertyField::bind(const QList<QSharedPointer<DesignerProperty>>& properties)
{
    m_properties = properties;
    m_stale = false;
    m_editor->setProperties(properties);
    compareWithDefaults();
    if (properties.isEmpty())
        return;
    load();
    reportInvalid();
}

QList<DesignerObject*> PropertyField::objects() const
{
    QList<DesignerObject*> objects;
    for (const auto& property : m_properties)
        objects.append(property->parentObject());
    return objects;
}

bool PropertyField::holdsText(const QString& part) const
{
    constexpr qsizetype Most = 100; // a filter that is typed must not wait for thousands of objects
    const auto end = m_properties.begin() + std::min(m_properties.size(), Most);
    return std::any_of(m_properties.begin(), end, [&part](const auto& property) {
        return property->valueString().contains(part, Qt::CaseInsensitive);
    });
}

void PropertyField::refresh()
{
    if (m_properties.isEmpty() || m_editor->isSaving())
        return;
    if (m_editor->isTyping()) {
        m_stale = true;
        compareWithDefaults();
        return;
    }
    m_stale = false;
    const bool wasMixed = m_mixed;
    if (m_editor->isPropertyChange())
        loadPending();
    // What is shown already is not loaded again: that would move the cursor.
    if (wasMixed || m_mixed || m_editor->isRefused() || !m_properties.first()->equalsValue(m_editor->editorValue()))
        m_editor->load();
    Q_EMIT m_editor->accepted();
    reportInvalid();
}

void PropertyField::reload()
{
    if (m_properties.isEmpty())
        return;
    m_stale = false;
    load();
    Q_EMIT m_editor->accepted();
    reportInvalid();
}

void PropertyField::focusMoved()
{
    // A refused text stays for the user to come back to.
    if (m_stale && !m_editor->isRefused())
        refresh();
}

void PropertyField::load()
{
    if (m_editor->isPropertyChange())
        loadPending();
    m_editor->load();
}

void PropertyField::reportInvalid()
{
    const auto& property = m_properties.first();
    if (!m_editor->isPropertyChange() && !property->isConverted()) {
        Q_EMIT invalidShown(LocalizationHelper::coreString(QStringLiteral("The stored value \"%1\" is not valid."))
                                .arg(property->valueString()));
    }
}

void PropertyField::loadPending()
{
    const QStringList mixed = mixedComponents();
    m_pending = m_properties.first()->valueString();
    m_editor->setMixedComponents(mixed);
    m_editor->setChangedPropertyValue(m_pending);
    setMixed(!mixed.isEmpty());
}

QStringList PropertyField::mixedComponents() const
{
    QStringList mixed;
    const auto& first = m_properties.first();
    const qsizetype most = std::max<qsizetype>(ValueComponents::names(first->className()).size(), 1);
    const QString value = first->valueString();
    for (const auto& property : m_properties) {
        const QString other = property->valueString();
        if (property == first || other == value)
            continue;
        for (const QString& component : ValueComponents::changedComponents(first->className(), value, other)) {
            if (!mixed.contains(component))
                mixed.append(component);
        }
        if (mixed.size() >= most)
            break;
    }
    return mixed;
}

void PropertyField::applyToAll()
{
    if (m_properties.isEmpty())
        return;
    const QString className = m_properties.first()->className();
    QStringList components{m_editor->editedComponent()};
    if (!m_editor->hasEditedComponent())
        components = ValueComponents::changedComponents(className, m_pending, m_editor->changedPropertyValue());

    auto step = std::make_unique<UndoCommand>();
    step->setAllOrNothing(true);
    step->setMergeKey(m_editor->mergeKey());
    if (!components.isEmpty()) {
        for (const auto& property : std::as_const(m_properties)) {
            const QString value = editedValue(*property, components);
            if (!property->equalsValue(value))
                m_editor->createUpdateCommand(property, value, step.get());
        }
    }
    const UndoCommand* child = step->childCommand(0);
    step->setText(child && !child->text().isEmpty()
                      ? child->text()
                      : LocalizationHelper::coreString(QStringLiteral("Change %1")).arg(m_properties.first()->name()));
    step->adopt(m_recorder->take());
    if (step->childCommandCount() > 0 && step->childCommandCount() < m_properties.size())
        new SelectAgain(objects(), step.get());

    EditResult result{true, false, {}};
    if (step->childCommandCount() > 0 || step->hasEffect()) {
        if (Project* project = Project::parentProject(m_properties.first()->parentObject()))
            result = project->execute(std::move(step));
    }
    if (m_properties.isEmpty())
        return; // the edit changed the selection
    if (!result.accepted) {
        m_editor->setChangedPropertyValue(m_pending);
        m_editor->setVerdict(false, result.message);
        return;
    }
    loadPending();
    // A text that is being typed keeps its cursor: it stands in every object now.
    if (m_mixed || !m_properties.first()->equalsValue(m_editor->editorValue()))
        m_editor->load();
    m_editor->setVerdict(true, {});
}

QString PropertyField::editedValue(const DesignerProperty& property, const QStringList& components) const
{
    std::optional<NumberOperation> operation;
    if (!m_editor->editedOperation().isEmpty())
        operation = NumberExpression::parse(m_editor->editedOperation(), NumberExpression::RelativeInput::Allowed);
    const QString edited = m_editor->changedPropertyValue();
    QString value = property.valueString();
    for (const QString& component : components) {
        value = operation && operation->isRelative()
                    ? ValueComponents::withOperation(property.className(), value, component, *operation)
                    : ValueComponents::withComponent(property.className(), value, component, edited);
    }
    return value;
}

void PropertyField::compareWithDefaults()
{
    const bool differs = std::any_of(m_properties.begin(), m_properties.end(),
                                     [](const auto& property) { return !hasDefaultValue(*property); });
    if (differs == m_differs)
        return;
    m_differs = differs;
    Q_EMIT differsChanged(differs);
}

void PropertyField::setMixed(bool mixed)
{
    if (m_mixed == mixed)
        return;
    m_mixed = mixed;
    Q_EMIT mixedChanged(mixed);
}

} // namespace Korvex::Meridane::Designer
