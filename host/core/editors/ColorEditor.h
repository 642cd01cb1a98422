#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class ColorWidget;

/// The editor of a colour, with transparency. Editor parameter: "tooltip".
class MERIDANE_CORE_EXPORT ColorEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit ColorEditor(QWidget* parent);
    ~ColorEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;

    [[nodiscard]] ColorWidget* colorWidget() const { return m_widget; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    ColorWidget* m_widget = nullptr;
};

} // namespace Korvex::Meridane::Designer
