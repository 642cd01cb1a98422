#include "host/core/values/NumberText.h"

#include <QtCore/QVarLengthArray>

#include <array>
#include <charconv>
#include <cmath>

namespace Korvex::Meridane::Designer {
namespace {
using Characters = QVarLengthArray<char, 64>;

/** The characters of @p text as ASCII; empty when one is not ASCII, which no number has. */
Characters toAscii(QStringView text)
{
    Characters result;
    result.reserve(text.size());
    for (const QChar c : text) {
        if (c.unicode() > 0x7f) {
            return {};
        }
        result.append(static_cast<char>(c.unicode()));
    }
    return result;
}

/** Numbers from here on, and below its counterpart, are written with an exponent. */
constexpr double largestPlainNumber = 1e15;
constexpr double smallestPlainNumber = 1e-5;
} // namespace

std::optional<int> readInteger(QStringView text)
{
    const Characters characters = toAscii(text);
    const char* end = characters.constData() + characters.size();
    int value = 0;
    const auto [stop, error] = std::from_chars(characters.constData(), end, value);
    if (error != std::errc() || stop != end || characters.isEmpty()) {
        return std::nullopt;
    }
    return value;
}

std::optional<double> readReal(QStringView text)
{
    const Characters characters = toAscii(text);
    if (characters.isEmpty()) {
        return std::nullopt;
    }
    const char* begin = characters.constData();
    const char* end = begin + characters.size();
    // from_chars also knows the words for infinity and not-a-number.
    const char* number = *begin == '-' ? begin + 1 : begin;
    if (number == end || ((*number < '0' || *number > '9') && *number != '.')) {
        return std::nullopt;
    }
    double value = 0;
    const auto [stop, error] = std::from_chars(begin, end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value;
}

std::optional<RealPair> readRealPair(QStringView text)
{
    const qsizetype comma = text.indexOf(u',');
    if (comma < 0) {
        return std::nullopt;
    }
    const std::optional<double> first = readReal(text.first(comma));
    const std::optional<double> second = readReal(text.sliced(comma + 1));
    if (!first || !second) {
        return std::nullopt;
    }
    return RealPair{*first, *second};
}

void appendReal(QString& text, double value)
{
    if (value == 0 || !std::isfinite(value)) {
        text.append(u'0');
        return;
    }
    const double magnitude = std::abs(value);
    const bool plain = magnitude >= smallestPlainNumber && magnitude < largestPlainNumber;
    std::array<char, 48> buffer; // 17 digits, sign, point, exponent, at most 5 leading zeros
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            plain ? std::chars_format::fixed : std::chars_format::scientific);
    Q_ASSERT(error == std::errc());
    text.append(QLatin1String(buffer.data(), end - buffer.data()));
}

void appendRealPair(QString& text, double first, double second)
{
    appendReal(text, first);
    text.append(u',');
    appendReal(text, second);
}
} // namespace Korvex::Meridane::Designer
