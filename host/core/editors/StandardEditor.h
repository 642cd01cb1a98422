#pragma once

#include "host/core/editors/PropertyEditor.h"

namespace Korvex::Meridane::Designer {

class ColorWidget;
class EditRun;
class NumberWidget;
class SpinBox;
struct NumberOperation;

/**
 * Base of the host's editors: keeps what was loaded apart from what the user edited.
 *
 * A widget shows less than a value string holds: a rounded number, nothing at all of a text that does not convert. So
 * editorValue() gives back exactly the loaded string until the user edits, and then changes only the components that
 * were edited (see ValueComponents). Loading and saving are thereby inverse for every value string.
 */
class MERIDANE_CORE_EXPORT StandardEditor : public PropertyEditor
{
    Q_OBJECT

public:
    ~StandardEditor() override;

    [[nodiscard]] QStringList classNames() const override;
    [[nodiscard]] QString editorValue() const final;
    bool loadEditorValue() final;
    [[nodiscard]] bool showsMixed() const override;

protected:
    explicit StandardEditor(QWidget* parent);

    /// Shows \a value; a component that isMixed() stays blank. False when \a value does not convert: the widget then
    /// shows no value.
    virtual bool showValue(const QString& value) = 0;
    /// What the widget shows, as a value string.
    [[nodiscard]] virtual QString widgetValue() const = 0;

    /// The user edited \a component (empty: the whole value), by \a operation ("+=10") or to a plain value: saves.
    void edit(const QString& component = {}, const QString& operation = {});
    /// Joins the steps of \a field, and the drags of its slider, into one undo step a run; what is done in a colour
    /// popup until it closes is a run as well, which Escape takes back whole. A text that a field cannot read is refused
    /// with its message.
    void joinSteps(SpinBox* field);
    void joinSteps(NumberWidget* field);
    void joinSteps(ColorWidget* field);
    /// Ends the run of steps: the edit that follows, such as that of a button, joins nothing before it.
    void endSteps();
    /// \a operation as edit() takes it: "+=10", or empty for a plain value.
    [[nodiscard]] static QString operationText(const NumberOperation& operation);
    /// The editor parameter of that name, or \a fallback when the property has none.
    [[nodiscard]] QVariant parameter(const char* name, const QVariant& fallback = {}) const;

private:
    void valueTaken();
    void beginColorRun();
    void takeColorRunBack();
    void endDrag();

    EditRun* m_run;
    QString m_loaded;
    QStringList m_touched;
    QStringList m_before; // property-change mode: the values of properties() before a run
};

} // namespace Korvex::Meridane::Designer
