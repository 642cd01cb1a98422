#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QList>
#include <QtCore/QSize>
#include <QtCore/QString>
#include <QtGui/QColor>
#include <QtGui/QImage>

/// Small picture files of every kind, made when they are needed.
namespace SamplePictures {

/// Red, green, blue and yellow quarters, from the top left in reading order: turned or mirrored it looks different.
[[nodiscard]] QImage quarters(const QSize& size);
/// \a picture as a file of \a format ("png", "jpg", "webp", "bmp"), without loss as far as the format allows.
[[nodiscard]] QByteArray encoded(const QImage& picture, const char* format);
/// The same of quarters().
[[nodiscard]] QByteArray quarters(const QSize& size, const char* format);

/// A GIF file of plain frames, each in its colour, one of the eight that have only full and missing channels. Each is shown
/// for \a delay hundredths of a second; the whole \a loops times, 0 for ever.
[[nodiscard]] QByteArray gif(const QSize& size, const QList<QColor>& frames, int delay = 5, int loops = 0);
/// A GIF file of one frame with quarters().
[[nodiscard]] QByteArray gifQuarters(const QSize& size);
/// A GIF file of \a size that says so, with \a count frames of one pixel.
[[nodiscard]] QByteArray gifOfFrames(const QSize& size, int count);

/// A drawing of \a size pixels with \a content in it.
[[nodiscard]] QByteArray drawing(const QSize& size, const QByteArray& content);
/// quarters() as a drawing.
[[nodiscard]] QByteArray drawnQuarters(const QSize& size);

/// A PNG file of \a size in one grey, well packed.
[[nodiscard]] QByteArray greyPng(const QSize& size);
/// The file \a png with \a chunk, called \a name, in front of its pixels.
[[nodiscard]] QByteArray withPngChunk(const QByteArray& png, const char* name, const QByteArray& chunk);

/// Makes \a file hold \a content, in folders that are made where they are missing.
void write(const QString& file, const QByteArray& content);

/// Whether all of \a picture is like quarters(): the middle of each quarter has its colour, up to \a tolerance a channel.
[[nodiscard]] bool isQuarters(const QImage& picture, int tolerance = 0);

} // namespace SamplePictures
