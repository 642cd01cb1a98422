#include "tests/display/PictureComparison.h"

#include <QSet>

#include <algorithm>
#include <cstdlib>

namespace {

int channelDifference(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)), std::abs(qBlue(a) - qBlue(b))});
}

bool isBesideAnEdge(const QImage& image, int x, int y)
{
    for (int row = std::max(y - 1, 0); row <= std::min(y + 1, image.height() - 1); ++row) {
        for (int column = std::max(x - 1, 0); column <= std::min(x + 1, image.width() - 1); ++column) {
            if (channelDifference(image.pixel(x, y), image.pixel(column, row)) > PictureComparison::Tolerance)
                return true;
        }
    }
    return false;
}

} // namespace

QString PictureComparison::difference(const QImage& canvas, const QImage& running)
{
    if (canvas.isNull() || canvas.size() != running.size())
        return QStringLiteral("the sizes differ, or there is no picture");
    int strays = canvas.width() * canvas.height() / PixelsPerStray;
    for (int y = 0; y < canvas.height(); ++y) {
        for (int x = 0; x < canvas.width(); ++x) {
            const int difference = channelDifference(canvas.pixel(x, y), running.pixel(x, y));
            if (difference > Tolerance && (!isBesideAnEdge(canvas, x, y) || --strays < 0))
                return QStringLiteral("by %1 at %2,%3").arg(difference).arg(x).arg(y);
        }
    }
    return {};
}

qsizetype PictureComparison::distinctColors(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return colors.size();
}
