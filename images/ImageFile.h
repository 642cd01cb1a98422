#pragma once

#include <QSize>
#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerObject;

/// The path of the image file that the "source" of \a element names; empty when it names none, or is no link.
[[nodiscard]] QString imageFileOf(const DesignerObject* element);

/// The natural size of that picture in pixels; invalid when there is none that can be shown.
[[nodiscard]] QSize naturalSizeOf(const DesignerObject* element);

} // namespace Korvex::Meridane::Designer
