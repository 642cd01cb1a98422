#pragma once

#include "host/core/sheet/RowDescription.h"

#include <QWidget>

namespace Korvex::Meridane::Designer {

class DirectChangeRecorder;
class EditSession;
class PropertyField;
class PropertyRow;

/// One set of rows of the property sheet. It is built once for objects of one description and handed from selection to
/// selection, because building widgets is what makes selecting slow.
class PropertyPanel : public QWidget
{
    Q_OBJECT

public:
    /// Builds the rows that \a descriptions ask for, for one object or for several.
    PropertyPanel(const QList<RowDescription>& descriptions, bool several, const QList<DesignerObject*>& objects,
                  EditSession* session, DirectChangeRecorder* recorder, QWidget* parent);
    ~PropertyPanel() override;

    /// Whether the panel was built for rows like these.
    [[nodiscard]] bool fits(const QList<RowDescription>& descriptions, bool several) const;
    [[nodiscard]] const QList<RowDescription>& descriptions() const { return m_descriptions; }

    /// Shows \a objects, which fit; none to let go of the ones before.
    void bind(const QList<DesignerObject*>& objects);
    /// The field that shows the property of that id, or null.
    [[nodiscard]] PropertyField* field(const QString& propertyId) const { return m_fields.value(propertyId); }
    [[nodiscard]] const QList<PropertyRow*>& rows() const { return m_rows; }
    /// The row that holds \a widget, or null.
    [[nodiscard]] PropertyRow* rowOf(const QWidget* widget) const;

    /// Gives every row \a labelWidth of \a rowWidth for its label; in pixels.
    void arrange(int labelWidth, int rowWidth);

    /// The keyboard focus has moved.
    void focusMoved();

private:
    void addRow(const RowDescription& description, const DesignerProperty& property, DirectChangeRecorder* recorder,
                EditSession* session);
    [[nodiscard]] bool joinsRowBefore(const RowDescription& description) const;

    QList<RowDescription> m_descriptions;
    QList<PropertyRow*> m_rows;
    QHash<QString, PropertyField*> m_fields;
    QString m_lastRowClass; // the property class of the first editor in the last row
    bool m_several;
};

} // namespace Korvex::Meridane::Designer
