#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class FontWidget;

/// The editor of a font: family, size, weight, style and spacing. With several elements an edit of one attribute leaves
/// the others of each as they are. Editor parameter: "tooltip".
class MERIDANE_CORE_EXPORT FontEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit FontEditor(QWidget* parent);
    ~FontEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;

    [[nodiscard]] FontWidget* fontWidget() const { return m_widget; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    FontWidget* m_widget = nullptr;
};

} // namespace Korvex::Meridane::Designer
