#include "host/core/project/ObjectLinks.h"

#include "host/core/objects/Element.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/properties/LinkProperty.h"

#include <QSet>

namespace Korvex::Meridane::Designer {

namespace {

/// Calls \a visit with every link of \a object and what is below it that leads to an object.
template <typename Visitor>
void visitLinks(const DesignerObject* object, const Visitor& visit)
{
    ObjectTree::visitRead(object, [&visit](const DesignerObject* visited) {
        for (const auto& property : visited->properties()) {
            const auto* link = dynamic_cast<const LinkProperty*>(property.data());
            DesignerObject* target = link ? link->linkedObject() : nullptr;
            if (target)
                visit(property, target);
        }
    });
}

/// The top of the tree in which \a object stands.
const DesignerObject* topOf(const DesignerObject* object)
{
    const DesignerObject* top = object;
    while (top->parentObject())
        top = top->parentObject();
    return top;
}

} // namespace

QList<QSharedPointer<DesignerProperty>> ObjectLinks::linksTo(DesignerObject* object)
{
    QList<QSharedPointer<DesignerProperty>> links;
    // The ids of elements mean nothing outside of their screen.
    const DesignerObject* from = qobject_cast<Element*>(object) ? nullptr : topOf(object);
    for (DesignerObject* above = object; above && !from; above = above->parentObject()) {
        if (above->ownIdScope())
            from = above;
    }
    if (!from)
        return links;
    visitLinks(from, [&](const QSharedPointer<DesignerProperty>& property, const DesignerObject* target) {
        if (target == object)
            links.append(property);
    });
    return links;
}

QList<ObjectLinks::Link> ObjectLinks::linksWithin(const QList<DesignerObject*>& objects)
{
    QSet<const DesignerObject*> inside;
    for (const DesignerObject* object : objects)
        ObjectTree::visitRead(object, [&inside](const DesignerObject* visited) { inside.insert(visited); });
    QList<Link> links;
    for (const DesignerObject* object : objects) {
        visitLinks(object, [&](const QSharedPointer<DesignerProperty>& property, DesignerObject* target) {
            if (inside.contains(target))
                links.append(Link{property, target});
        });
    }
    return links;
}

} // namespace Korvex::Meridane::Designer
