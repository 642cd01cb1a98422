#pragma once

#include <QRectF>

namespace Korvex::Meridane::Designer {

class DesignerProperty;

/// The outer rectangle of a shape in a frame of \a size with \a border centred on its outline, in the shape's
/// coordinates; empty when either value does not convert.
[[nodiscard]] QRectF borderedFrame(const DesignerProperty& size, const DesignerProperty& border);

} // namespace Korvex::Meridane::Designer
