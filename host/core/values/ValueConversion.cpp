#include "host/core/values/ValueConversion.h"

#include "host/core/values/GroupText.h"
#include "host/core/values/NumberText.h"

#include <algorithm>
#include <cmath>

namespace Korvex::Meridane::Designer {
namespace {
/** Reports through @p ok, which may be null, whether @p result holds a value, and gives that or @p fallback. */
template <typename T>
T unwrap(const std::optional<T>& result, bool* ok, const T& fallback = {})
{
    if (ok) {
        *ok = result.has_value();
    }
    return result.value_or(fallback);
}

std::optional<bool> readBool(QStringView text)
{
    if (text == QLatin1String("true")) {
        return true;
    }
    if (text == QLatin1String("false")) {
        return false;
    }
    return std::nullopt;
}

std::optional<QPolygonF> readPolygon(QStringView text)
{
    QPolygonF polygon;
    if (text.isEmpty()) {
        return polygon;
    }
    polygon.reserve(text.count(u' ') + 1);
    while (true) {
        const qsizetype blank = text.indexOf(u' ');
        const std::optional<RealPair> point = readRealPair(blank < 0 ? text : text.first(blank));
        if (!point) {
            return std::nullopt;
        }
        polygon.append(QPointF(point->first, point->second));
        if (blank < 0) {
            return polygon;
        }
        text = text.sliced(blank + 1);
    }
}

/** The hexadecimal digits of @p text, at most 8, as one number. */
std::optional<quint32> readHexadecimal(QStringView text)
{
    quint32 value = 0;
    for (const QChar c : text) {
        const char16_t u = c.unicode();
        quint32 digit = 0;
        if (u >= u'0' && u <= u'9') {
            digit = u - u'0';
        } else if (u >= u'a' && u <= u'f') {
            digit = u - u'a' + 10;
        } else if (u >= u'A' && u <= u'F') {
            digit = u - u'A' + 10;
        } else {
            return std::nullopt;
        }
        value = value << 4 | digit;
    }
    return value;
}

bool isAsciiLetter(QChar c)
{
    return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

std::optional<QColor> readColor(QStringView text)
{
    if (text.startsWith(u'#')) {
        const QStringView digits = text.sliced(1);
        if (digits.size() != 3 && digits.size() != 6 && digits.size() != 8) {
            return std::nullopt;
        }
        const std::optional<quint32> value = readHexadecimal(digits);
        if (!value) {
            return std::nullopt;
        }
        if (digits.size() == 3) {
            const int red = static_cast<int>(*value >> 8 & 0xf);
            const int green = static_cast<int>(*value >> 4 & 0xf);
            const int blue = static_cast<int>(*value & 0xf);
            return QColor(red * 0x11, green * 0x11, blue * 0x11);
        }
        return digits.size() == 6 ? QColor::fromRgb(*value) : QColor::fromRgba(*value);
    }
    // QColor itself ignores blanks in names.
    if (text.isEmpty() || !std::all_of(text.cbegin(), text.cend(), isAsciiLetter)) {
        return std::nullopt;
    }
    const QColor color = QColor::fromString(text);
    return color.isValid() ? std::optional<QColor>(color) : std::nullopt;
}

std::optional<BorderInfo> readBorder(QStringView text)
{
    std::optional<int> width;
    std::optional<QColor> color;
    GroupReader reader(text);
    while (reader.next()) {
        if (reader.key() == QLatin1String("width") && !width) {
            width = readInteger(reader.value());
            if (!width || *width < 0) {
                return std::nullopt;
            }
        } else if (reader.key() == QLatin1String("color") && !color) {
            color = readColor(reader.value());
            if (!color) {
                return std::nullopt;
            }
        } else {
            return std::nullopt;
        }
    }
    if (!reader.atEnd() || !width || !color) {
        return std::nullopt;
    }
    return BorderInfo(*width, *color);
}

std::optional<RotationInfo> readRotation(QStringView text)
{
    std::optional<double> angle;
    std::optional<QString> fixedPoint;
    GroupReader reader(text);
    while (reader.next()) {
        if (reader.key() == QLatin1String("angle") && !angle) {
            angle = readReal(reader.value());
            if (!angle) {
                return std::nullopt;
            }
        } else if (reader.key() == QLatin1String("fixedPoint") && !fixedPoint) {
            const qsizetype index = RotationInfo::fixedPointNames().indexOf(reader.value());
            if (index < 0) {
                return std::nullopt;
            }
            fixedPoint = RotationInfo::fixedPointNames().at(index);
        } else {
            return std::nullopt;
        }
    }
    if (!reader.atEnd() || !angle || !fixedPoint) {
        return std::nullopt;
    }
    RotationInfo rotation;
    rotation.setAngle(*angle);
    rotation.setFixedPoint(*fixedPoint);
    return rotation;
}

std::optional<QVector<QPair<double, QColor>>> readGradientStops(QStringView text)
{
    QVector<QPair<double, QColor>> stops;
    while (true) {
        const qsizetype comma = text.indexOf(u',');
        const QStringView stop = comma < 0 ? text : text.first(comma);
        const qsizetype blank = stop.indexOf(u' ');
        if (blank < 0) {
            return std::nullopt;
        }
        const std::optional<double> position = readReal(stop.first(blank));
        const std::optional<QColor> color = readColor(stop.sliced(blank + 1));
        if (!position || !color) {
            return std::nullopt;
        }
        stops.append({*position, *color});
        if (comma < 0) {
            return stops;
        }
        text = text.sliced(comma + 1);
        if (!text.startsWith(u' ')) {
            return std::nullopt;
        }
        text = text.sliced(1);
    }
}

std::optional<QMap<QString, QString>> readGroup(QStringView text)
{
    QMap<QString, QString> properties;
    GroupReader reader(text);
    while (reader.next()) {
        const QString key = reader.key().toString();
        if (properties.contains(key)) {
            return std::nullopt;
        }
        properties.insert(key, reader.value().toString());
    }
    return reader.atEnd() ? std::optional(properties) : std::nullopt;
}
} // namespace

int ValueConversion::toInt(const QString& text, bool* ok)
{
    return unwrap(readInteger(text), ok);
}

double ValueConversion::toReal(const QString& text, bool* ok)
{
    return unwrap(readReal(text), ok);
}

bool ValueConversion::toBool(const QString& text, bool* ok)
{
    return unwrap(readBool(text), ok);
}

QSizeF ValueConversion::toSize(const QString& text, bool* ok)
{
    const RealPair pair = unwrap(readRealPair(text), ok);
    return {pair.first, pair.second};
}

QPointF ValueConversion::toPoint(const QString& text, bool* ok)
{
    const RealPair pair = unwrap(readRealPair(text), ok);
    return {pair.first, pair.second};
}

QPolygonF ValueConversion::toPolygon(const QString& text, bool* ok)
{
    return unwrap(readPolygon(text), ok);
}

QColor ValueConversion::toColor(const QString& text, bool* ok)
{
    return unwrap(readColor(text), ok);
}

BorderInfo ValueConversion::toBorderInfo(const QString& text, bool* ok)
{
    return unwrap(readBorder(text), ok);
}

RotationInfo ValueConversion::toRotationInfo(const QString& text, bool* ok)
{
    return unwrap(readRotation(text), ok);
}

ObjectLinkInfo ValueConversion::toLinkInfo(const QString& text, bool* ok)
{
    const ObjectLinkInfo link(text);
    return unwrap(link.isValid() ? std::optional(link) : std::nullopt, ok);
}

QVector<QPair<double, QColor>> ValueConversion::toGradientStops(const QString& text, bool* ok)
{
    return unwrap(readGradientStops(text), ok);
}

QMap<QString, QString> ValueConversion::toGroupProperties(const QString& text, bool* ok)
{
    return unwrap(readGroup(text), ok);
}

QString ValueConversion::toString(int value)
{
    return QString::number(value);
}

QString ValueConversion::toString(double value)
{
    QString text;
    appendReal(text, value);
    return text;
}

QString ValueConversion::toString(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString ValueConversion::toString(const QColor& color)
{
    if (!color.isValid()) {
        return QString();
    }
    return color.name(color.alpha() == 255 ? QColor::HexRgb : QColor::HexArgb);
}

QString ValueConversion::toString(const QPointF& point)
{
    QString text;
    appendRealPair(text, point.x(), point.y());
    return text;
}

QString ValueConversion::toString(const QSizeF& size)
{
    QString text;
    appendRealPair(text, size.width(), size.height());
    return text;
}

QString ValueConversion::toString(const QPolygonF& polygon)
{
    QString text;
    text.reserve(polygon.size() * 16);
    for (const QPointF& point : polygon) {
        if (!text.isEmpty()) {
            text.append(u' ');
        }
        appendRealPair(text, point.x(), point.y());
    }
    return text;
}

QString ValueConversion::toString(const QVector<QPair<double, QColor>>& stops)
{
    QString text;
    for (const auto& [position, color] : stops) {
        if (!text.isEmpty()) {
            text.append(QLatin1String(", "));
        }
        appendReal(text, position);
        text.append(u' ');
        text.append(toString(color));
    }
    return text;
}

QString ValueConversion::toString(const BorderInfo& border)
{
    QString text;
    appendPair(text, u"width", toString(border.width()));
    appendPair(text, u"color", toString(border.color()));
    return text;
}

QString ValueConversion::toString(const RotationInfo& rotation)
{
    QString text;
    appendPair(text, u"angle", toString(rotation.angle()));
    appendPair(text, u"fixedPoint", rotation.fixedPoint());
    return text;
}

QString ValueConversion::toString(const ObjectLinkInfo& link)
{
    return link.objectId();
}

QString ValueConversion::groupToString(const QList<QPair<QString, QString>>& pairs)
{
    QString text;
    for (const auto& [key, value] : pairs) {
        appendPair(text, key, value);
    }
    return text;
}

QString ValueConversion::toQmlString(const double& value, const int& decimals)
{
    if (!std::isfinite(value)) {
        return QStringLiteral("0");
    }
    // No double has more than 1074 decimals, nor a need for that many.
    QString text = QString::number(value, 'f', std::clamp(decimals, 0, 1074));
    if (text.contains(u'.')) {
        qsizetype length = text.size();
        while (text.at(length - 1) == u'0') {
            --length;
        }
        if (text.at(length - 1) == u'.') {
            --length;
        }
        text.truncate(length);
    }
    return text == QLatin1String("-0") ? QStringLiteral("0") : text;
}
} // namespace Korvex::Meridane::Designer
