#pragma once

#include "host/core/editors/StringEditor.h"

namespace Korvex::Meridane::Designer {

/// The editor of a list of points that has no editor of its own: the points as text, "x,y x,y x,y". Text that is no
/// list of points is refused.
class MERIDANE_CORE_EXPORT PointListTextEditor : public StringEditor
{
    Q_OBJECT

public:
    explicit PointListTextEditor(QWidget* parent);
    ~PointListTextEditor() override;

    [[nodiscard]] QString className() const override;

protected:
    [[nodiscard]] QString problemOf(const QString& text) const override;
};

} // namespace Korvex::Meridane::Designer
