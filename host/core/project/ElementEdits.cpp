#include "host/core/project/ElementEdits.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/commands/AddObject.h"
#include "host/core/commands/ChangeEditorMark.h"
#include "host/core/commands/ChangeProperties.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/commands/RemoveObject.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/QmlIdentifier.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QSet>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

QString text(const char* source)
{
    return LocalizationHelper::coreString(QString::fromUtf8(source));
}

ElementEdits::Plan refused(const QString& message)
{
    ElementEdits::Plan plan;
    plan.message = message;
    return plan;
}

/// The name of the step that sets or takes away \a mark of \a elements.
QString markText(const QList<DesignerObject*>& elements, const QString& mark, bool set)
{
    const int count = int(elements.size());
    const QString id = elements.constFirst()->getIdName();
    if (mark == EditorMarks::locked() && set) {
        return count == 1 ? LocalizationHelper::coreString(QStringLiteral("Lock %1")).arg(id)
                          : LocalizationHelper::coreString(QStringLiteral("Lock %n Element"),
                                                           QStringLiteral("Lock %n Elements"), count);
    }
    if (mark == EditorMarks::locked()) {
        return count == 1 ? LocalizationHelper::coreString(QStringLiteral("Unlock %1")).arg(id)
                          : LocalizationHelper::coreString(QStringLiteral("Unlock %n Element"),
                                                           QStringLiteral("Unlock %n Elements"), count);
    }
    if (set) {
        return count == 1 ? LocalizationHelper::coreString(QStringLiteral("Hide %1")).arg(id)
                          : LocalizationHelper::coreString(QStringLiteral("Hide %n Element"),
                                                           QStringLiteral("Hide %n Elements"), count);
    }
    return count == 1 ? LocalizationHelper::coreString(QStringLiteral("Show %1")).arg(id)
                      : LocalizationHelper::coreString(QStringLiteral("Show %n Element"),
                                                       QStringLiteral("Show %n Elements"), count);
}

} // namespace

ElementEdits::Plan ElementEdits::add(const QString& className, Screen* screen, const QString& id,
                                     const QMap<QString, QString>& properties)
{
    if (!screen)
        return refused(text("There is no screen to add to."));
    screen->readContent();
    if (!screen->contentError().isEmpty())
        return refused(screen->contentError());
    QString reason;
    if (!id.isEmpty() && !isQmlIdentifier(id, &reason))
        return refused(reason);
    if (!id.isEmpty() && screen->element(id))
        return refused(text("The id \"%1\" is already used.").arg(id));
    std::unique_ptr<DesignerObject> object;
    if (DesignerFactory::instance()->elementClassNames().contains(className))
        object.reset(DesignerFactory::instance()->createDataObject(className, nullptr));
    if (!object)
        return refused(text("There is no element class \"%1\".").arg(className));
    for (auto value = properties.cbegin(); value != properties.cend(); ++value) {
        if (!object->getProperty(value.key()))
            return refused(text("\"%1\" has no property \"%2\".").arg(className, value.key()));
    }
    object->setIdName(id);

    Plan plan;
    plan.element = object.get();
    plan.command = std::make_unique<UndoCommand>();
    const auto* adding = new AddObject(screen, std::move(object), -1, plan.command.get());
    plan.command->setText(adding->text());
    plan.command->setAllOrNothing(true);
    QList<ChangeProperties::Value> values;
    for (const auto& property : plan.element->properties()) {
        const auto value = properties.constFind(property->id());
        if (value != properties.cend())
            values.append({property, value.value()});
    }
    new ChangeProperties(plan.element, values, plan.command.get());
    return plan;
}

ElementEdits::Plan ElementEdits::remove(const QList<DesignerObject*>& elements)
{
    if (elements.isEmpty())
        return {};
    Plan plan;
    plan.command = std::make_unique<UndoCommand>();
    for (DesignerObject* element : elements)
        new RemoveObject(element, plan.command.get());
    const int count = plan.command->childCommandCount();
    plan.command->setText(count == 1 ? plan.command->childCommand(0)->text()
                                     : LocalizationHelper::coreString(QStringLiteral("Remove %n Element"),
                                                                      QStringLiteral("Remove %n Elements"), count));
    return plan;
}

ElementEdits::Plan ElementEdits::set(const QList<DesignerObject*>& objects, const QString& propertyId,
                                     const QStringList& values, const QList<DesignerObject*>& selection)
{
    Plan plan;
    plan.command = std::make_unique<UndoCommand>();
    plan.command->setAllOrNothing(true);
    const QSet<DesignerObject*> selected(selection.cbegin(), selection.cend());
    for (qsizetype i = 0; i < objects.size(); ++i) {
        DesignerObject* object = objects.at(i);
        const auto property = object->getProperty(propertyId);
        if (!property || dynamic_cast<const ObjectListProperty*>(property.data()))
            return refused(text("\"%1\" has no property \"%2\".").arg(object->getIdName(), propertyId));
        const auto* change = new ChangeProperty(property, values.at(i), selected.contains(object), plan.command.get());
        plan.command->setText(change->text());
    }
    return plan;
}

ElementEdits::Plan ElementEdits::move(const QList<DesignerObject*>& elements, const QPointF& distance,
                                      const QList<DesignerObject*>& selection)
{
    auto command = std::make_unique<UndoCommand>();
    command->setText(elements.size() == 1
                         ? text("Move %1").arg(elements.first()->getIdName())
                         : LocalizationHelper::coreString(QStringLiteral("Move %n Element"),
                                                          QStringLiteral("Move %n Elements"), int(elements.size())));
    const QSet<DesignerObject*> selected(selection.cbegin(), selection.cend());
    for (DesignerObject* object : elements) {
        const auto* element = qobject_cast<VisualElement*>(object);
        bool ok = false;
        const QPointF position =
            element ? ValueConversion::toPoint(element->position()->valueString(), &ok) : QPointF();
        if (ok) {
            new ChangeProperty(element->position(), ValueConversion::toString(withoutNoise(position + distance)),
                               selected.contains(object), command.get());
        }
    }
    Plan plan;
    if (command->childCommandCount() > 0)
        plan.command = std::move(command);
    return plan;
}

ElementEdits::Plan ElementEdits::mark(const QList<DesignerObject*>& elements, const QString& mark, bool set)
{
    if (elements.isEmpty())
        return {};
    Plan plan;
    plan.command =
        std::make_unique<ChangeEditorMark>(elements, mark, set ? EditorMarks::setValue() : QString(), nullptr);
    plan.command->setText(markText(elements, mark, set));
    return plan;
}

} // namespace Korvex::Meridane::Designer
