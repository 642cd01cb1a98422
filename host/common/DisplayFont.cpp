#include "host/common/DisplayFont.h"

#include <cmath>

namespace Korvex::Meridane::Common {
int pixelsFromPoints(double points)
{
    return qMax(1, static_cast<int>(std::floor(points * 96 / 72 + 0.5)));
}

int fontPixelSize(const QFont& font)
{
    return font.pixelSize() > 0 ? font.pixelSize() : pixelsFromPoints(font.pointSizeF());
}

QFont displayFont(const QFont& font)
{
    QFont result(font);
    result.setPixelSize(fontPixelSize(font));
    result.setHintingPreference(QFont::PreferNoHinting);
    const int strategy = font.styleStrategy() | QFont::PreferAntialias | QFont::NoSubpixelAntialias;
    result.setStyleStrategy(static_cast<QFont::StyleStrategy>(strategy));
    return result;
}
} // namespace Korvex::Meridane::Common
