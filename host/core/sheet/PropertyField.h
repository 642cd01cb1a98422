#pragma once

#include "host/core/CoreExport.h"

#include <QList>
#include <QObject>
#include <QSharedPointer>
#include <QString>

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;
class DirectChangeRecorder;
class PropertyEditor;

/**
 * One editor of the sheet with the properties that it edits: one, or the same of several objects.
 *
 * With several the editor works in property-change mode; each edit is carried over to every object by the component and
 * operation that the user touched, as one undo step.
 */
class PropertyField : public QObject
{
    Q_OBJECT

public:
    /// \a editor belongs to its parent widget and outlives the field. \a several sets the editor's mode for good.
    PropertyField(PropertyEditor* editor, bool several, DirectChangeRecorder* recorder, QObject* parent);
    ~PropertyField() override;

    [[nodiscard]] PropertyEditor* editor() const { return m_editor; }
    /// What the field shows, one for each object; empty for none.
    [[nodiscard]] const QList<QSharedPointer<DesignerProperty>>& properties() const { return m_properties; }
    /// The objects have different values.
    [[nodiscard]] bool isMixed() const { return m_mixed; }
    /// At least one value is another than its object's default.
    [[nodiscard]] bool differsFromDefault() const { return m_differs; }
    /// The objects of properties().
    [[nodiscard]] QList<DesignerObject*> objects() const;
    /// Whether \a part stands in a value, upper or lower case.
    [[nodiscard]] bool holdsText(const QString& part) const;

    /// Shows these properties; the list is empty for none.
    void bind(const QList<QSharedPointer<DesignerProperty>>& properties);
    /// Brings the display up to date after a value changed elsewhere. A text that the user is typing is left alone
    /// until the keyboard focus leaves it.
    void refresh();
    /// Shows the values whatever the user may have typed, after they were set by something else than the editor.
    void reload();
    /// Finds out again whether the values differ from their defaults; that of a size can depend on other properties.
    void compareWithDefaults();
    /// The keyboard focus has moved.
    void focusMoved();

Q_SIGNALS:
    void mixedChanged(bool mixed);
    void differsChanged(bool differs);
    /// The property holds a text that does not convert, which most editors cannot show; \a message says so.
    void invalidShown(const QString& message);

private:
    void load();
    void loadPending();
    void reportInvalid();
    void applyToAll();
    [[nodiscard]] QStringList mixedComponents() const;
    [[nodiscard]] QString editedValue(const DesignerProperty& property, const QStringList& components) const;
    void setMixed(bool mixed);

    PropertyEditor* m_editor;
    DirectChangeRecorder* m_recorder;
    QList<QSharedPointer<DesignerProperty>> m_properties;
    QString m_pending; // what the editor was given to edit in property-change mode
    bool m_mixed = false;
    bool m_differs = false;
    bool m_stale = false; // a value changed while the user was typing
};

} // namespace Korvex::Meridane::Designer
