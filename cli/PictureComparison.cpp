#include "cli/PictureComparison.h"

#include "host/common/LocalizationHelper.h"

#include <QColor>
#include <QImageReader>

#include <algorithm>
#include <cstdlib>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

int channelDifference(QRgb one, QRgb other)
{
    if (qAlpha(one) == 0 && qAlpha(other) == 0)
        return 0;
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other)), std::abs(qAlpha(one) - qAlpha(other))});
}

/// A light grey that still shows where on the screen the pixel is.
QRgb faded(QRgb pixel)
{
    const int grey = 255 - (255 - qGray(pixel)) / 4;
    return qRgb(grey, grey, grey);
}

/// A red that is seen also where the difference is 1.
QRgb marked(int difference)
{
    const int rest = 180 - difference * 180 / 255;
    return qRgb(255, rest, rest);
}

} // namespace

PictureComparison PictureComparison::withFile(const QImage& picture, const QString& file, QString* message)
{
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    const QSize size = reader.size();
    // Only a picture of the same size is decoded, so that a prepared file cannot ask for more memory than ours.
    if (size.isValid() && size != picture.size()) {
        *message = LocalizationHelper::coreString(QStringLiteral("%1: is %2 x %3 pixels instead of %4 x %5"))
                       .arg(file)
                       .arg(size.width())
                       .arg(size.height())
                       .arg(picture.width())
                       .arg(picture.height());
        return {};
    }
    QImageReader::setAllocationLimit(static_cast<int>(std::max<qsizetype>(128, picture.sizeInBytes() / (1 << 19))));
    const QImage reference = reader.read();
    if (reference.isNull() || reference.size() != picture.size()) {
        *message =
            LocalizationHelper::coreString(QStringLiteral("%1: cannot be read: %2")).arg(file, reader.errorString());
        return {};
    }
    PictureComparison comparison = of(picture, reference);
    if (!comparison.isValid()) {
        *message = LocalizationHelper::coreString(
                       QStringLiteral("%1: there is not enough memory to compare with this picture"))
                       .arg(file);
    }
    return comparison;
}

PictureComparison PictureComparison::of(const QImage& picture, const QImage& reference)
{
    const QImage ours = picture.convertToFormat(QImage::Format_ARGB32);
    const QImage theirs = reference.convertToFormat(QImage::Format_ARGB32);
    QImage difference(ours.size(), QImage::Format_RGB32);
    if (ours.isNull() || theirs.isNull() || difference.isNull())
        return {};

    PictureComparison comparison;
    qint64 differing = 0;
    for (int y = 0; y < ours.height(); ++y) {
        const auto* ourLine = reinterpret_cast<const QRgb*>(ours.constScanLine(y));
        const auto* theirLine = reinterpret_cast<const QRgb*>(theirs.constScanLine(y));
        auto* line = reinterpret_cast<QRgb*>(difference.scanLine(y));
        for (int x = 0; x < ours.width(); ++x) {
            const int channel = channelDifference(ourLine[x], theirLine[x]);
            line[x] = channel == 0 ? faded(ourLine[x]) : marked(channel);
            differing += channel == 0 ? 0 : 1;
            comparison.m_maximum = std::max(comparison.m_maximum, channel);
        }
    }
    comparison.m_share = static_cast<double>(differing) / (static_cast<double>(ours.width()) * ours.height());
    comparison.m_difference = difference;
    return comparison;
}

} // namespace Korvex::Meridane::Designer
