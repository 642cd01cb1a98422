#pragma once

#include "host/common/CommonExport.h"

#include <QtCore/QByteArray>
#include <QtCore/QString>

namespace Korvex::Meridane::Common {
/**
 * Whether the SVG drawing \p svg can be read without harm; \p reason (which may be null) says in the user's language why it
 * cannot. How long it takes to paint is asked of paintingEffort().
 *
 * A small drawing can ask for endless work: elements that refer to each other multiply with every level, every selector of
 * a style sheet is tried on every element, embedded pictures unpack to any size, and references lead to other files, maybe
 * to one that has no end. So a drawing is refused that
 *  - is larger than 8 MiB, no XML, or not in a text encoding of single bytes;
 *  - declares entities that refer to each other or to files, or that come to more than 1 MiB where they are used;
 *  - nests more than 200 levels or has an element with more than 300 attributes, a gradient of more than 1000 colours,
 *    or a style of more than 64 KiB;
 *  - comes to more than 100 000 elements once its references are followed, where five letters of text or 100 of attributes
 *    count as much as an element, or refers to itself;
 *  - has style sheets of more than 256 KiB, or with too many selectors for its elements;
 *  - embeds pictures of more than 16 million pixels together, drawings, or what is no picture;
 *  - names other files.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT bool isHarmlessDrawing(const QByteArray& svg, QString* reason = nullptr);
} // namespace Korvex::Meridane::Common
