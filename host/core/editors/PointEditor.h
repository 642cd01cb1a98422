#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class SpinBox;

/**
 * The editor of a point: two numbers, x and y.
 *
 * Editor parameters: "minimumValue" and "maximumValue" (QPointF, -99999 and 99999 in both directions unless given),
 * "decimals" (2), "suffix" (none), "tooltip".
 */
class MERIDANE_CORE_EXPORT PointEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit PointEditor(QWidget* parent);
    ~PointEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;
    UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) override;

    [[nodiscard]] SpinBox* xField() const { return m_x; }
    [[nodiscard]] SpinBox* yField() const { return m_y; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    [[nodiscard]] SpinBox* createField(const QString& component, const QString& label, double minimum, double maximum);

    SpinBox* m_x = nullptr;
    SpinBox* m_y = nullptr;
};

} // namespace Korvex::Meridane::Designer
