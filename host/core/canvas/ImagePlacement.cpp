#include "host/core/canvas/ImagePlacement.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/commands/AddObject.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ImageReferences.h"
#include "host/core/project/Project.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"
#include "host/common/PictureFile.h"

#include <QDir>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

namespace {

constexpr double AsideStep = 10; // pixels

QString text(const char* source)
{
    return Common::LocalizationHelper::coreString(QString::fromUtf8(source));
}

/// The property of \a object that links to an image, or null.
QSharedPointer<DesignerProperty> imageLink(const DesignerObject* object)
{
    for (const auto& property : object->properties()) {
        const auto* link = dynamic_cast<const LinkProperty*>(property.data());
        if (link && ImageReferences::isImageLink(*link))
            return property;
    }
    return {};
}

/// The positions of the elements that stand directly on \a screen.
QStringList takenPlaces(const Screen* screen)
{
    QStringList places;
    for (const DesignerObject* object : screen->childList()->items()) {
        if (const auto* element = qobject_cast<const VisualElement*>(object))
            places.append(element->position()->valueString());
    }
    return places;
}

/// The top left corner of an element of \a size about \a center: on \a screen where it fits, on whole pixels.
QPointF cornerAbout(const QPointF& center, const QSizeF& size, const Screen* screen)
{
    const QSizeF room = screen->size() - size;
    const QPointF corner = center - QPointF(size.width(), size.height()) / 2;
    return {std::round(std::clamp(corner.x(), 0., std::max(0., room.width()))),
            std::round(std::clamp(corner.y(), 0., std::max(0., room.height())))};
}

} // namespace

QString ImagePlacement::elementClass()
{
    const QStringList classes = DesignerFactory::instance()->elementClassNames();
    for (const QString& className : classes) {
        const std::unique_ptr<DesignerObject> sample(DesignerFactory::instance()->createDataObject(className, nullptr));
        if (sample && imageLink(sample.get()))
            return className;
    }
    return {};
}

QSizeF ImagePlacement::sizeOf(const Screen* screen, const QString& image)
{
    const Project* project = Project::parentProject(screen);
    const QSizeF natural = Common::pictureInfo(QDir(project->imagesPath()).filePath(image)).size;
    const QSizeF room = screen->size();
    if (natural.isEmpty() || (natural.width() <= room.width() && natural.height() <= room.height()))
        return natural.isEmpty() ? QSizeF() : natural;
    const QSizeF reduced = natural.scaled(room, Qt::KeepAspectRatio);
    return {std::max(1., std::round(reduced.width())), std::max(1., std::round(reduced.height()))};
}

EditResult ImagePlacement::place(EditSession* session, const QStringList& images, const QPointF& point, Anchor anchor)
{
    Screen* screen = session->currentScreen();
    if (!screen)
        return {false, false, text("There is no screen to add to.")};
    session->scene(screen); // an edit always has items
    if (!screen->contentError().isEmpty())
        return {false, false, screen->contentError()};
    const QString className = elementClass();
    if (className.isEmpty())
        return {false, false, text("No element can show images. The plug-in with the visual elements was not found.")};

    QStringList taken = takenPlaces(screen);
    QList<DesignerObject*> added;
    auto command = std::make_unique<UndoCommand>();
    command->setAllOrNothing(true);
    for (const QString& image : images) {
        std::unique_ptr<DesignerObject> element(DesignerFactory::instance()->createDataObject(className, nullptr));
        const QSizeF size = sizeOf(screen, image);
        QPointF corner(std::round(point.x()), std::round(point.y()));
        if (anchor == Anchor::Center) {
            const auto outer = element->getProperty(QStringLiteral("boundingSize"));
            const QSizeF shown = size.isEmpty() && outer ? ValueConversion::toSize(outer->valueString()) : size;
            corner = cornerAbout(point, shown, screen);
        }
        while ((anchor == Anchor::Center || !added.isEmpty()) && taken.contains(ValueConversion::toString(corner)))
            corner += QPointF(AsideStep, AsideStep);
        taken.append(ValueConversion::toString(corner));

        DesignerObject* object = element.get();
        const auto link = imageLink(object);
        added.append(object);
        const auto* add = new AddObject(screen, std::move(element), -1, command.get());
        command->setText(images.size() == 1 ? add->text()
                                            : Common::LocalizationHelper::coreString(QStringLiteral("Add %n Image"),
                                                                                     QStringLiteral("Add %n Images"),
                                                                                     int(images.size())));
        for (const auto& property : object->properties()) {
            if (property == link)
                new ChangeProperty(property, image, false, command.get());
            else if (property->id() == QLatin1String("position"))
                new ChangeProperty(property, ValueConversion::toString(corner), false, command.get());
            else if (property->id() == QLatin1String("boundingSize") && !size.isEmpty())
                new ChangeProperty(property, ValueConversion::toString(size), false, command.get());
        }
    }
    EditResult result = session->project()->execute(std::move(command));
    if (result.changed)
        session->setSelection(added);
    return result;
}

QString ImagePlacement::mimeType()
{
    return QStringLiteral("application/x-meridane-images");
}

} // namespace Korvex::Meridane::Designer
