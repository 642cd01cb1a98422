#pragma once

#include "host/core/CoreExport.h"
#include "host/core/values/BorderInfo.h"
#include "host/core/values/ObjectLinkInfo.h"
#include "host/core/values/RotationInfo.h"

#include <QtCore/QList>
#include <QtCore/QMap>
#include <QtCore/QPair>
#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QColor>
#include <QtGui/QFont>
#include <QtGui/QPolygonF>

namespace Korvex::Meridane::Designer {
/**
 * Property values as text: the value strings that editors, commands and project files hand around, and their parsers.
 *
 * Every writer and the parser of the same type are exact inverses for every finite value. The forms are fixed and never
 * localised. A parser takes exactly what its form says: blanks at either end, trailing text, an empty text, "nan" and
 * "inf" are refused. A refusal sets @p ok (which may be null) to false and gives back a default value; success sets it
 * to true. Nothing is thrown.
 *
 * The writers expect finite numbers; a number that is not finite is written as 0, because no parser would take it.
 */
class MERIDANE_CORE_EXPORT ValueConversion
{
public:
    ValueConversion() = delete;

    /** `-12`: an optional minus and decimal digits, within the range of int; else 0. */
    static int toInt(const QString& text, bool* ok = nullptr);

    /** `43.3`, `1e-7`: a finite decimal number; else 0. A number too large or too small for a double is refused. */
    static double toReal(const QString& text, bool* ok = nullptr);

    /** `true` or `false`; else false. */
    static bool toBool(const QString& text, bool* ok = nullptr);

    /** `w,h` in pixels; else (0, 0). Negative numbers are read: limits are the property's business. */
    static QSizeF toSize(const QString& text, bool* ok = nullptr);

    /** `x,y`; else (0, 0). */
    static QPointF toPoint(const QString& text, bool* ok = nullptr);

    /** `x,y x,y x,y`, with one blank between points; else an empty polygon. The empty text is the empty polygon. */
    static QPolygonF toPolygon(const QString& text, bool* ok = nullptr);

    /** `#rrggbb`, `#aarrggbb`, `#rgb` or a colour name that QColor knows, in any case; else an invalid colour. */
    static QColor toColor(const QString& text, bool* ok = nullptr);

    /**
     * A group with `family`, either `pointSize` (points, above 0) or `pixelSize` (whole pixels, above 0), and
     * optionally `bold`, `italic`, `underline`, `overline`, `strikeOut` (booleans), `letterSpacing`, `wordSpacing`
     * (pixels) and `weight` (1 … 1000, which wins over `bold`); else QFont(). The result does not depend on the
     * application's default font. Sizes are limited to maximumFontSize(), spacings to ±maximumFontSize().
     */
    static QFont toFont(const QString& text, bool* ok = nullptr);

    /** A group with `width` (0 or more) and `color`, both present; else no border. */
    static BorderInfo toBorderInfo(const QString& text, bool* ok = nullptr);

    /** A group with `angle` and `fixedPoint` (one of the nine names), both present; else no rotation. */
    static RotationInfo toRotationInfo(const QString& text, bool* ok = nullptr);

    /** An object id that ObjectLinkInfo::isValid() accepts, or the empty text for no link; else the empty link. */
    static ObjectLinkInfo toLinkInfo(const QString& text, bool* ok = nullptr);

    /**
     * `position colour, position colour`; else an empty list. Neither the number of stops nor the range and order of
     * the positions is checked.
     */
    static QVector<QPair<double, QColor>> toGradientStops(const QString& text, bool* ok = nullptr);

    /**
     * `key: value; key: value;`; else an empty map. Keys are identifiers (letters, digits, underscores), each at most
     * once; the blank after a colon and the one between pairs may be missing, any further blank belongs to the value.
     * In a value `;`, `:` and `\` stand behind a `\`.
     */
    static QMap<QString, QString> toGroupProperties(const QString& text, bool* ok = nullptr);

    [[nodiscard]] static QString toString(int value);
    /** The shortest form that reads back exactly, with "." and, for very large and very small numbers, an exponent. */
    [[nodiscard]] static QString toString(double value);
    [[nodiscard]] static QString toString(bool value);
    /** `#rrggbb`, or `#aarrggbb` when not opaque (8 bits a channel); empty for an invalid colour. */
    [[nodiscard]] static QString toString(const QColor& color);
    [[nodiscard]] static QString toString(const QFont& font);
    [[nodiscard]] static QString toString(const QPointF& point);
    [[nodiscard]] static QString toString(const QSizeF& size);
    [[nodiscard]] static QString toString(const QPolygonF& polygon);
    [[nodiscard]] static QString toString(const QVector<QPair<double, QColor>>& stops);
    [[nodiscard]] static QString toString(const BorderInfo& border);
    [[nodiscard]] static QString toString(const RotationInfo& rotation);
    [[nodiscard]] static QString toString(const ObjectLinkInfo& link);
    /** A pointer would silently be taken as a boolean. */
    static QString toString(const void*) = delete;

    /** The group of @p pairs in their order, with escaped values; toGroupProperties() reads it back. */
    [[nodiscard]] static QString groupToString(const QList<QPair<QString, QString>>& pairs);

    /**
     * @p value as a QML number: at most @p decimals decimals (a negative number counts as 0), no trailing zeros, never
     * with an exponent, never "-0". A value that is not finite gives "0".
     */
    [[nodiscard]] static QString toQmlString(const double& value, const int& decimals);

    /** The largest font size, in its unit (points or pixels), and the largest spacing in pixels that toFont() reads. */
    [[nodiscard]] static constexpr double maximumFontSize() { return 10000; }
};
} // namespace Korvex::Meridane::Designer
