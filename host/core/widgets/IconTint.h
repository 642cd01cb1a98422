#pragma once

#include "host/core/CoreExport.h"

#include <QPixmap>

namespace Korvex::Meridane::Designer {

/// Icons that are drawn in one colour, of which the alpha alone counts: they take the colour of what they stand in.
class MERIDANE_CORE_EXPORT IconTint
{
public:
    IconTint() = delete;

    /// \a drawing with every pixel in \a ink, as opaque as it was before; an ink that is not opaque makes it less so.
    [[nodiscard]] static QPixmap tinted(const QPixmap& drawing, const QColor& ink);
};

} // namespace Korvex::Meridane::Designer
