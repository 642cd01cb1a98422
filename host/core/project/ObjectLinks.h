#pragma once

#include "host/core/CoreExport.h"

#include <QList>
#include <QSharedPointer>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;

/// Links between the objects of a project: properties that name another object by its id.
class MERIDANE_CORE_EXPORT ObjectLinks
{
public:
    ObjectLinks() = delete;

    /// A link and the object that it leads to.
    struct Link
    {
        QSharedPointer<DesignerProperty> property;
        DesignerObject* target;
    };

    /// The properties that lead to \a object, in the order of the tree. Screens that have not been read are left unread.
    [[nodiscard]] static QList<QSharedPointer<DesignerProperty>> linksTo(DesignerObject* object);
    /// The links of \a objects and of what is below them that lead to one of these objects themselves.
    [[nodiscard]] static QList<Link> linksWithin(const QList<DesignerObject*>& objects);
};

} // namespace Korvex::Meridane::Designer
