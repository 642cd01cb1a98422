#pragma once

#include "host/core/commands/ChangeRecording.h"
#include "host/core/commands/ChangeScopes.h"

namespace Korvex::Meridane::Designer {

/**
 * While one lives, properties have the values that a gesture would write (PropertyChange::after), so that QML can be
 * read from them; when it ends they have their own again, to the letter.
 *
 * Nothing is recorded, no reaction runs, no item and no observer hears of it: nobody may be given the chance to run
 * meanwhile. GUI thread only.
 */
class MERIDANE_CORE_EXPORT PendingValues
{
public:
    explicit PendingValues(const QVector<PropertyChange>& changes);
    ~PendingValues();
    Q_DISABLE_COPY_MOVE(PendingValues)

private:
    struct Kept
    {
        QSharedPointer<DesignerProperty> property;
        QString value;
    };

    ValueRestoreScope m_restoring;
    QVector<Kept> m_kept; // in the order in which they were filled
};

} // namespace Korvex::Meridane::Designer
