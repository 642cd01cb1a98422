#pragma once

#include "host/core/CoreExport.h"

#include <QRectF>
#include <QSharedPointer>
#include <QSizeF>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;

/**
 * Rows that the property tables of several elements have in common. Each declares its property on \a object at \a rank
 * and gives back its handle; all of them keep values that do not convert.
 */
namespace ElementProperties {

/// "size", the size of the content in pixels: stored and exported, not shown.
[[nodiscard]] MERIDANE_CORE_EXPORT QSharedPointer<DesignerProperty> declareSize(DesignerObject* object, int rank,
                                                                                const QSizeF& size);
/// "boundingSize", the outer size in pixels, border included: shown and editable, derived and therefore not stored.
[[nodiscard]] MERIDANE_CORE_EXPORT QSharedPointer<DesignerProperty> declareBoundingSize(DesignerObject* object,
                                                                                        int rank, const QSizeF& size);
/// "keepRatio", the width / height of the outer size that is kept, by default 0 for none: shown and editable.
[[nodiscard]] MERIDANE_CORE_EXPORT QSharedPointer<DesignerProperty> declareKeepRatio(DesignerObject* object, int rank);
/// "color" of filled shapes: by default orange.
[[nodiscard]] MERIDANE_CORE_EXPORT QSharedPointer<DesignerProperty> declareFillColor(DesignerObject* object, int rank);
/// "border": by default black and 0 pixels wide.
[[nodiscard]] MERIDANE_CORE_EXPORT QSharedPointer<DesignerProperty> declareBorder(DesignerObject* object, int rank);

/// The rectangle (0, 0, width, height) of the content whose size is \a size; null when that does not convert.
[[nodiscard]] MERIDANE_CORE_EXPORT QRectF contentRect(const DesignerProperty& size);

} // namespace ElementProperties

} // namespace Korvex::Meridane::Designer
