#include "host/core/commands/ChangeScopes.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"

#include <QPointer>
#include <QSet>
#include <QVector>

namespace Korvex::Meridane::Designer {

namespace {

struct Announcement
{
    QPointer<DesignerObject> object;
    QSharedPointer<DesignerProperty> property;
};

// GUI thread only.
int s_restoreDepth = 0;
int s_notificationDepth = 0;
QVector<Announcement> s_pending;
QSet<const DesignerProperty*> s_pendingProperties;

void tell(const Announcement& announcement)
{
    if (!announcement.object)
        return;
    Q_EMIT announcement.object->propertyChanged(announcement.property);
    if (!announcement.object)
        return;
    if (Project* project = Project::parentProject(announcement.object.data()))
        Q_EMIT project->objectPropertyChanged(announcement.object.data(), announcement.property);
}

} // namespace

ValueRestoreScope::ValueRestoreScope()
{
    ++s_restoreDepth;
}

ValueRestoreScope::~ValueRestoreScope()
{
    --s_restoreDepth;
}

bool ValueRestoreScope::isActive()
{
    return s_restoreDepth > 0;
}

NotificationScope::NotificationScope()
{
    ++s_notificationDepth;
}

NotificationScope::~NotificationScope()
{
    if (--s_notificationDepth > 0 || s_pending.isEmpty())
        return;
    // Observers may change values themselves, which opens scopes of their own.
    const QVector<Announcement> pending = std::exchange(s_pending, {});
    s_pendingProperties.clear();
    for (const Announcement& announcement : pending)
        tell(announcement);
}

void NotificationScope::announce(DesignerObject* object, const QSharedPointer<DesignerProperty>& property)
{
    if (s_notificationDepth == 0) {
        tell({object, property});
    } else if (!s_pendingProperties.contains(property.data())) {
        s_pendingProperties.insert(property.data());
        s_pending.append({object, property});
    }
}

} // namespace Korvex::Meridane::Designer
