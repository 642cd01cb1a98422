#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace Korvex::Meridane::Common {
/**
 * Whether the SVG drawing \p svg can be shown without harm; \p reason (which may be null) says in English why it cannot.
 *
 * A small drawing can ask for endless work: elements that refer to each other multiply with every level, embedded
 * pictures unpack to any size, and references lead to other files. So a drawing is refused that is larger than 16 MiB or
 * no XML, that declares entities, nests more than 200 levels, comes to more than 200 000 elements once its references are
 * followed, refers to itself, embeds pictures of more than 16 million pixels together, or names other files.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT bool isHarmlessDrawing(const QByteArray& svg, QString* reason = nullptr);
} // namespace Korvex::Meridane::Common
