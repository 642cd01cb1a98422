#include "host/core/sheet/FieldEdits.h"

#include "host/core/commands/ChangeProperty.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/DefaultValues.h"
#include "host/core/sheet/PropertyField.h"
#include "host/core/sheet/SelectAgain.h"

#include "host/common/LocalizationHelper.h"

#include <algorithm>
#include <memory>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

bool isNumber(const DesignerProperty& property)
{
    const QString type = property.className();
    return type == QLatin1String("RealProperty") || type == QLatin1String("IntegerProperty");
}

/// The fields in the order in which they are reset: the last first, so that a kept ratio is let go before the size that
/// it would bend, and without a size that follows from numbers which are reset as well.
QList<PropertyField*> resetOrder(const QList<PropertyField*>& fields)
{
    const bool hasNumbers = std::any_of(fields.begin(), fields.end(), [](const PropertyField* field) {
        const auto property = field->properties().value(0);
        return property && property->hasFlag(Stored) && isNumber(*property);
    });
    QList<PropertyField*> order;
    for (auto field = fields.rbegin(); field != fields.rend(); ++field) {
        const auto property = (*field)->properties().value(0);
        if (property && (*field)->editor()->isEnabled() && !(hasNumbers && isDerivedSize(*property)))
            order.append(*field);
    }
    return order;
}

EditResult execute(std::unique_ptr<UndoCommand> step, const QSharedPointer<DesignerProperty>& property)
{
    Project* project = Project::parentProject(property->parentObject());
    return project ? project->execute(std::move(step)) : EditResult{true, false, {}};
}

/// Whether \a text is a value of the property; tried with an object of the same type that nobody sees.
bool isValue(const DesignerProperty& property, const QString& text)
{
    const std::unique_ptr<DesignerObject> probe(
        DesignerFactory::instance()->createDataObject(property.parentObject()->className(), nullptr));
    const auto same = probe ? probe->getProperty(property.id()) : nullptr;
    return !same || (same->convertToValue(text) && same->isConverted());
}

} // namespace

EditResult FieldEdits::reset(const QList<PropertyField*>& fields, const QString& name)
{
    auto step = std::make_unique<UndoCommand>();
    step->setText(LocalizationHelper::coreString(QStringLiteral("Reset %1")).arg(name));
    QList<QSharedPointer<DesignerProperty>> reset;
    const QList<PropertyField*> order = resetOrder(fields);
    for (const PropertyField* field : order) {
        for (const auto& property : field->properties()) {
            if (hasDefaultValue(*property))
                continue;
            // Not the editor's own command, which would keep to what can be typed.
            field->editor()->PropertyEditor::createUpdateCommand(property, property->defaultValueString(), step.get());
            reset.append(property);
        }
    }
    if (reset.isEmpty())
        return {true, false, {}};
    if (const QList<DesignerObject*> objects = order.constFirst()->objects(); objects.size() > 1)
        new SelectAgain(objects, step.get());
    EditResult result = execute(std::move(step), reset.constFirst());
    for (PropertyField* field : order)
        field->reload();
    const auto kept = std::find_if(reset.cbegin(), reset.cend(), [](const auto& property) {
        return isDerivedSize(*property) && !hasDefaultValue(*property);
    });
    if (result.accepted && kept != reset.cend()) {
        result.accepted = false;
        result.message = LocalizationHelper::coreString(QStringLiteral("%1 follows from other values: reset those."))
                             .arg((*kept)->name());
    }
    return result;
}

QString FieldEdits::commonValue(const PropertyField& field)
{
    const auto property = field.properties().value(0);
    return property && !field.isMixed() ? property->valueString() : QString();
}

EditResult FieldEdits::paste(const PropertyField& field, const QString& value)
{
    if (field.properties().isEmpty())
        return {true, false, {}};
    const auto& first = field.properties().constFirst();
    if (!isValue(*first, value)) {
        return {false, false,
                LocalizationHelper::coreString(QStringLiteral("The text \"%1\" is no value for %2."))
                    .arg(value.left(40), first->name())};
    }
    auto step = std::make_unique<UndoCommand>();
    step->setText(LocalizationHelper::coreString(QStringLiteral("Change %1")).arg(first->name()));
    step->setAllOrNothing(true);
    for (const auto& property : field.properties()) {
        if (!property->equalsValue(value))
            field.editor()->createUpdateCommand(property, value, step.get());
    }
    if (step->childCommandCount() > 0 && field.properties().size() > 1)
        new SelectAgain(field.objects(), step.get());
    return step->childCommandCount() > 0 ? execute(std::move(step), first) : EditResult{true, false, {}};
}

} // namespace Korvex::Meridane::Designer
