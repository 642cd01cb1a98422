#include "host/core/editors/RealEditor.h"

namespace Korvex::Meridane::Designer {

RealEditor::RealEditor(QWidget* parent)
    : NumberEditor(false, parent)
{}

RealEditor::~RealEditor() = default;

QString RealEditor::className() const
{
    return QStringLiteral("RealEditor");
}

} // namespace Korvex::Meridane::Designer
