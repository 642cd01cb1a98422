#include "host/core/project/ProblemFix.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/project/ElementPlacement.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LocalizationHelper.h"

#include <QGraphicsItem>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

EditResult gone()
{
    return {false, false,
            LocalizationHelper::coreString(QStringLiteral("The project has changed since. Check again."))};
}

QSharedPointer<DesignerProperty> propertyOf(const DesignerObject* object, const Problem& problem)
{
    return object && !problem.property.isEmpty() ? object->getProperty(problem.property)
                                                 : QSharedPointer<DesignerProperty>();
}

/// By how much a span from \a first to \a last moves to lie within 0 to \a length; a longer one begins at 0.
double wayInto(double first, double last, double length)
{
    if (first < 0 || last - first > length)
        return std::ceil(-first);
    return last > length ? std::floor(length - last) : 0;
}

} // namespace

QString ProblemFix::text(Project* project, const Problem& problem)
{
    const DesignerObject* found = object(project, problem);
    switch (problem.kind) {
    case Problem::Kind::Other:
        break;
    case Problem::Kind::OffScreen:
        if (qobject_cast<const VisualElement*>(found))
            return LocalizationHelper::coreString(QStringLiteral("Move onto the screen"));
        break;
    case Problem::Kind::InvalidValue: {
        const auto property = propertyOf(found, problem);
        if (property && property->valueString() != property->defaultValueString())
            return LocalizationHelper::coreString(QStringLiteral("Reset to the default"));
        break;
    }
    case Problem::Kind::MissingImage:
        if (propertyOf(found, problem))
            return LocalizationHelper::coreString(QStringLiteral("Choose another…"));
        break;
    }
    return {};
}

bool ProblemFix::needsImage(const Problem& problem)
{
    return problem.kind == Problem::Kind::MissingImage;
}

EditResult ProblemFix::apply(EditSession* session, const Problem& problem, const QString& imageFile)
{
    DesignerObject* found = object(session->project(), problem);
    const auto property = propertyOf(found, problem);
    switch (problem.kind) {
    case Problem::Kind::Other:
        break;
    case Problem::Kind::OffScreen:
        if (qobject_cast<VisualElement*>(found))
            return moveOntoScreen(session, found);
        break;
    case Problem::Kind::InvalidValue:
        if (property)
            return session->setProperty(found, property->id(), property->defaultValueString());
        break;
    case Problem::Kind::MissingImage:
        if (property)
            return showImage(session, property, imageFile);
        break;
    }
    return gone();
}

DesignerObject* ProblemFix::object(Project* project, const Problem& problem)
{
    if (problem.object.isEmpty())
        return problem.property.isEmpty() ? nullptr : project;
    const QString elementId = problem.object.section(QLatin1Char('/'), 1);
    Screen* screen = project->screen(problem.object.section(QLatin1Char('/'), 0, 0));
    if (!screen)
        return nullptr;
    return elementId.isEmpty() ? screen : screen->element(elementId);
}

EditResult ProblemFix::moveOntoScreen(EditSession* session, DesignerObject* object)
{
    const auto* element = qobject_cast<const VisualElement*>(object);
    Screen* screen = ObjectTree::screenOf(object);
    if (!screen)
        return gone();
    session->scene(screen);
    const GraphicsItem* item = object->graphicsItem();
    const QRectF bounds =
        item ? item->graphic()->mapRectToScene(item->outerRect()) : ElementPlacement::boundsOnScreen(element);
    const QPointF way(wayInto(bounds.left(), bounds.right(), screen->size().width()),
                      wayInto(bounds.top(), bounds.bottom(), screen->size().height()));
    // Positions are those in the parent, which may be a group that is turned.
    const QGraphicsItem* parent = item ? item->graphic()->parentItem() : nullptr;
    const QPointF distance = parent ? parent->mapFromScene(way) - parent->mapFromScene(QPointF(0, 0)) : way;
    return session->moveElements({object}, distance);
}

EditResult ProblemFix::showImage(EditSession* session, const QSharedPointer<DesignerProperty>& link,
                                 const QString& imageFile)
{
    const QString image = link->valueString();
    // One that is in the list comes back for everything that shows it.
    if (session->project()->imageResources().contains(image))
        return session->replaceImage(image, imageFile);
    QString imported;
    const EditResult result = session->importImage(imageFile, &imported);
    return result.accepted ? session->setProperty(link->parentObject(), link->id(), imported) : result;
}

} // namespace Korvex::Meridane::Designer
