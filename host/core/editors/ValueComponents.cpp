#include "host/core/editors/ValueComponents.h"

#include "host/core/values/ValueConversion.h"

#include <QMap>

#include <array>
#include <cmath>
#include <limits>
#include <optional>

namespace Korvex::Meridane::Designer {

namespace {

/// A component and the keys that hold it, of which a value has at most one (a font's size) or some (its weight).
struct Component
{
    const char* name;
    std::array<const char*, 2> keys; // the second may be null
};

/// A value taken apart into its keys. The numbers of a pair have their component's name as key.
using Parts = QMap<QString, QString>;

/// How the values of a property class are taken apart and put together again.
struct Layout
{
    const char* propertyClass;
    QList<Component> components;
    std::optional<Parts> (*split)(const QString& value);
    QString (*join)(const Parts& parts); // null when the parts make no value
};

QString key(const char* text)
{
    return QString::fromLatin1(text);
}

/// The text of \a value when it was read, else null: what join() gives back.
template <typename Value>
QString written(const Value& value, bool ok)
{
    return ok ? ValueConversion::toString(value) : QString();
}

QString groupText(const Parts& parts)
{
    QList<QPair<QString, QString>> pairs;
    for (auto part = parts.begin(); part != parts.end(); ++part)
        pairs.append({part.key(), part.value()});
    return ValueConversion::groupToString(pairs);
}

std::optional<Parts> splitGroup(const QString& value)
{
    bool ok = false;
    Parts parts = ValueConversion::toGroupProperties(value, &ok);
    return ok ? std::optional(std::move(parts)) : std::nullopt;
}

/// A reader that accepts the value guards every split, so that parts are always those of a good value.
template <auto Reader>
std::optional<Parts> splitRecord(const QString& value)
{
    bool ok = false;
    Reader(value, &ok);
    return ok ? splitGroup(value) : std::nullopt;
}

template <auto Reader>
QString joinRecord(const Parts& parts)
{
    bool ok = false;
    const auto value = Reader(groupText(parts), &ok);
    return written(value, ok);
}

std::optional<Parts> splitSize(const QString& value)
{
    bool ok = false;
    const QSizeF size = ValueConversion::toSize(value, &ok);
    if (!ok)
        return std::nullopt;
    return Parts{{key("width"), ValueConversion::toString(size.width())},
                 {key("height"), ValueConversion::toString(size.height())}};
}

QString joinSize(const Parts& parts)
{
    bool widthOk = false;
    bool heightOk = false;
    const QSizeF size(ValueConversion::toReal(parts.value(key("width")), &widthOk),
                      ValueConversion::toReal(parts.value(key("height")), &heightOk));
    return written(size, widthOk && heightOk);
}

std::optional<Parts> splitPoint(const QString& value)
{
    bool ok = false;
    const QPointF point = ValueConversion::toPoint(value, &ok);
    if (!ok)
        return std::nullopt;
    return Parts{{key("x"), ValueConversion::toString(point.x())}, {key("y"), ValueConversion::toString(point.y())}};
}

QString joinPoint(const Parts& parts)
{
    bool xOk = false;
    bool yOk = false;
    const QPointF point(ValueConversion::toReal(parts.value(key("x")), &xOk),
                        ValueConversion::toReal(parts.value(key("y")), &yOk));
    return written(point, xOk && yOk);
}

const QList<Layout>& layouts()
{
    static const QList<Layout> list{
        {"SizeProperty", {{"width", {"width"}}, {"height", {"height"}}}, splitSize, joinSize},
        {"PointProperty", {{"x", {"x"}}, {"y", {"y"}}}, splitPoint, joinPoint},
        {"BorderProperty",
         {{"width", {"width"}}, {"color", {"color"}}},
         splitRecord<&ValueConversion::toBorderInfo>,
         joinRecord<&ValueConversion::toBorderInfo>},
        {"RotationProperty",
         {{"angle", {"angle"}}, {"fixedPoint", {"fixedPoint"}}},
         splitRecord<&ValueConversion::toRotationInfo>,
         joinRecord<&ValueConversion::toRotationInfo>},
        {"FontProperty",
         {{"family", {"family"}},
          {"size", {"pointSize", "pixelSize"}},
          {"bold", {"bold", "weight"}},
          {"italic", {"italic"}},
          {"underline", {"underline"}},
          {"overline", {"overline"}},
          {"strikeOut", {"strikeOut"}},
          {"letterSpacing", {"letterSpacing"}},
          {"wordSpacing", {"wordSpacing"}}},
         splitRecord<&ValueConversion::toFont>,
         joinRecord<&ValueConversion::toFont>},
    };
    return list;
}

const Layout* layoutOf(const QString& propertyClass)
{
    for (const Layout& layout : layouts()) {
        if (propertyClass == QLatin1String(layout.propertyClass))
            return &layout;
    }
    return nullptr;
}

const Component* componentOf(const Layout& layout, const QString& name)
{
    for (const Component& component : layout.components) {
        if (name == QLatin1String(component.name))
            return &component;
    }
    return nullptr;
}

QStringList keysOf(const Component& component)
{
    QStringList keys;
    for (const char* text : component.keys) {
        if (text)
            keys.append(key(text));
    }
    return keys;
}

/// Whether the part called \a name takes whole numbers only, and the least it takes.
std::optional<int> leastWholeNumber(const QString& propertyClass, const QString& name)
{
    if (propertyClass == QLatin1String("BorderProperty") && name == QLatin1String("width"))
        return 0;
    if (name == QLatin1String("pixelSize"))
        return 1;
    return std::nullopt;
}

/// The text of the number called \a name; a font names no spacing of 0.
QString numberText(const Parts& parts, const QString& name)
{
    const bool isSpacing = name == QLatin1String("letterSpacing") || name == QLatin1String("wordSpacing");
    return parts.value(name, isSpacing ? QStringLiteral("0") : QString());
}

QString wholeNumber(double value, int least)
{
    const double rounded = std::round(value);
    if (rounded > std::numeric_limits<int>::max())
        return ValueConversion::toString(std::numeric_limits<int>::max());
    return ValueConversion::toString(rounded < least ? least : static_cast<int>(rounded));
}

} // namespace

QStringList ValueComponents::names(const QString& propertyClass)
{
    QStringList names;
    if (const Layout* layout = layoutOf(propertyClass)) {
        for (const Component& component : layout->components)
            names.append(key(component.name));
    }
    return names;
}

QString ValueComponents::withComponent(const QString& propertyClass, const QString& ownValue, const QString& component,
                                       const QString& editedValue)
{
    const Layout* layout = layoutOf(propertyClass);
    const Component* known = layout ? componentOf(*layout, component) : nullptr;
    if (!known)
        return editedValue;
    std::optional<Parts> own = layout->split(ownValue);
    const std::optional<Parts> edited = layout->split(editedValue);
    if (!own || !edited)
        return editedValue;
    for (const QString& part : keysOf(*known)) {
        own->remove(part);
        if (edited->contains(part))
            own->insert(part, edited->value(part));
    }
    const QString joined = layout->join(*own);
    return joined.isNull() ? editedValue : joined;
}

QString ValueComponents::withOperation(const QString& propertyClass, const QString& ownValue, const QString& component,
                                       const NumberOperation& operation)
{
    const Layout* layout = layoutOf(propertyClass);
    if (!layout) {
        bool ok = false;
        const double number = operation.applyTo(ValueConversion::toReal(ownValue, &ok));
        if (!ok)
            return ownValue;
        if (propertyClass == QLatin1String("IntegerProperty"))
            return wholeNumber(number, std::numeric_limits<int>::min());
        return ValueConversion::toString(number);
    }

    const Component* known = componentOf(*layout, component);
    std::optional<Parts> own = layout->split(ownValue);
    if (!known || !own)
        return ownValue;
    for (const QString& part : keysOf(*known)) {
        bool ok = false;
        const double number = operation.applyTo(ValueConversion::toReal(numberText(*own, part), &ok));
        if (!ok)
            continue;
        const std::optional<int> least = leastWholeNumber(propertyClass, part);
        own->insert(part, least ? wholeNumber(number, *least) : ValueConversion::toString(number));
        const QString joined = layout->join(*own);
        return joined.isNull() ? ownValue : joined;
    }
    return ownValue;
}

QStringList ValueComponents::changedComponents(const QString& propertyClass, const QString& before,
                                               const QString& after)
{
    if (before == after)
        return {};
    const Layout* layout = layoutOf(propertyClass);
    const std::optional<Parts> first = layout ? layout->split(before) : std::nullopt;
    const std::optional<Parts> second = layout ? layout->split(after) : std::nullopt;
    if (!first || !second)
        return {QString()};
    QStringList changed;
    for (const Component& component : layout->components) {
        for (const QString& part : keysOf(component)) {
            if (first->value(part) != second->value(part)) {
                changed.append(key(component.name));
                break;
            }
        }
    }
    return changed;
}

} // namespace Korvex::Meridane::Designer
