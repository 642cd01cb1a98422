#pragma once

#include "host/core/CoreExport.h"

#include <QStringList>

class QWidget;

namespace Korvex::Meridane::Designer {

class PropertyEditor;

/// The class names of the host's own property editors.
[[nodiscard]] MERIDANE_CORE_EXPORT QStringList standardEditorClassNames();
/// A new editor of that class, owned by \a parent; null for any other name.
[[nodiscard]] MERIDANE_CORE_EXPORT PropertyEditor* createStandardEditor(const QString& className, QWidget* parent);

} // namespace Korvex::Meridane::Designer
