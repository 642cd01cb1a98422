#include "lines/LineShape.h"

#include "lines/LineDirection.h"

#include "host/core/canvas/CanvasNumbers.h"

#include "host/common/LineGeometry.h"
#include "host/common/RealComparison.h"

#include <QtMath>

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {

using namespace Common;

namespace {

/// How much larger or smaller than asked an outline may be to count as fitting, in pixels.
constexpr double FitTolerance = 0.25;
/// Outer sizes are kept with 6 decimals.
constexpr int SizeDecimals = 6;
constexpr double Noise = 1e-6;
/// How finely the search divides a quadrant, in degrees.
constexpr double SearchStep = 0.01;

/// \a angle as 0 to below 360 degrees, exact on the axes.
double normalized(double angle)
{
    double turned = std::fmod(angle, 360);
    if (turned < 0)
        turned += 360;
    for (const double axis : {90.0, 180.0, 270.0, 360.0}) {
        if (fuzzyEqual(turned, axis))
            return axis < 360 ? axis : 0;
    }
    return turned;
}

/// 0 … 3 for the quarter turn in which \a angle lies, each from its first axis on.
int quadrantOf(double angle)
{
    return int(normalized(angle) / 90);
}

bool isHorizontal(double angle)
{
    const double turned = normalized(angle);
    return turned == 0 || turned == 180;
}

bool isVertical(double angle)
{
    const double turned = normalized(angle);
    return turned == 90 || turned == 270;
}

/// The angle in \a quadrant of a line that lies \a fromVertical degrees, 0 to 90, off the vertical.
double angleIn(int quadrant, double fromVertical)
{
    switch (quadrant) {
    case 0:
        return 90 - fromVertical;
    case 1:
        return 90 + fromVertical;
    case 2:
        return 270 - fromVertical;
    default:
        return 270 + fromVertical;
    }
}

double limitedLength(double length)
{
    return std::clamp(withoutNoise(length), LineShape::Shortest, LineShape::Longest);
}

/// The line that \a direction, a result of lineDirection(), leaves room for in \a box.
std::optional<LineShape> lineIn(const LineShape& line, const QSizeF& box, const QPointF& direction)
{
    if (direction.x() < 0)
        return std::nullopt;
    const double dx = box.width() - direction.x();
    const double dy = box.height() - direction.y();
    if (!(dx >= -Noise) || !(dy >= -Noise))
        return std::nullopt;
    const double length = std::hypot(dx, dy);
    // The steps of the search show least when a long line takes its direction from what is left of the box, and a short
    // thick one from the direction that was found.
    const bool isLong = length >= line.thickness || (direction.x() == 0 && direction.y() == 0);
    const double fromVertical = isLong ? std::atan2(dx, dy) : std::atan2(direction.y(), direction.x());
    const double degrees = std::clamp(fromVertical * 180 / M_PI, 0.0, 90.0);
    return LineShape{limitedLength(length), withoutNoise(angleIn(quadrantOf(line.angle), degrees)), line.thickness};
}

bool fits(const std::optional<LineShape>& line, const QSizeF& box)
{
    if (!line)
        return false;
    const QSizeF outer = line->bounds().size();
    return std::abs(outer.width() - box.width()) <= FitTolerance
           && std::abs(outer.height() - box.height()) <= FitTolerance;
}

/// A line along an axis that fills \a box; \a vertical says along which.
std::optional<LineShape> lineAlongAxis(const LineShape& line, const QSizeF& box, bool vertical)
{
    const double along = vertical ? box.height() : box.width();
    const double across = vertical ? box.width() : box.height();
    if (!equalToDecimals(across, line.thickness, SizeDecimals) || along < LineShape::Shortest - Noise)
        return std::nullopt;
    const bool staysAlong = vertical ? isVertical(line.angle) : isHorizontal(line.angle);
    const double angle = staysAlong ? normalized(line.angle) : angleIn(quadrantOf(line.angle), vertical ? 0 : 90);
    return LineShape{limitedLength(along), angle, line.thickness};
}

/// The best of the lines that can be made for \a box.
std::optional<LineShape> fittedLine(const LineShape& line, const QSizeF& box)
{
    if (isHorizontal(line.angle) || isVertical(line.angle)) {
        if (const auto along = lineAlongAxis(line, box, isVertical(line.angle)))
            return along;
    }
    const QPointF direction = lineDirection(box, line.thickness);
    const auto found = lineIn(line, box, direction);
    if (fits(found, box)) {
        // The search knows no axes; back on the axis with which its quadrant begins the line is exact again. At the other
        // end the axis belongs to the next quadrant, in which a drag must not go on.
        const auto along = lineAlongAxis(line, box, quadrantOf(line.angle) % 2 == 1);
        return along && std::abs(along->angle - found->angle) < SearchStep ? along : found;
    }
    // The direction with the smallest f may belong to a line below the limits while another one fits.
    for (const auto& other : {lineIn(line, box, lineDirection(box, line.thickness, LineShape::Shortest)),
                              lineAlongAxis(line, box, false), lineAlongAxis(line, box, true)}) {
        if (fits(other, box))
            return other;
    }
    const bool limited = found && (found->length == LineShape::Shortest || found->length == LineShape::Longest);
    return limited || direction.isNull() ? found : std::nullopt;
}

} // namespace

QRectF LineShape::bounds() const
{
    return lineOutline(length, angle, thickness).boundingRect();
}

std::optional<LineShape> LineShape::fitted(const QSizeF& box) const
{
    if (!(thickness >= Thinnest) || !std::isfinite(box.width()) || !std::isfinite(box.height())
        || !std::isfinite(angle))
        return std::nullopt;
    const auto line = fittedLine(*this, box);
    if (!line || line->angle < 0 || line->angle > LastAngle || fuzzyEqual(line->length, length))
        return std::nullopt;
    return line;
}

std::optional<LineShape> LineShape::scaled(double factor) const
{
    if (!(thickness > 0) || !(length > 0) || !std::isfinite(factor))
        return std::nullopt;
    double k = factor;
    if (thickness * k < Thinnest)
        k = Thinnest / thickness;
    if (thickness * k > Thickest)
        k = Thickest / thickness;
    if (length * k < Shortest)
        k = Shortest / length;
    if (length * k > Longest)
        k = Longest / length;
    if (fuzzyEqual(k, 1))
        return std::nullopt;
    // What was far outside of one limit may have been taken out of the other one.
    return LineShape{limitedLength(length * k), angle, std::clamp(withoutNoise(thickness * k), Thinnest, Thickest)};
}

double lineAngle(const QPointF& start, const QPointF& end)
{
    constexpr int Decimals = 2;
    if (equalToDecimals(start.x(), end.x(), Decimals))
        return start.y() <= end.y() ? 90 : 270;
    if (equalToDecimals(start.y(), end.y(), Decimals))
        return start.x() <= end.x() ? 0 : 180;
    const double degrees = std::atan2(end.y() - start.y(), end.x() - start.x()) * 180 / M_PI;
    return degrees < 0 ? degrees + 360 : degrees;
}

} // namespace Korvex::Meridane::Designer
