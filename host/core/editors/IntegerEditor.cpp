#include "host/core/editors/IntegerEditor.h"

namespace Korvex::Meridane::Designer {

IntegerEditor::IntegerEditor(QWidget* parent)
    : NumberEditor(true, parent)
{}

IntegerEditor::~IntegerEditor() = default;

QString IntegerEditor::className() const
{
    return QStringLiteral("IntegerEditor");
}

} // namespace Korvex::Meridane::Designer
