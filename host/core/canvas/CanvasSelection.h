#pragma once

#include "host/core/CoreExport.h"

#include <QList>

namespace Korvex::Meridane::Designer {

class DesignerObject;

/// What commands do to the selection on the canvas, for many elements at once: one by one, each would look at all others.
class MERIDANE_CORE_EXPORT CanvasSelection
{
public:
    CanvasSelection() = delete;

    /// Takes those of \a objects that stand on the screen of the first one, and what stands in them, out of the selection of
    /// their canvas, where there is one.
    static void letGo(const QList<DesignerObject*>& objects);
};

} // namespace Korvex::Meridane::Designer
