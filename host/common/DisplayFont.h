#pragma once

#include "host/common/CommonExport.h"

#include <QtGui/QFont>

/**
 * Fonts as the display draws them. A point is 96/72 pixel, on every machine; letters are neither hinted nor placed on
 * subpixels of a particular screen, so that canvas, picture and display show the same text.
 */
namespace Korvex::Meridane::Common {
/** @p points as whole pixels (at least 1): points × 96 / 72, halves upwards. */
[[nodiscard]] MERIDANE_COMMON_EXPORT int pixelsFromPoints(double points);

/** The size of @p font in pixels: its pixel size, or its point size turned into pixels. */
[[nodiscard]] MERIDANE_COMMON_EXPORT int fontPixelSize(const QFont& font);

/**
 * @p font as a display shows it: with its size in pixels, without hinting and without subpixel antialiasing. The weight
 * is normal or bold, for a display knows no others. Nothing depends on the application's own font.
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT QFont displayFont(const QFont& font);

/**
 * Makes the font file @p path known to the application, before any other version of it that is installed.
 * @return the handle by which QFontDatabase knows it; -1 when it holds no font that can be used
 */
[[nodiscard]] MERIDANE_COMMON_EXPORT int addFontFile(const QString& path);
/** The same for the @p content of a font file, which need not stay in place. */
[[nodiscard]] MERIDANE_COMMON_EXPORT int addFontContent(const QByteArray& content);

/** A number that is another one after fonts have been added to the application or taken from it. Thread-safe. */
[[nodiscard]] MERIDANE_COMMON_EXPORT int fontGeneration();
} // namespace Korvex::Meridane::Common
