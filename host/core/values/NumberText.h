#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

#include <optional>

/** Numbers as they stand inside value strings; the pieces that all parsers and writers of numbers share. */
namespace Korvex::Meridane::Designer {
/** The whole of @p text as an int: an optional minus and decimal digits. Nothing else, and nothing out of range. */
[[nodiscard]] std::optional<int> readInteger(QStringView text);

/**
 * The whole of @p text as a finite double: an optional minus, digits with an optional ".", an optional exponent. No
 * blanks, no plus sign in front, no "nan" or "inf", nothing beyond the range of double (in either direction).
 */
[[nodiscard]] std::optional<double> readReal(QStringView text);

/** Two reals with one comma between them. */
struct RealPair
{
    double first = 0;
    double second = 0;
};
[[nodiscard]] std::optional<RealPair> readRealPair(QStringView text);

/** Appends the shortest text that reads back as @p value; both zeros, and a value that is not finite, give "0". */
void appendReal(QString& text, double value);

/** Appends `first,second`. */
void appendRealPair(QString& text, double first, double second);
} // namespace Korvex::Meridane::Designer
