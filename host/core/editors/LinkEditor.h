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
    /// Whether \a id is among them; quicker than candidates().
    [[nodiscard]] virtual bool isCandidate(const QString& id) const;
    /// Runs when the list was filled anew.
    virtual void choicesReplaced();

    [[nodiscard]] Project* project() const;
    [[nodiscard]] QString scopeType() const;
    [[nodiscard]] QStringList filterTypes() const;
    /// Brings the list up to date and makes \a value current. A project may have very many objects, so that this is
    /// done when the user turns to the list; until then it holds little more than the value.
    void fillChoices(const QString& value);

private:
    void setChoices(const QStringList& choices);
    void showChoice(const QString& value);
    [[nodiscard]] QString choiceText(const QString& id) const;

    ComboBox* m_box = nullptr;
    QStringList m_choices;
};

} // namespace Korvex::Meridane::Designer
