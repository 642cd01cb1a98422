#include "host/common/EnumHelper.h"

#include "host/common/LocalizationHelper.h"
#include "host/common/TransformOrigin.h"

#include <array>

namespace Korvex::Meridane::Common {
namespace {
/** What the user reads for a key. Keys are the same in all enumerations that hold them. */
struct ShownText
{
    const char* key;
    const char* text;
};

constexpr std::array ShownTexts = {
    ShownText{"TopLeft", QT_TRANSLATE_NOOP("Core", "Top Left")},
    ShownText{"Top", QT_TRANSLATE_NOOP("Core", "Top")},
    ShownText{"TopRight", QT_TRANSLATE_NOOP("Core", "Top Right")},
    ShownText{"Left", QT_TRANSLATE_NOOP("Core", "Left")},
    ShownText{"Center", QT_TRANSLATE_NOOP("Core", "Center")},
    ShownText{"Right", QT_TRANSLATE_NOOP("Core", "Right")},
    ShownText{"BottomLeft", QT_TRANSLATE_NOOP("Core", "Bottom Left")},
    ShownText{"Bottom", QT_TRANSLATE_NOOP("Core", "Bottom")},
    ShownText{"BottomRight", QT_TRANSLATE_NOOP("Core", "Bottom Right")},
    ShownText{"Standard", QT_TRANSLATE_NOOP("Core", "Standard")},
    ShownText{"Outline", QT_TRANSLATE_NOOP("Core", "Outline")},
    ShownText{"Raised", QT_TRANSLATE_NOOP("Core", "Raised")},
    ShownText{"Sunken", QT_TRANSLATE_NOOP("Core", "Sunken")},
    ShownText{"PadSpread", QT_TRANSLATE_NOOP("Core", "Pad")},
    ShownText{"ReflectSpread", QT_TRANSLATE_NOOP("Core", "Reflect")},
    ShownText{"RepeatSpread", QT_TRANSLATE_NOOP("Core", "Repeat")},
    ShownText{"Boolean", QT_TRANSLATE_NOOP("Core", "Boolean")},
    ShownText{"Integer", QT_TRANSLATE_NOOP("Core", "Integer")},
    ShownText{"Real", QT_TRANSLATE_NOOP("Core", "Real")},
    ShownText{"String", QT_TRANSLATE_NOOP("Core", "String")},
    ShownText{"Color", QT_TRANSLATE_NOOP("Core", "Color")},
    ShownText{"List", QT_TRANSLATE_NOOP("Core", "List")},
};

QString shownText(const char* key)
{
    for (const ShownText& entry : ShownTexts) {
        if (qstrcmp(entry.key, key) == 0) {
            return LocalizationHelper::coreString(QString::fromLatin1(entry.text));
        }
    }
    return QString::fromLatin1(key);
}
} // namespace

QMetaEnum EnumHelper::createEnum(const QString& name)
{
    if (name == QLatin1String("TransformOrigin")) {
        return QMetaEnum::fromType<TransformOrigin>();
    }
    const int index = staticMetaObject.indexOfEnumerator(name.toUtf8().constData());
    return index < 0 ? QMetaEnum() : staticMetaObject.enumerator(index);
}

QMap<QString, QString> EnumHelper::getEnumNames(const char* name)
{
    QMap<QString, QString> names;
    const QMetaEnum found = createEnum(QString::fromUtf8(name));
    for (int i = 0; found.isValid() && i < found.keyCount(); ++i) {
        names.insert(QString::fromLatin1(found.key(i)), shownText(found.key(i)));
    }
    return names;
}
} // namespace Korvex::Meridane::Common
