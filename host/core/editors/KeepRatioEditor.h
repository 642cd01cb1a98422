#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class LockToggle;

/**
 * The lock of an element's ratio, a button beside its size.
 *
 * Locking writes the present width / height of the element's outer size, unlocking writes 0. With several elements each
 * is locked to its own ratio; the lock shows closed when all of them are locked.
 */
class MERIDANE_CORE_EXPORT KeepRatioEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit KeepRatioEditor(QWidget* parent);
    ~KeepRatioEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;
    /// A \a value above 0 stands for the present ratio of the element that \a property belongs to.
    UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) override;

    [[nodiscard]] LockToggle* lockToggle() const { return m_toggle; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    LockToggle* m_toggle = nullptr;
};

} // namespace Korvex::Meridane::Designer
