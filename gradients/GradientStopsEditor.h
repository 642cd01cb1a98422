#pragma once

#include "host/core/editors/StandardEditor.h"

#include "gradients/GradientStopsWidget.h"

namespace Korvex::Meridane::Designer {

class GradientStopWidget;

/**
 * The editor of the stops of a gradient. Each edit is one step of the host's; a drag in a colour's popup and steps of one
 * position that follow each other are one together.
 *
 * A list that the widget cannot show (fewer than 2 or more than 101 stops, a stop beyond 0 to 100 %, or several elements
 * with different ones) is never overwritten: a line says why there is nothing to edit.
 */
class GradientStopsEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit GradientStopsEditor(QWidget* parent);
    ~GradientStopsEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;
    void propertyReplaced() override;

    /// Null before createEditorWidget().
    [[nodiscard]] GradientStopsWidget* gradientStopsWidget() const { return m_widget; }

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

private:
    void joinStepsOf(GradientStopWidget* row);
    void prepareEdit(GradientStopsWidget::Edit edit);
    void rememberBase();

    GradientStopsWidget* m_widget = nullptr;
    QString m_base; // the value of property() that the widget was loaded or saved with
};

} // namespace Korvex::Meridane::Designer
