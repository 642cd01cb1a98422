#pragma once

#include "host/core/objects/IDesignerObject.h"
#include "host/core/properties/PropertyFlag.h"

#include <QMap>
#include <QPointer>
#include <QVariant>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class PropertyEditor;

/**
 * One typed property of a data object.
 *
 * Values enter and leave as value strings. A typed property keeps the converted value; a string that does not convert
 * is kept as it stands while setAllowInvalidValue() is on, so that no project loses data, and isConverted() is false
 * until a good value arrives. Values are changed through DesignerObject::changePropertyValue(), never directly.
 */
class MERIDANE_CORE_EXPORT DesignerProperty : public IDesignerObject
{
public:
    /// Refuses a value by returning false and filling the message, which is shown to the user as it stands.
    /// It sees the candidate through the property's valueString().
    using Validator = bool (*)(const DesignerProperty* property, QString& message);
    /// Says what is unusual about a value that is accepted all the same, and what to do; empty where nothing is.
    using Advisor = QString (*)(const DesignerProperty* property);
    /// Replaces the property's QML line; an empty result writes nothing. \a indent counts tabs.
    using QmlCreator = QString (*)(const DesignerProperty* property, int indent);

    /// \a parent owns the property and outlives it; \a name is the label, already localised.
    DesignerProperty(DesignerObject* parent, const QString& id, const QString& name);
    ~DesignerProperty() override;
    Q_DISABLE_COPY_MOVE(DesignerProperty)

    [[nodiscard]] QString className() const override;
    [[nodiscard]] QStringList classNames() const override;
    bool initialize() override;

    /// Takes a value string over as the value. False leaves the present value as it was.
    virtual bool convertToValue(const QString& valueString) = 0;
    /// The value string of the converted value, which convertToValue() reads back.
    [[nodiscard]] virtual QString convertToValueString() const = 0;
    /// The default QML lines of the value, indented by \a indent tabs and without a final line break.
    [[nodiscard]] virtual QString convertToQml(int indent) const = 0;
    /// Whether \a valueString converts to the present converted value.
    [[nodiscard]] virtual bool valueIsEqual(const QString& valueString) const = 0;
    /// Whether the present value may stay; asks the validator when one is set.
    [[nodiscard]] virtual bool validateValue(QString& message) const;
    /// Whether the object that the value names may be linked; true for values that name none.
    [[nodiscard]] virtual bool validateObjectValue(QString& message) const;
    /// Whether the property's list of objects is in order; true for properties that hold none.
    [[nodiscard]] virtual bool validateListItems(QString& message) const;

    [[nodiscard]] const QString& id() const { return m_id; }
    [[nodiscard]] const QString& name() const { return m_name; }
    [[nodiscard]] DesignerObject* parentObject() const { return m_parentObject; }

    /// The value string: the converted value's, or the text as it stands while it does not convert.
    [[nodiscard]] QString valueString() const;
    /// Whether \a valueString stands for the present value.
    [[nodiscard]] bool equalsValue(const QString& valueString) const;
    /// False while the property holds a text that does not convert; such a value is inert.
    [[nodiscard]] bool isConverted() const { return m_unconverted.isNull(); }
    /// Stores \a valueString whatever it is, for loading: what convertToValue() refuses is kept as it stands.
    void fill(const QString& valueString);
    /// The value string that the property had when it was declared.
    [[nodiscard]] const QString& defaultValueString() const { return m_default; }

    /// The QML lines that an export writes: none for a value that does not convert, the creator's when one is set.
    [[nodiscard]] QString toQml(int indent) const;

    [[nodiscard]] int rank() const { return m_rank; }
    void setRank(int rank) { m_rank = rank; }
    [[nodiscard]] PropertyFlags flags() const { return m_flags; }
    [[nodiscard]] bool hasFlag(PropertyFlag flag) const { return m_flags.testFlag(flag); }
    void setFlags(QFlags<PropertyFlag> flags) { m_flags = flags; }
    void setFlag(PropertyFlag flag, bool on) { m_flags.setFlag(flag, on); }
    [[nodiscard]] bool allowInvalidValue() const { return m_allowInvalidValue; }
    void setAllowInvalidValue(bool allow) { m_allowInvalidValue = allow; }

    /// The editor class that was asked for by setEditor(); empty for the type's default editor.
    [[nodiscard]] const QString& editor() const { return m_editor; }
    void setEditor(const QString& editorClass, const QMap<QString, QVariant>& parameters = {});
    [[nodiscard]] const QMap<QString, QVariant>& editorParameters() const { return m_editorParameters; }
    void setEditorParameter(const QString& key, const QVariant& value) { m_editorParameters.insert(key, value); }
    void setEditorParameters(const QMap<QString, QVariant>& parameters) { m_editorParameters = parameters; }
    /// The editor that shows the property at present, or null. The property sheet owns it.
    [[nodiscard]] PropertyEditor* editorWidget() const { return m_editorWidget; }
    void setEditorWidget(PropertyEditor* editor) { m_editorWidget = editor; }

    void setValidator(Validator validator) { m_validator = validator; }
    [[nodiscard]] bool hasValidator() const { return m_validator != nullptr; }
    void setAdvisor(Advisor advisor) { m_advisor = advisor; }
    /// What the advisor says of the present value, for a check of the project; empty without one and while the value
    /// does not convert.
    [[nodiscard]] QString advice() const { return m_advisor && isConverted() ? m_advisor(this) : QString(); }
    void setQmlCreator(QmlCreator creator) { m_qmlCreator = creator; }
    [[nodiscard]] bool hasQmlCreator() const { return m_qmlCreator != nullptr; }

    /// Remembers the present value as the default; called once when the property has been declared.
    void rememberDefault();

protected:
    /// For convertToValue(): keeps a text that does not convert where that is allowed, and says whether it was.
    bool keepUnconverted(const QString& text);
    /// For convertToValue(): the value converts, a kept text is forgotten.
    void setConverted() { m_unconverted = QString(); }

private:
    DesignerObject* m_parentObject;
    QString m_id;
    QString m_name;
    QString m_default;
    QString m_unconverted; // null while the value is converted
    QString m_editor;
    QMap<QString, QVariant> m_editorParameters;
    PropertyEditor* m_editorWidget = nullptr;
    Validator m_validator = nullptr;
    Advisor m_advisor = nullptr;
    QmlCreator m_qmlCreator = nullptr;
    int m_rank = 0;
    PropertyFlags m_flags = PropertyFlags(Stored | Exported | Shown | Editable);
    bool m_allowInvalidValue = false;
};

} // namespace Korvex::Meridane::Designer
