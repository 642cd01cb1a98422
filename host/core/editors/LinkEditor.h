#pragma once

#include "host/core/editors/StandardEditor.h"

namespace Korvex::Meridane::Designer {

class ComboBox;
class Project;

/**
 * The editor of a link: a list of the objects that may be linked, and "(none)". A target that does not exist stays in
 * the list as long as it is the value.
 *
 * Editor parameters: "scopeType" and "filterType" (a text or a list of texts), those of the property's link unless given;
 * "tooltip".
 */
class MERIDANE_CORE_EXPORT LinkEditor : public StandardEditor
{
    Q_OBJECT

public:
    explicit LinkEditor(QWidget* parent);
    ~LinkEditor() override;

    [[nodiscard]] QString className() const override;
    bool createEditorWidget() override;

    [[nodiscard]] ComboBox* comboBox() const { return m_box; }
    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    bool showValue(const QString& value) override;
    [[nodiscard]] QString widgetValue() const override;

    /// The ids that the list offers, in its order.
    [[nodiscard]] virtual QStringList candidates() const;
    /// Runs when the list was filled anew.
    virtual void choicesReplaced();

    [[nodiscard]] Project* project() const;
    [[nodiscard]] QString scopeType() const;
    [[nodiscard]] QStringList filterTypes() const;
    /// Brings the list up to date and makes \a value current.
    void fillChoices(const QString& value);

private:
    ComboBox* m_box = nullptr;
    QStringList m_choices;
};

} // namespace Korvex::Meridane::Designer
