#pragma once

#include "host/core/CoreExport.h"
#include "host/core/commands/UndoStack.h"

#include <QList>
#include <QPointF>
#include <QPointer>

#include <optional>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class EditSession;

/**
 * Duplicates that continue a row: duplicating the copies of the last time repeats the way from their originals to where
 * they are now. Duplicate, move, duplicate again gives equal steps.
 */
class MERIDANE_CORE_EXPORT DuplicateSeries
{
public:
    /// Duplicates \a objects as one step; see ElementClipboard::duplicate().
    EditResult duplicate(EditSession* session, const QList<DesignerObject*>& objects);

private:
    [[nodiscard]] std::optional<QPointF> wayTo(const QList<DesignerObject*>& objects) const;

    QList<QPointer<DesignerObject>> m_originals;
    QList<QPointer<DesignerObject>> m_copies; // in the order of the originals
};

} // namespace Korvex::Meridane::Designer
