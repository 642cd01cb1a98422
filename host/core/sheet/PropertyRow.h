#pragma once

#include <QList>
#include <QWidget>

class QBoxLayout;
class QGridLayout;
class QLabel;
class QMenu;

namespace Korvex::Meridane::Designer {

class DefaultMark;
class DirectChangeRecorder;
class MessageLabel;
class PropertyEditor;
class PropertyField;
struct RowDescription;

/// A row of the property sheet: label, editor (with a small companion beside it) and the message of a refused value.
/// The label stands beside the editor, or above it when there is not enough width; before it is a mark while the value
/// differs from its default. The row's menu resets, copies and pastes the value.
class PropertyRow : public QWidget
{
    Q_OBJECT

public:
    PropertyRow(const RowDescription& description, QWidget* parent);
    ~PropertyRow() override;

    /// Puts the editor of \a field, which shows the property of that id, into the row and shows its messages; the second
    /// one is the companion of the first.
    void addField(PropertyField* field, const QString& propertyId);

    /// Gives the label \a labelWidth of \a rowWidth and decides whether the label stands beside or above the editor.
    void arrange(int labelWidth, int rowWidth);
    [[nodiscard]] bool isStacked() const { return m_stacked; }

    [[nodiscard]] const QList<PropertyField*>& fields() const { return m_fields; }
    [[nodiscard]] QLabel* label() const { return m_label; }
    /// Whether \a widget is one of the row's editors or stands in one.
    [[nodiscard]] bool holds(const QWidget* widget) const;

    /// The message of a refused value; empty for none.
    [[nodiscard]] QString message() const;
    void setMessage(const QString& message);

    /// Whether the row holds a value that can be set to its default.
    [[nodiscard]] bool canReset() const;
    /// Sets the row's values to their defaults, as one step; why one was refused is said below the row.
    void reset();
    /// Puts the value string on the clipboard; nothing when several objects have different values.
    void copyValue() const;
    /// Takes the text on the clipboard over as the value.
    void pasteValue();

    /// Whether \a text stands in the label, in a property's id or in a value, upper or lower case; an empty one does.
    [[nodiscard]] bool matches(const QString& text) const;
    /// Marks \a text where it stands in the label; empty: nothing.
    void highlight(const QString& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// The row can be reset now, or can no longer.
    void canResetChanged();

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void addActionsTo(QMenu* menu);
    void updateMark();
    void showLabel();
    void placeCells();
    void updateMixedNote();

    QString m_text; // of the label
    QString m_highlighted;
    QStringList m_propertyIds;
    QLabel* m_label;
    DefaultMark* m_mark;
    QLabel* m_mixedNote;
    MessageLabel* m_message;
    QGridLayout* m_grid;
    QBoxLayout* m_editorBox;
    QList<PropertyField*> m_fields;
    bool m_stacked = false;
};

} // namespace Korvex::Meridane::Designer
