#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class NineGrid;
class NumberWidget;

/**
 * The editor of a rotation: the angle in degrees, clockwise, and the fixed point.
 *
 * The slider goes from 0 to 360; any other angle can be typed. Editor parameter: "tooltip".
 */
class MERIDANE_CORE_EXPORT RotationEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit RotationEditor(QWidget* parent);
    ~RotationEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;
    UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) override;

    [[nodiscard]] NumberWidget* angleWidget() const { return m_angle; }
    [[nodiscard]] NineGrid* fixedPointGrid() const { return m_grid; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    NumberWidget* m_angle = nullptr;
    NineGrid* m_grid = nullptr;
};

} // namespace Korvex::Meridane::Designer
