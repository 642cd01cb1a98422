#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class NumberWidget;

/**
 * Base of the editors of one number.
 *
 * Editor parameters: "minimum" and "maximum" (limits of what the user can enter; a value outside is shown as it is),
 * "decimals" (real numbers, 2 unless given), "singleStep" (1), "suffix" (none), "showSlider" (false), "tooltip".
 */
class MERIDANE_CORE_EXPORT NumberEditor : public StandardEditor
{
    Q_OBJECT

public:
    ~NumberEditor() override;

    [[nodiscard]] QStringList classNames() const override;
    bool createEditorWidget() override;
    /// Keeps to the editor's limits and decimals, also where a relative edit led beyond them.
    UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) override;

    [[nodiscard]] NumberWidget* numberWidget() const { return m_widget; }

protected:
    NumberEditor(bool wholeNumbers, QWidget* parent);

    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    [[nodiscard]] QString text(double number) const;

    NumberWidget* m_widget = nullptr;
    bool m_wholeNumbers;
};

} // namespace Korvex::Meridane::Designer
