#pragma once

#include "host/core/editors/NumberEditor.h"

namespace Korvex::Meridane::Designer {

/// The editor of a whole number. Its parameters are those of NumberEditor.
class MERIDANE_CORE_EXPORT IntegerEditor : public NumberEditor
{
    Q_OBJECT

public:
    explicit IntegerEditor(QWidget* parent);
    ~IntegerEditor() override;

    [[nodiscard]] QString className() const override;
};

} // namespace Korvex::Meridane::Designer
