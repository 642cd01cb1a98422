#pragma once

#include <QImage>
#include <QString>

/// Compares pictures of a canvas and of a display. Both are opaque.
namespace PictureComparison {

/// The greatest difference of a channel, 0 to 255, that still counts as the same colour: rounding of translucency.
constexpr int Tolerance = 8;

/// Of so many pixels one beside an edge may differ: on the limit the rasterizer rounds a corner either way.
constexpr int PixelsPerStray = 10000;

/// Where \a canvas and \a running look different; empty when they agree.
QString difference(const QImage& canvas, const QImage& running);

/// The number of colours in \a image.
qsizetype distinctColors(const QImage& image);

} // namespace PictureComparison
