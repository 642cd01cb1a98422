#include "host/core/sheet/SheetSections.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/EditorMatcher.h"

#include "host/common/LocalizationHelper.h"

#include <algorithm>
#include <array>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

constexpr const char* General = "general";
constexpr const char* Geometry = "geometry";
constexpr const char* Appearance = "appearance";
constexpr const char* Text = "text";
constexpr const char* Image = "image";
constexpr const char* Points = "points";
constexpr const char* Gradient = "gradient";
constexpr const char* Own = "own";

/// A rule fits when what it names is so of a property; it names one thing.
struct Rule
{
    enum class Fits
    {
        Id,
        Editor,
        Type
    };
    Fits what;
    const char* name;
    const char* section;
};

using enum Rule::Fits;

/// What a property is called says more than its editor, and that more than its type.
constexpr std::array Rules{
    Rule{Id, "name", General},
    Rule{Id, "position", Geometry},
    Rule{Id, "length", Geometry},
    Rule{Id, "angle", Geometry},
    Rule{Id, "edges", Geometry},
    Rule{Id, "edgeLength", Geometry},
    Rule{Id, "cornerRadius", Appearance},
    Rule{Id, "width", Appearance},
    Rule{Id, "text", Text},
    Rule{Id, "alignment", Text},
    Rule{Id, "textStyle", Text},
    Rule{Id, "gradientStops", Gradient},
    Rule{Id, "start", Gradient},
    Rule{Id, "finalStop", Gradient},
    Rule{Id, "center", Gradient},
    Rule{Id, "radius", Gradient},
    Rule{Id, "focalPoint", Gradient},
    Rule{Id, "spread", Gradient},
    Rule{Id, "startAngle", Gradient},
    Rule{Editor, "KeepRatioEditor", Geometry},
    Rule{Editor, "ImageSourceEditor", Image},
    Rule{Type, "RotationProperty", Geometry},
    Rule{Type, "SizeProperty", Geometry},
    Rule{Type, "FontProperty", Text},
    Rule{Type, "PointListProperty", Points},
    Rule{Type, "ColorProperty", Appearance},
    Rule{Type, "BorderProperty", Appearance},
};

bool fits(const Rule& rule, const DesignerProperty& property, const QString& editorClass, const QStringList& types)
{
    const QLatin1String name(rule.name);
    switch (rule.what) {
    case Id:
        return property.id() == name;
    case Editor:
        return editorClass == name;
    case Type:
        return types.contains(name);
    }
    return false;
}

bool hasType(const DesignerObject& object, const char* type)
{
    const auto& all = object.properties();
    return std::any_of(all.begin(), all.end(),
                       [type](const auto& each) { return each->classNames().contains(QLatin1String(type)); });
}

/// The color of an object that has a font and nothing to fill, such as a frame with a border, is that of its letters.
bool isTextColor(const DesignerProperty& property)
{
    const DesignerObject* object = property.parentObject();
    return object && property.className() == QLatin1String("ColorProperty") && hasType(*object, "FontProperty")
           && !hasType(*object, "BorderProperty");
}

} // namespace

QString SheetSections::keyOf(const DesignerProperty& property)
{
    if (isTextColor(property))
        return QString::fromLatin1(Text);
    const QString editorClass = EditorMatcher::editorClass(property);
    const QStringList types = property.classNames();
    for (const Rule& rule : Rules) {
        if (fits(rule, property, editorClass, types))
            return QString::fromLatin1(rule.section);
    }
    return QString::fromLatin1(Own);
}

QString SheetSections::title(const QString& key, const DesignerObject& object, bool sameType)
{
    if (key == QLatin1String(General))
        return LocalizationHelper::coreString(QStringLiteral("General"));
    if (key == QLatin1String(Geometry))
        return LocalizationHelper::coreString(QStringLiteral("Geometry"));
    if (key == QLatin1String(Appearance))
        return LocalizationHelper::coreString(QStringLiteral("Appearance"));
    if (key == QLatin1String(Text))
        return LocalizationHelper::coreString(QStringLiteral("Text"));
    if (key == QLatin1String(Image))
        return LocalizationHelper::coreString(QStringLiteral("Image"));
    if (key == QLatin1String(Points))
        return LocalizationHelper::coreString(QStringLiteral("Points"));
    if (key == QLatin1String(Gradient))
        return LocalizationHelper::coreString(QStringLiteral("Gradient"));
    return sameType ? object.displayName() : LocalizationHelper::coreString(QStringLiteral("Other"));
}

} // namespace Korvex::Meridane::Designer
