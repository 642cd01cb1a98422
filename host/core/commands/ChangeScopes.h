#pragma once

#include "host/core/CoreExport.h"

#include <QSharedPointer>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;

/// While one lives, values are being restored (undo, redo, Escape) or a new item is being filled: writes that elements
/// and items make in response are ignored, so that nothing drifts. GUI thread only; scopes nest.
class MERIDANE_CORE_EXPORT ValueRestoreScope
{
public:
    ValueRestoreScope();
    ~ValueRestoreScope();
    Q_DISABLE_COPY_MOVE(ValueRestoreScope)

    [[nodiscard]] static bool isActive();
};

/// While one lives, observers wait; when the outermost ends each changed property is announced once.
class MERIDANE_CORE_EXPORT NotificationScope
{
public:
    NotificationScope();
    ~NotificationScope();
    Q_DISABLE_COPY_MOVE(NotificationScope)

    /// Announces \a property of \a object when the outermost scope ends, or at once outside of any scope.
    static void announce(DesignerObject* object, const QSharedPointer<DesignerProperty>& property);
};

} // namespace Korvex::Meridane::Designer
