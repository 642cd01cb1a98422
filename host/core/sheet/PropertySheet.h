#pragma once

#include "host/core/commands/ChangeRecording.h"

#include <QList>
#include <QPointer>
#include <QScrollArea>
#include <QSet>

class QLabel;
class QTimer;
class QVBoxLayout;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;
class DirectChangeRecorder;
class EditSession;
class PropertyEditor;
class PropertyPanel;
class PropertyRow;
class SheetHeading;

/**
 * The property sheet: a row for each shown property of the selection, by rank, built from the properties alone.
 *
 * With several objects it shows the properties that all of them have in common; an edit then changes each object by
 * the component and operation that the user touched, as one undo step. With nothing selected it shows the current
 * screen, and a hint where there is none.
 *
 * A set of rows is built once for objects that need the same rows and then reused; the sets used last are kept.
 */
class MERIDANE_CORE_EXPORT PropertySheet : public QScrollArea
{
    Q_OBJECT

public:
    explicit PropertySheet(EditSession* session, QWidget* parent = nullptr);
    ~PropertySheet() override;

    [[nodiscard]] EditSession* session() const;
    /// Follows another session, or none.
    void setSession(EditSession* session);

    /// The objects whose properties are shown.
    [[nodiscard]] const QList<DesignerObject*>& objects() const { return m_objects; }
    /// The editor that shows the property of that id, or null.
    [[nodiscard]] PropertyEditor* editor(const QString& propertyId) const;
    /// The message below the editor of that property; empty when no value of it was refused.
    [[nodiscard]] QString message(const QString& propertyId) const;
    /// The heading: the type of what is shown.
    [[nodiscard]] QString title() const;
    /// How many sets of rows have been built since the sheet was made.
    [[nodiscard]] int builtPanels() const { return m_builtPanels; }

    [[nodiscard]] QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void showSelection();
    void showObjects(const QList<DesignerObject*>& objects);
    void finishTyping();
    PropertyPanel* panelFor(const QList<DesignerObject*>& objects);
    void showPanel(PropertyPanel* panel);
    void onPropertyChanged(DesignerObject* object, const QSharedPointer<DesignerProperty>& property);
    void refreshStaleFields();
    void onFocusChanged(QWidget* old, QWidget* now);
    void onModificationRefused(const QString& message);
    void keepDirectChanges(const QVector<PropertyChange>& changes);
    void rebuildIfNeeded();
    void arrange();
    void colorHint();

    QPointer<QObject> m_session; // an EditSession; kept as its base, so that this header needs no more
    QList<DesignerObject*> m_objects;
    QSet<const DesignerObject*> m_objectSet;
    QWidget* m_content;
    QVBoxLayout* m_column;
    SheetHeading* m_heading;
    QLabel* m_hint;
    DirectChangeRecorder* m_recorder;
    QList<PropertyPanel*> m_panels; // the one used last stands first
    PropertyPanel* m_panel = nullptr; // the one that is shown
    QTimer* m_refreshTimer;
    QSet<QString> m_staleIds; // property ids whose fields are to be refreshed
    int m_builtPanels = 0;
};

} // namespace Korvex::Meridane::Designer
