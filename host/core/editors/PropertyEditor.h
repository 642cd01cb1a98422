#pragma once

#include "host/core/objects/IDesignerObject.h"

#include <QSharedPointer>
#include <QWidget>

namespace Korvex::Meridane::Designer {

class DesignerProperty;
class UndoCommand;

/**
 * An editor of the property sheet: shows one property in a widget and saves what the user does there.
 *
 * Life: construct, setProperty(), setPropertyChange(), initialize() (which builds the widget and loads the value). The
 * widget announces "userModified()"; that is connected to save() or, in property-change mode, to saveChange(). Editors
 * never push commands of their own accord: save() hands the command of createUpdateCommand() to the project. Requests
 * to save that arrive while a value is being loaded are ignored.
 *
 * In property-change mode the editor edits a pending value string instead of the property; the sheet uses it when
 * several elements are selected and computes each element's own value.
 */
class MERIDANE_CORE_EXPORT PropertyEditor : public QWidget, public IDesignerObject
{
    Q_OBJECT

public:
    ~PropertyEditor() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    /// Builds the widget, applies the "tooltip" parameter and loads the value; false when there is no property or the
    /// widget cannot be built.
    bool initialize() override;

    using QObject::property;
    [[nodiscard]] const QSharedPointer<DesignerProperty>& property() const { return m_property; }
    void setProperty(const QSharedPointer<DesignerProperty>& property);
    [[nodiscard]] bool isPropertyChange() const { return m_propertyChange; }
    void setPropertyChange(bool propertyChange) { m_propertyChange = propertyChange; }
    /// The pending value string of property-change mode.
    [[nodiscard]] QString changedPropertyValue() const { return m_changedValue; }
    void setChangedPropertyValue(const QString& value) { m_changedValue = value; }
    [[nodiscard]] QWidget* editorWidget() const { return m_editorWidget; }

    /// Shows the property's value (or the pending one) without saving anything.
    void load();
    [[nodiscard]] bool isLoading() const { return m_loading; }

    /// Which part of the value the last edit touched ("width", "x", "angle", ...); empty for the whole value. The sheet
    /// applies an edit of several elements to that part alone. See ValueComponents.
    [[nodiscard]] QString editedComponent() const { return m_editedComponent; }
    /// The relative operation of the last edit ("+=10"), empty for a plain value.
    [[nodiscard]] QString editedOperation() const { return m_editedOperation; }

public Q_SLOTS:
    // The order of the virtual operations is part of the plug-in contract.
    /// Saves the widget's value as one undo step "Change <label>" if it differs from the property's.
    virtual void save();
    /// Takes the widget's value over as the pending value and announces it with changeSaved().
    virtual void saveChange();

public:
    /// Builds the widget from the property's editor parameters and installs it with setEditorWidget().
    virtual bool createEditorWidget() = 0;
    /// The widget's value as a value string.
    [[nodiscard]] virtual QString editorValue() const = 0;
    /// Shows changedPropertyValue() in property-change mode, else the property's value string.
    virtual bool loadEditorValue() = 0;
    /// The command that sets \a property to \a value, a child of \a parent when one is given. An editor whose edits
    /// change more than the value overrides this.
    virtual UndoCommand* createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                             UndoCommand* parent);

Q_SIGNALS:
    /// Property-change mode: the pending value changed by an edit.
    void changeSaved();
    /// The value was refused for the reason given; the typed text stays in the editor.
    void refused(const QString& message);
    /// The value was taken.
    void accepted();

protected:
    explicit PropertyEditor(QWidget* parent);

    void setEditorWidget(QWidget* widget);
    /// Connects a widget's userModified() signal to save() or saveChange(), as the mode asks.
    template <typename Sender, typename Signal>
    void saveOn(Sender* sender, Signal signal)
    {
        if (isPropertyChange())
            connect(sender, signal, this, &PropertyEditor::saveChange);
        else
            connect(sender, signal, this, &PropertyEditor::save);
    }
    /// What the value to show is: the pending one in property-change mode, else the property's.
    [[nodiscard]] QString valueToLoad() const;
    /// Says which component and operation the edit that follows has; reset after each save.
    void setEdited(const QString& component, const QString& operation = {});
    /// Edits with the same key that follow each other become one undo step (typing, stepping, a slider drag); empty
    /// (the default) keeps each its own.
    void setMergeKey(const QString& key) { m_mergeKey = key; }

private:
    QSharedPointer<DesignerProperty> m_property;
    QWidget* m_editorWidget = nullptr;
    QString m_changedValue;
    QString m_editedComponent;
    QString m_editedOperation;
    QString m_mergeKey;
    bool m_propertyChange = false;
    bool m_loading = false;
};

} // namespace Korvex::Meridane::Designer
