#pragma once

#include <QImage>
#include <QString>

namespace Korvex::Meridane::Designer {

/**
 * How far two pictures of the same size differ, channel by channel (red, green, blue, opacity; 0 … 255). The colour of
 * a wholly transparent pixel does not count.
 */
class PictureComparison
{
public:
    /// Compares \a picture with the picture in \a file; invalid, with a message that names the file, when that cannot
    /// be read or is of another size.
    [[nodiscard]] static PictureComparison withFile(const QImage& picture, const QString& file, QString* message);
    /// Compares two pictures of the same size.
    [[nodiscard]] static PictureComparison of(const QImage& picture, const QImage& reference);

    [[nodiscard]] bool isValid() const { return !m_difference.isNull(); }
    /// The greatest difference of one channel of one pixel, 0 … 255.
    [[nodiscard]] int maximum() const { return m_maximum; }
    /// The share of the pixels that differ at all, 0 … 1.
    [[nodiscard]] double share() const { return m_share; }
    /// The picture itself, faded, with the pixels that differ in red: the stronger, the further.
    [[nodiscard]] const QImage& differencePicture() const { return m_difference; }

private:
    QImage m_difference;
    int m_maximum = 0;
    double m_share = 0;
};

} // namespace Korvex::Meridane::Designer
