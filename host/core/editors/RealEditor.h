#pragma once

#include "host/core/editors/NumberEditor.h"

namespace Korvex::Meridane::Designer {

/// The editor of a real number. Its parameters are those of NumberEditor.
class MERIDANE_CORE_EXPORT RealEditor : public NumberEditor
{
    Q_OBJECT

public:
    explicit RealEditor(QWidget* parent);
    ~RealEditor() override;

    [[nodiscard]] QString className() const override;
};

} // namespace Korvex::Meridane::Designer
