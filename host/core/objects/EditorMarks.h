#pragma once

#include "host/core/CoreExport.h"

#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerObject;

/**
 * What the designer keeps about an object for the canvas alone: no property, never exported, saved in the "editor"
 * section of the object's entry, changed by ChangeEditorMark as one undo step.
 *
 * A mark is a value string; an empty one is not set. Which marks an object has is declared by its class
 * (DesignerObject::declareEditorMark()).
 */
class MERIDANE_CORE_EXPORT EditorMarks
{
public:
    EditorMarks() = delete;

    /// "true" on elements that the canvas neither selects nor moves.
    [[nodiscard]] static QString locked();
    /// "true" on elements that the canvas does not show. Exports, renderings and displays show them.
    [[nodiscard]] static QString hidden();
    /// The guides of a screen; see Guides for the form.
    [[nodiscard]] static QString guides();

    /// The value of a mark that is either set or not.
    [[nodiscard]] static QString setValue() { return QStringLiteral("true"); }

    /// Whether \a object or anything that it stands in is locked.
    [[nodiscard]] static bool isLocked(const DesignerObject* object);
    /// Whether \a object or anything that it stands in is hidden.
    [[nodiscard]] static bool isHidden(const DesignerObject* object);
};

} // namespace Korvex::Meridane::Designer
