#include "host/core/project/ScreenEdits.h"

#include "host/core/canvas/CanvasNumbers.h"
#include "host/core/commands/AddObject.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/objects/QmlIdentifier.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ElementJson.h"
#include "host/core/project/ElementReader.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/properties/FontProperty.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

ScreenEdits::Plan refused(const QString& message)
{
    ScreenEdits::Plan plan;
    plan.message = message;
    return plan;
}

/// \a id without the digits at its end.
QString stemOf(const QString& id)
{
    qsizetype length = id.size();
    while (length > 1 && id.at(length - 1).isDigit())
        --length;
    return id.first(length);
}

/// Links among all objects of the project that lead from the original to itself lead from the copy to the copy.
void turnLinks(const Screen* copy, const QString& from, const QString& to)
{
    ObjectTree::visitRead(copy, [&](const DesignerObject* object) {
        for (const auto& property : object->properties()) {
            const auto* link = dynamic_cast<const LinkProperty*>(property.data());
            if (link && link->value().scopeType() == QLatin1String("Project") && link->value().objectId() == from
                && !link->value().filterType().contains(QLatin1String("ImageResource")))
                property->fill(to);
        }
    });
}

void addScaling(const DesignerObject* object, double horizontal, double vertical, UndoCommand* command)
{
    const auto change = [&](const QString& id, const auto& scaled) {
        const auto property = object->getProperty(id);
        if (property && property->isConverted())
            new ChangeProperty(property, scaled(property->valueString()), false, command);
    };
    const double smaller = std::min(horizontal, vertical);
    for (const auto& property : object->properties()) {
        const auto* font = dynamic_cast<const FontProperty*>(property.data());
        if (!font || !font->isConverted() || font->value().pixelSize() <= 0)
            continue;
        QFont scaled = font->value();
        scaled.setPixelSize(std::max(1, qRound(scaled.pixelSize() * smaller)));
        new ChangeProperty(property, ValueConversion::toString(scaled), false, command);
    }
    change(QStringLiteral("boundingSize"), [&](const QString& value) {
        const QSizeF size = ValueConversion::toSize(value);
        return ValueConversion::toString(withoutNoise(QSizeF(size.width() * horizontal, size.height() * vertical)));
    });
    change(QStringLiteral("position"), [&](const QString& value) {
        const QPointF place = ValueConversion::toPoint(value);
        return ValueConversion::toString(withoutNoise(QPointF(place.x() * horizontal, place.y() * vertical)));
    });
    if (const ObjectListProperty* list = object->childList()) {
        for (const DesignerObject* child : list->items())
            addScaling(child, horizontal, vertical, command);
    }
}

} // namespace

ScreenEdits::Plan ScreenEdits::duplicate(Project* project, Screen* screen, const QString& id)
{
    screen->readContent();
    if (!screen->contentError().isEmpty())
        return refused(screen->contentError());
    QString reason;
    if (!id.isEmpty() && !isQmlIdentifier(id, &reason))
        return refused(reason);
    if (!id.isEmpty() && project->ownIdScope()->contains(id))
        return refused(LocalizationHelper::coreString(QStringLiteral("The id \"%1\" is already used.")).arg(id));
    const QString name = id.isEmpty() ? project->ownIdScope()->freeId(stemOf(screen->getIdName())) : id;

    QJsonObject entry = ElementJson::write(screen);
    entry.insert(QLatin1String("id"), name);
    std::unique_ptr<DesignerObject> object(DesignerFactory::instance()->createDataObject(screen->className(), nullptr));
    auto* copy = qobject_cast<Screen*>(object.get());
    copy->setIdName(name);
    ElementReader reader({}, name);
    if (!reader.readScreen(entry, copy, &reason))
        return refused(reason);
    turnLinks(copy, screen->getIdName(), name);

    Plan plan;
    plan.screen = copy;
    const int place = int(project->screens().indexOf(screen)) + 1;
    plan.command = std::make_unique<AddObject>(project, std::move(object), place, nullptr);
    plan.command->setText(LocalizationHelper::coreString(QStringLiteral("Duplicate %1")).arg(screen->getIdName()));
    return plan;
}

ScreenEdits::Plan ScreenEdits::resize(Screen* screen, const QSizeF& size, Content content)
{
    constexpr double Largest = 20000; // pixels
    screen->readContent();
    if (!screen->contentError().isEmpty())
        return refused(screen->contentError());
    if (!(size.width() >= 1 && size.height() >= 1 && size.width() <= Largest && size.height() <= Largest)) {
        return refused(
            LocalizationHelper::coreString(QStringLiteral("The size of a screen must be between 1 and %1 px in both "
                                                          "directions."))
                .arg(int(Largest)));
    }
    Plan plan;
    plan.screen = screen;
    const QSizeF before = screen->size();
    if (size == before)
        return plan;
    plan.command = std::make_unique<UndoCommand>();
    plan.command->setAllOrNothing(true);
    plan.command->setText(LocalizationHelper::coreString(QStringLiteral("Resize %1")).arg(screen->getIdName()));
    new ChangeProperty(screen->getProperty(QStringLiteral("size")), ValueConversion::toString(size), false,
                       plan.command.get());
    if (content == Content::Scale && before.width() > 0 && before.height() > 0) {
        for (const DesignerObject* child : screen->childList()->items()) {
            addScaling(child, size.width() / before.width(), size.height() / before.height(), plan.command.get());
        }
    }
    return plan;
}

} // namespace Korvex::Meridane::Designer
