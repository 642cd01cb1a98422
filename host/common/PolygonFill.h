#pragma once

#include "host/common/CommonExport.h"

#include <QtGui/QPolygonF>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace Korvex::Meridane::Common {
/**
 * Fills @p polygon, closed or not, with the brush of @p painter, antialiased and by the odd-even rule.
 *
 * Looks like QPainter::drawPolygon() without a pen, which it calls. But that takes seconds where a thousand long edges
 * cross the same rows of pixels, and draws nothing at all where there are very many; such polygons are filled here, in a
 * time that grows with the number of pixels that their edges run through and no faster.
 */
MERIDANE_COMMON_EXPORT void fillPolygon(const QPolygonF& polygon, QPainter* painter);
} // namespace Korvex::Meridane::Common
