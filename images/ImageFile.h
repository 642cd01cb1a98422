#pragma once

#include <QSize>
#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerObject;

/// The name of the image file that the "source" of \a element names; empty when it names none, or is no link.
[[nodiscard]] QString imageNameOf(const DesignerObject* element);

/// The path of that file in the images folder of the element's project, whether it exists or not. Empty without a name,
/// and where a symbolic link leads out of the project or to what is no regular file.
[[nodiscard]] QString imageFileOf(const DesignerObject* element);

/// The natural size of the picture of \a element, in pixels; invalid when it cannot be shown, or when no element can take on
/// its size.
[[nodiscard]] QSize naturalSizeOf(const DesignerObject* element);

} // namespace Korvex::Meridane::Designer
