#pragma once

#include "host/core/commands/ChangeRecording.h"
#include "host/core/widgets/ColorSource.h"

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
class SheetSearch;

/**
 * The property sheet: a row for each shown property of the selection, by section and rank, built from the properties
 * alone. A search line above them, which does not scroll with them, filters the rows.
 *
 * With several objects it shows the properties that all of them have in common; an edit then changes each object by
 * the component and operation that the user touched, as one undo step. With nothing selected it shows the current
 * screen, and a hint where there is none.
 *
 * A set of rows is built once for objects that need the same rows and then reused; the sets used last are kept.
 */
class MERIDANE_CORE_EXPORT PropertySheet : public QScrollArea, public ColorSource
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

    /// Goes to the search line.
    void focusSearch();
    /// Goes to the first field: the id where there is one, else that of the first row.
    void focusFirstField();
    /// Whether the row that has or last had the keyboard focus can be set to its default.
    [[nodiscard]] bool canResetCurrent() const;
    /// Sets the values of that row to their defaults.
    void resetCurrent();

    /// The colours of the project, for the colour fields in the rows.
    [[nodiscard]] QList<QColor> colorsInUse() const override;

    [[nodiscard]] QSize sizeHint() const override;

Q_SIGNALS:
    /// What canResetCurrent() says may have changed.
    void canResetCurrentChanged();

protected:
    /// Goes through search line, heading and rows in the order in which one sees them, whatever the window has made since.
    bool focusNextPrevChild(bool next) override;
    /// Escape that no field needed ends a search.
    void keyPressEvent(QKeyEvent* event) override;
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
    [[nodiscard]] QList<QWidget*> tabStops() const;
    void applyFilter();
    void leaveSearch();
    void focusFirstResult();
    void placeSearch();
    void arrange();
    void colorHints();

    QPointer<QObject> m_session; // an EditSession; kept as its base, so that this header needs no more
    QList<DesignerObject*> m_objects;
    QSet<const DesignerObject*> m_objectSet;
    SheetSearch* m_search;
    QPointer<QWidget> m_focusBeforeSearch;
    QWidget* m_content;
    QVBoxLayout* m_column;
    SheetHeading* m_heading;
    QLabel* m_hint;
    QLabel* m_nothingFound;
    DirectChangeRecorder* m_recorder;
    QList<PropertyPanel*> m_panels; // the one used last stands first
    PropertyPanel* m_panel = nullptr; // the one that is shown
    QPointer<QWidget> m_currentRow; // a PropertyRow
    QTimer* m_refreshTimer;
    QSet<QString> m_staleIds; // property ids whose fields are to be refreshed
    int m_builtPanels = 0;
};

} // namespace Korvex::Meridane::Designer
