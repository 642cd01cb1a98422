#include "host/core/sheet/EditorMatcher.h"

#include "host/core/editors/PropertyEditor.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/DesignerProperty.h"

#include <array>

namespace Korvex::Meridane::Designer {

namespace {

struct Match
{
    const char* propertyClass;
    const char* editorClass;
};

/// Derived types stand before their bases; the root class ends the list.
constexpr std::array Matches{
    Match{"IntegerProperty", "IntegerEditor"},
    Match{"RealProperty", "RealEditor"},
    Match{"SizeProperty", "SizeEditor"},
    Match{"PointProperty", "PointEditor"},
    Match{"PointListProperty", "PointListTextEditor"},
    Match{"ColorProperty", "ColorEditor"},
    Match{"BorderProperty", "BorderEditor"},
    Match{"RotationProperty", "RotationEditor"},
    Match{"FontProperty", "FontEditor"},
    Match{"EnumProperty", "EnumEditor"},
    Match{"LinkProperty", "LinkEditor"},
    Match{"DesignerProperty", "StringEditor"},
};

} // namespace

QString EditorMatcher::defaultEditorClass(const DesignerProperty& property)
{
    const QStringList classes = property.classNames();
    for (const Match& match : Matches) {
        if (classes.contains(QLatin1String(match.propertyClass)))
            return QString::fromLatin1(match.editorClass);
    }
    return QString::fromLatin1(Matches.back().editorClass);
}

QString EditorMatcher::editorClass(const DesignerProperty& property)
{
    return property.editor().isEmpty() ? defaultEditorClass(property) : property.editor();
}

PropertyEditor* EditorMatcher::createEditor(const DesignerProperty& property, QWidget* parent)
{
    auto* factory = DesignerFactory::instance();
    if (PropertyEditor* editor = factory->createPropertyEditor(editorClass(property), parent))
        return editor;
    return factory->createPropertyEditor(defaultEditorClass(property), parent);
}

} // namespace Korvex::Meridane::Designer
