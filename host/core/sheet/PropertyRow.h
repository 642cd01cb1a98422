#pragma once

#include <QWidget>

class QBoxLayout;
class QGridLayout;
class QLabel;

namespace Korvex::Meridane::Designer {

class DirectChangeRecorder;
class MessageLabel;
class PropertyEditor;
class PropertyField;
struct RowDescription;

/// A row of the property sheet: label, editor (with a small companion beside it) and the message of a refused value.
/// The label stands beside the editor, or above it when there is not enough width.
class PropertyRow : public QWidget
{
    Q_OBJECT

public:
    PropertyRow(const RowDescription& description, QWidget* parent);
    ~PropertyRow() override;

    /// Shows \a editor's messages and puts it into the row; the second one is the companion of the first.
    void addField(PropertyField* field);

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

private:
    void placeCells();
    void updateMixedNote();

    QLabel* m_label;
    QLabel* m_mixedNote;
    MessageLabel* m_message;
    QGridLayout* m_grid;
    QBoxLayout* m_editorBox;
    QList<PropertyField*> m_fields;
    bool m_stacked = false;
};

} // namespace Korvex::Meridane::Designer
