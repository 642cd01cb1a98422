#pragma once

#include "host/core/CoreExport.h"

#include <QImage>
#include <QList>
#include <QString>

#include <optional>

namespace Korvex::Meridane::Designer {

/// How a panel keeps its pixels.
enum class PanelFormat
{
    Full, ///< 8 bits a channel
    Rgb565, ///< 5, 6 and 5 bits, each channel rounded to the nearest level
    Rgb565Dithered, ///< the same, what lies between two levels shown by a pattern of 4 × 4 pixels
    Rgb332, ///< 3, 3 and 2 bits
    Grey ///< 8 bits of brightness
};

/**
 * The colours that a panel can show.
 *
 * A level of a channel of few bits is shown as the 8 bits that repeat those few (bit replication), as panels widen
 * them: level 0 is black, the highest is white. The pattern of dithering is that of Bayer, ordered, so that a pixel depends
 * on its colour and place alone: a picture that changes in one spot changes in no other, and one that needs no
 * dithering stays as it is.
 */
class MERIDANE_CORE_EXPORT PanelColors
{
public:
    PanelColors() = delete;

    /// The name of a format in settings and on command lines: "full", "rgb565", "rgb565-dithered", "rgb332", "grey".
    [[nodiscard]] static QString name(PanelFormat format);
    /// The format of that name; none for other names.
    [[nodiscard]] static std::optional<PanelFormat> named(const QString& name);
    /// All formats, in the order in which they are offered.
    [[nodiscard]] static QList<PanelFormat> formats();

    /// \a picture, opaque and on black, as a panel of \a format shows it: of the format RGB32, of the same size.
    [[nodiscard]] static QImage shown(const QImage& picture, PanelFormat format);

    /// The 8 bits that a level of \a bits (1 … 8) stands for; \a level is 0 … 2^bits − 1.
    [[nodiscard]] static constexpr int widened(int level, int bits)
    {
        int value = 0;
        for (int shift = 8 - bits; shift > -bits; shift -= bits)
            value |= shift >= 0 ? level << shift : level >> -shift;
        return value;
    }
    /// The greatest difference, 0 … 255, between a channel of \a bits and what is shown of it without dithering. With
    /// dithering it is less than twice that and one.
    [[nodiscard]] static int largestError(int bits);
};

} // namespace Korvex::Meridane::Designer
