#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class ColorWidget;
class SpinBox;

/**
 * The editor of a border: its width in whole pixels and its colour.
 *
 * Editor parameters: "maximum" (the largest width, 999 unless given), "suffix" (" px"), "tooltip".
 */
class MERIDANE_CORE_EXPORT BorderEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit BorderEditor(QWidget* parent);
    ~BorderEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;
    UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) override;

    [[nodiscard]] SpinBox* widthField() const { return m_width; }
    [[nodiscard]] ColorWidget* colorWidget() const { return m_color; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    SpinBox* m_width = nullptr;
    ColorWidget* m_color = nullptr;
};

} // namespace Korvex::Meridane::Designer
