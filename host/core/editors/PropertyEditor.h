#pragma once

#include "host/core/objects/IDesignerObject.h"

#include <QList>
#include <QPointer>
#include <QSharedPointer>
#include <QStringList>
#include <QWidget>

namespace Korvex::Meridane::Designer {

class DesignerProperty;
class EditSession;
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
 *
 * The sheet hands an editor from object to object as the selection changes: an editor that needs other properties of
 * the object asks for them when it needs them, or in propertyReplaced().
 */
class MERIDANE_CORE_EXPORT PropertyEditor : public QWidget, public IDesignerObject
{
    Q_OBJECT

public:
    ~PropertyEditor() override;

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    /// Builds the widget unless that has been done, applies the "tooltip" parameter and loads the value; false when
    /// there is no property or the widget cannot be built.
    bool initialize() override;

    using QObject::property;
    [[nodiscard]] const QSharedPointer<DesignerProperty>& property() const { return m_property; }
    /// The property to edit, or null. The editor registers with it (DesignerProperty::setEditorWidget()) and leaves
    /// the one before. Shows nothing by itself: see load().
    void setProperty(const QSharedPointer<DesignerProperty>& property);
    /// The properties that an edit changes: property() alone or, in property-change mode, that of every selected element.
    [[nodiscard]] const QList<QSharedPointer<DesignerProperty>>& properties() const { return m_properties; }
    /// Sets several properties for property-change mode; the first is property().
    void setProperties(const QList<QSharedPointer<DesignerProperty>>& properties);
    [[nodiscard]] bool isPropertyChange() const { return m_propertyChange; }
    void setPropertyChange(bool propertyChange) { m_propertyChange = propertyChange; }
    /// The pending value string of property-change mode.
    [[nodiscard]] QString changedPropertyValue() const { return m_changedValue; }
    void setChangedPropertyValue(const QString& value) { m_changedValue = value; }
    [[nodiscard]] QWidget* editorWidget() const { return m_editorWidget; }

    /// The session whose objects are edited, or null; for editors that offer more than a value, such as an import.
    [[nodiscard]] EditSession* session() const;
    void setSession(EditSession* session);

    /// Property-change mode: the components of the value (see ValueComponents) in which the selected elements differ,
    /// the empty name for a value without components. Takes effect with the next load().
    [[nodiscard]] const QStringList& mixedComponents() const { return m_mixedComponents; }
    void setMixedComponents(const QStringList& components) { m_mixedComponents = components; }
    /// Whether the elements differ in \a component; they differ in every component when they differ as a whole.
    [[nodiscard]] bool isMixed(const QString& component = {}) const;

    /// Shows the property's value (or the pending one) without saving anything.
    void load();
    [[nodiscard]] bool isLoading() const { return m_loading; }
    /// True while save() or saveChange() is at work; the editor itself then brings its display up to date.
    [[nodiscard]] bool isSaving() const { return m_saving; }
    /// Whether the user is typing in the editor: a text field of it has the keyboard focus and holds text that has not
    /// been taken over.
    [[nodiscard]] bool isTyping() const;
    /// Whether the last value was refused and its text still stands in the editor.
    [[nodiscard]] bool isRefused() const { return m_refused; }
    /// Property-change mode: the sheet's verdict on the pending value that changeSaved() announced. \a message is empty
    /// when every element took it.
    void setVerdict(bool accepted, const QString& message);

    /// Which part of the value the last edit touched ("width", "x", "angle", ...); empty for the whole value. The sheet
    /// applies an edit of several elements to that part alone. See ValueComponents.
    [[nodiscard]] QString editedComponent() const { return m_editedComponent; }
    /// Whether the editor said itself what the last edit touched; the sheet compares the values otherwise.
    [[nodiscard]] bool hasEditedComponent() const { return m_hasEditedComponent; }
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
    // End of the contract's order.

    /// Runs when another property was set, before its value is loaded.
    virtual void propertyReplaced();
    /// Whether the editor itself shows which components are mixed; the sheet says so beside the label otherwise.
    [[nodiscard]] virtual bool showsMixed() const;

    /// Edits with the same key that follow each other become one undo step (typing, stepping, a slider drag); empty
    /// (the default) keeps each its own.
    [[nodiscard]] const QString& mergeKey() const { return m_mergeKey; }

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
    /// See mergeKey().
    void setMergeKey(const QString& key) { m_mergeKey = key; }
    /// Announces that a value was not even tried: \a message says why, the typed text stays.
    void refuse(const QString& message);

    /// Escape takes back what was typed and refused; everything else goes on to the parent.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void applyToolTip();
    void dropInput();
    void forgetEdited();

    QSharedPointer<DesignerProperty> m_property;
    QList<QSharedPointer<DesignerProperty>> m_properties;
    QPointer<QWidget> m_editorWidget;
    QPointer<QObject> m_session; // an EditSession; kept as its base, so that this header needs no more
    QString m_changedValue;
    QStringList m_mixedComponents;
    QString m_editedComponent;
    QString m_editedOperation;
    QString m_mergeKey;
    bool m_hasEditedComponent = false;
    bool m_propertyChange = false;
    bool m_loading = false;
    bool m_saving = false;
    bool m_refused = false;
};

} // namespace Korvex::Meridane::Designer
