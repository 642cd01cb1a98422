#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class ComboBox;

/**
 * The editor of one value of an enumeration: a list of its names.
 *
 * Editor parameters: "enumName" (as EnumHelper knows it; the enumeration of the property's own value unless given),
 * "tooltip".
 */
class MERIDANE_CORE_EXPORT EnumEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit EnumEditor(QWidget* parent);
    ~EnumEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;

    [[nodiscard]] ComboBox* comboBox() const { return m_box; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    ComboBox* m_box = nullptr;
};

} // namespace Korvex::Meridane::Designer
