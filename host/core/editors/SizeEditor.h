#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class SizeWidget;

/**
 * The editor of a size in pixels: width and height.
 *
 * Where the element keeps a ratio, the dimension that the user did not edit follows the other one; with several elements
 * each by its own ratio. Editor parameters: "minimumValue" and "maximumValue" (QSizeF), "decimals" (2), "suffix"
 * (" px"), "tooltip".
 */
class MERIDANE_CORE_EXPORT SizeEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit SizeEditor(QWidget* parent);
    ~SizeEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;
    UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                     UndoCommand* parent) override;

    [[nodiscard]] SizeWidget* sizeWidget() const { return m_widget; }

protected:
    /// The editor's widget, whose size fields are \a sizeWidget; just these unless overridden.
    [[nodiscard]] virtual QWidget* createWidgets(SizeWidget** sizeWidget);
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    SizeWidget* m_widget = nullptr;
};

} // namespace Korvex::Meridane::Designer
