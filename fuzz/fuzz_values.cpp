// Every parser of a value string takes any text; what it takes, its writer writes, and that reads back as the same text.

#include "host/core/values/ValueConversion.h"

#include <QString>

using namespace Korvex::Meridane::Designer;

namespace {

template <typename Value>
void roundTrip(const QString& text, Value (*parse)(const QString& text, bool* ok))
{
    bool ok = false;
    const Value value = parse(text, &ok);
    if (!ok)
        return;
    const QString written = ValueConversion::toString(value);
    const Value again = parse(written, &ok);
    if (!ok)
        qFatal("\"%s\" is written as \"%s\", which is refused", qUtf8Printable(text), qUtf8Printable(written));
    if (ValueConversion::toString(again) != written)
        qFatal("\"%s\" is not stable", qUtf8Printable(written));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), qsizetype(size));
    roundTrip(text, ValueConversion::toInt);
    roundTrip(text, ValueConversion::toReal);
    roundTrip(text, ValueConversion::toBool);
    roundTrip(text, ValueConversion::toSize);
    roundTrip(text, ValueConversion::toPoint);
    roundTrip(text, ValueConversion::toPolygon);
    roundTrip(text, ValueConversion::toColor);
    roundTrip(text, ValueConversion::toFont);
    roundTrip(text, ValueConversion::toBorderInfo);
    roundTrip(text, ValueConversion::toRotationInfo);
    roundTrip(text, ValueConversion::toLinkInfo);
    roundTrip(text, ValueConversion::toGradientStops);

    bool ok = false;
    const QMap<QString, QString> group = ValueConversion::toGroupProperties(text, &ok);
    if (ok) {
        QList<QPair<QString, QString>> pairs;
        for (auto pair = group.cbegin(); pair != group.cend(); ++pair)
            pairs.append({pair.key(), pair.value()});
        if (ValueConversion::toGroupProperties(ValueConversion::groupToString(pairs), &ok) != group || !ok)
            qFatal("the group \"%s\" does not read back", qUtf8Printable(text));
    }
    return 0;
}
