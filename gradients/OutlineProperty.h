#pragma once

#include <QRectF>
#include <QSharedPointer>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;

/// The outer size of a new outline, in pixels.
inline constexpr QSizeF DefaultOutlineSize(100, 75);

/// Declares "points" on \a object at \a rank: by default the closed outline of a rectangle of the default size at (0, 0);
/// stored and exported, not shown.
[[nodiscard]] QSharedPointer<DesignerProperty> declareOutline(DesignerObject* object, int rank);

/// The bounding rectangle of \a points in the element's coordinates; null when they do not convert.
[[nodiscard]] QRectF outlineBounds(const DesignerProperty& points);

} // namespace Korvex::Meridane::Designer
