#include "host/core/sheet/PropertyPanel.h"

#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/DefaultValues.h"
#include "host/core/sheet/EditorMatcher.h"
#include "host/core/sheet/FieldEdits.h"
#include "host/core/sheet/PropertyField.h"
#include "host/core/sheet/PropertyRow.h"
#include "host/core/sheet/SectionFolds.h"
#include "host/core/sheet/SectionHeader.h"
#include "host/core/sheet/SheetMetrics.h"

#include <QVBoxLayout>

#include <algorithm>

namespace Korvex::Meridane::Designer {

PropertyPanel::PropertyPanel(const QList<RowDescription>& descriptions, bool several,
                             const QList<DesignerObject*>& objects, EditSession* session,
                             DirectChangeRecorder* recorder, QWidget* parent)
    : QWidget(parent)
    , m_descriptions(descriptions)
    , m_several(several)
{
    setAttribute(Qt::WA_StaticContents);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(SheetMetrics::RowGap);
    for (const RowDescription& description : descriptions) {
        if (const auto property = objects.first()->getProperty(description.propertyId))
            addRow(description, *property, recorder, session);
    }
    connect(&SectionFolds::shared(), &SectionFolds::changed, this, &PropertyPanel::showRows);
    showRows();
    bind(objects);
}

PropertyPanel::~PropertyPanel() = default;

bool PropertyPanel::fits(const QList<RowDescription>& descriptions, bool several) const
{
    return m_several == several && m_descriptions == descriptions;
}

void PropertyPanel::bind(const QList<DesignerObject*>& objects)
{
    for (PropertyRow* row : std::as_const(m_rows))
        row->setMessage({});
    for (const RowDescription& description : std::as_const(m_descriptions)) {
        if (PropertyField* field = m_fields.value(description.propertyId))
            field->bind(propertiesOf(description, objects));
    }
}

PropertyRow* PropertyPanel::rowOf(const QWidget* widget) const
{
    const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                  [widget](const PropertyRow* candidate) { return candidate->holds(widget); });
    return row == m_rows.end() ? nullptr : *row;
}

void PropertyPanel::arrange(int labelWidth, int rowWidth)
{
    for (PropertyRow* row : std::as_const(m_rows))
        row->arrange(labelWidth, rowWidth);
}

void PropertyPanel::compareSizesWithDefaults()
{
    for (PropertyField* field : std::as_const(m_fields)) {
        const auto property = field->properties().value(0);
        if (property && isDerivedSize(*property))
            field->compareWithDefaults();
    }
}

void PropertyPanel::focusMoved()
{
    for (PropertyField* field : std::as_const(m_fields))
        field->focusMoved();
}

void PropertyPanel::addRow(const RowDescription& description, const DesignerProperty& property,
                           DirectChangeRecorder* recorder, EditSession* session)
{
    const bool joins = joinsRowBefore(description);
    // Headings are made before their rows, so that the Tab key comes to them first.
    if (!joins && (m_sections.isEmpty() || m_sections.constLast().header->key() != description.section))
        m_sections.append(Section{addSection(description), {}});
    PropertyRow* row = joins ? m_rows.last() : new PropertyRow(description, this);
    PropertyEditor* editor = EditorMatcher::createEditor(property, row);
    auto* field = editor ? new PropertyField(editor, m_several, recorder, this) : nullptr;
    if (editor) {
        editor->setSession(session);
        // Which widget is built depends on the property, so that it must be there; its value comes with bind().
        editor->setProperty(property.parentObject()->getProperty(property.id()));
    }
    if (!editor || !editor->initialize()) {
        delete field;
        delete editor;
        if (!joins)
            delete row;
        return;
    }
    editor->setObjectName(QStringLiteral("editor_") + description.propertyId);
    editor->setAccessibleName(description.label);
    editor->setEnabled(description.editable);
    row->addField(field, description.propertyId);
    m_fields.insert(description.propertyId, field);
    if (joins)
        return;
    m_lastRowClass = description.propertyClass;
    m_rows.append(row);
    m_sections.last().rows.append(row);
    layout()->addWidget(row);
    connect(row, &PropertyRow::canResetChanged, this, &PropertyPanel::canResetChanged);
}

SectionHeader* PropertyPanel::addSection(const RowDescription& description)
{
    auto* header = new SectionHeader(description.section, description.sectionTitle, this);
    layout()->addWidget(header);
    connect(header, &QAbstractButton::clicked, this, [this, header](bool open) {
        // While a filter decides what is shown, there is nothing to fold.
        if (m_filter.isEmpty())
            SectionFolds::shared().setFolded(header->key(), !open);
        else
            showRows();
    });
    connect(header, &SectionHeader::resetRequested, this, [this, header] { resetSection(header->key()); });
    return header;
}

void PropertyPanel::resetSection(const QString& key)
{
    for (const Section& section : std::as_const(m_sections)) {
        if (section.header->key() != key)
            continue;
        QList<PropertyField*> fields;
        for (PropertyRow* row : section.rows) {
            row->setMessage({});
            fields += row->fields();
        }
        const EditResult result = FieldEdits::reset(fields, section.header->text());
        // A value that stays differs from its default still.
        const auto refused = std::find_if(section.rows.begin(), section.rows.end(),
                                          [](const PropertyRow* row) { return row->canReset(); });
        if (!result.accepted && refused != section.rows.end())
            (*refused)->setMessage(result.message);
    }
}

bool PropertyPanel::setFilter(const QString& text)
{
    m_filter = text;
    showRows();
    return firstShownRow() != nullptr || text.isEmpty();
}

PropertyRow* PropertyPanel::firstShownRow() const
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [](const PropertyRow* candidate) { return !candidate->isHidden(); });
    return row == m_rows.end() ? nullptr : *row;
}

void PropertyPanel::showRows()
{
    for (const Section& section : std::as_const(m_sections)) {
        const bool open = !SectionFolds::shared().isFolded(section.header->key());
        bool found = false;
        for (PropertyRow* row : section.rows) {
            const bool matching = m_filter.isEmpty() ? open : row->matches(m_filter);
            found = found || matching;
            row->highlight(m_filter);
            row->setVisible(matching);
        }
        section.header->setChecked(open || !m_filter.isEmpty());
        section.header->setVisible(!section.rows.isEmpty() && (m_filter.isEmpty() || found));
    }
}

bool PropertyPanel::joinsRowBefore(const RowDescription& description) const
{
    return description.editorClass == QLatin1String("KeepRatioEditor")
           && m_lastRowClass == QLatin1String("SizeProperty") && !m_rows.isEmpty()
           && m_rows.last()->fields().size() == 1;
}

} // namespace Korvex::Meridane::Designer
