#pragma once

#include "host/core/editors/StandardEditor.h"

class QLineEdit;

namespace Korvex::Meridane::Designer {

/// The editor of a line of text, and of every value that has no editor of its own. The text is taken over on Enter and
/// when the focus leaves. Editor parameter: "tooltip".
class MERIDANE_CORE_EXPORT StringEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit StringEditor(QWidget* parent);
    ~StringEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;

    [[nodiscard]] QLineEdit* textField() const { return m_field; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;
    /// Why \a text cannot be a value, for the user; empty when it can.
    [[nodiscard]] virtual QString problemOf(const QString& text) const;

private:
    void onEditingFinished();

    QLineEdit* m_field = nullptr;
};

} // namespace Korvex::Meridane::Designer
