#pragma once

#include "host/core/CoreExport.h"

#include <QString>

class QWidget;

namespace Korvex::Meridane::Designer {

class DesignerProperty;
class PropertyEditor;

/**
 * Which editor shows a property: the one that the property names, else the default of its type.
 *
 * The defaults are an ordered list of property class names; the first that is among the classNames() of the property
 * decides, so that a type derived from a known one is edited like it. A new type needs no entry: it names its editor
 * itself with DesignerProperty::setEditor().
 */
class MERIDANE_CORE_EXPORT EditorMatcher
{
public:
    EditorMatcher() = delete;

    /// The default editor class for the type of \a property; never empty, since every value has a text.
    [[nodiscard]] static QString defaultEditorClass(const DesignerProperty& property);
    /// The editor class for \a property.
    [[nodiscard]] static QString editorClass(const DesignerProperty& property);
    /// Makes an editor of that class, or of the type's default where nothing serves the class (a plug-in is missing).
    /// \a parent owns it.
    [[nodiscard]] static PropertyEditor* createEditor(const DesignerProperty& property, QWidget* parent);
};

} // namespace Korvex::Meridane::Designer
