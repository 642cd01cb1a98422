#pragma once

#include "host/core/commands/UndoStack.h"

#include <QPointF>
#include <QString>

namespace Korvex::Meridane::Designer {

class EditSession;

/// Adds an element without a mouse pointing at its place.
class ElementInsertion
{
public:
    /// Adds an element of \a className with its default size about \a center (pixels of the current screen), kept on
    /// the screen where it fits, on whole pixels, and beside the elements that were inserted there before.
    static EditResult insertAt(EditSession* session, const QString& className, const QPointF& center);
};

} // namespace Korvex::Meridane::Designer
