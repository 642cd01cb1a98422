#pragma once

#include "host/core/sheet/RowDescription.h"

#include <QWidget>

namespace Korvex::Meridane::Designer {

class DirectChangeRecorder;
class EditSession;
class PropertyField;
class PropertyRow;
class SectionHeader;

/// One set of rows of the property sheet, under the headings of their sections. It is built once for objects of one description and handed from selection to
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

    /// Shows only the rows that match \a text (see PropertyRow), also those of folded sections; an empty text shows all
    /// rows of the sections that are open. False when there is nothing to show.
    bool setFilter(const QString& text);
    /// The first row that is shown, or null.
    [[nodiscard]] PropertyRow* firstShownRow() const;

    /// Values have changed: brings the marks of sizes that follow from other properties up to date.
    void compareSizesWithDefaults();
    /// The keyboard focus has moved.
    void focusMoved();

Q_SIGNALS:
    /// A row can be reset now, or can no longer.
    void canResetChanged();

private:
    struct Section
    {
        SectionHeader* header;
        QList<PropertyRow*> rows;
    };

    SectionHeader* addSection(const RowDescription& description);
    void resetSection(const QString& key);
    void showRows();
    void addRow(const RowDescription& description, const DesignerProperty& property, DirectChangeRecorder* recorder,
                EditSession* session);
    [[nodiscard]] bool joinsRowBefore(const RowDescription& description) const;

    QList<RowDescription> m_descriptions;
    QList<PropertyRow*> m_rows;
    QList<Section> m_sections;
    QString m_filter;
    QHash<QString, PropertyField*> m_fields;
    QString m_lastRowClass; // the property class of the first editor in the last row
    bool m_several;
};

} // namespace Korvex::Meridane::Designer
