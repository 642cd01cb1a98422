#include "host/core/sheet/PropertyRow.h"

#include "host/core/editors/PropertyEditor.h"
#include "host/core/sheet/MessageLabel.h"
#include "host/core/sheet/PropertyField.h"
#include "host/core/sheet/RowDescription.h"
#include "host/core/sheet/SheetMetrics.h"

#include "host/common/LocalizationHelper.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

PropertyRow::PropertyRow(const RowDescription& description, QWidget* parent)
    : QWidget(parent)
    , m_label(new QLabel(description.label, this))
    , m_mixedNote(new QLabel(LocalizationHelper::coreString(QStringLiteral("different values")), this))
    , m_message(new MessageLabel(this))
    , m_grid(new QGridLayout(this))
    , m_editorBox(new QHBoxLayout)
{
    setObjectName(QStringLiteral("row_") + description.propertyId);
    setAttribute(Qt::WA_StaticContents);
    m_label->setTextFormat(Qt::PlainText);
    m_label->setWordWrap(true);
    m_label->setMinimumHeight(SheetMetrics::fieldHeight(this));
    m_label->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_mixedNote->setTextFormat(Qt::PlainText);
    m_mixedNote->setWordWrap(true);
    m_mixedNote->setEnabled(false);
    m_mixedNote->hide();

    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(SheetMetrics::LabelGap);
    m_grid->setVerticalSpacing(2);
    m_grid->setColumnStretch(1, 1);
    m_editorBox->setContentsMargins(0, 0, 0, 0);
    m_editorBox->setSpacing(4);
    placeCells();
}

PropertyRow::~PropertyRow() = default;

void PropertyRow::addField(PropertyField* field)
{
    PropertyEditor* editor = field->editor();
    if (m_fields.isEmpty()) {
        m_editorBox->addWidget(editor, 1);
        m_label->setBuddy(editor);
    } else {
        m_editorBox->addWidget(editor, 0, Qt::AlignTop);
    }
    m_fields.append(field);
    connect(editor, &PropertyEditor::refused, this, &PropertyRow::setMessage);
    connect(editor, &PropertyEditor::accepted, this, [this] { setMessage({}); });
    connect(field, &PropertyField::invalidShown, this, &PropertyRow::setMessage);
    connect(field, &PropertyField::mixedChanged, this, &PropertyRow::updateMixedNote);
}

void PropertyRow::arrange(int labelWidth, int rowWidth)
{
    int editorWidth = 0;
    for (const PropertyField* field : m_fields)
        editorWidth += field->editor()->minimumSizeHint().width() + (editorWidth > 0 ? m_editorBox->spacing() : 0);
    const bool stacked = editorWidth > rowWidth - labelWidth - SheetMetrics::LabelGap;
    if (stacked != m_stacked) {
        m_stacked = stacked;
        placeCells();
    }
    const int width = stacked ? 0 : labelWidth;
    m_grid->setColumnMinimumWidth(0, width);
    m_label->setMinimumWidth(width);
    m_label->setMaximumWidth(stacked ? QWIDGETSIZE_MAX : width);
}

bool PropertyRow::holds(const QWidget* widget) const
{
    return widget && std::any_of(m_fields.begin(), m_fields.end(), [widget](const PropertyField* field) {
               return field->editor() == widget || field->editor()->isAncestorOf(widget);
           });
}

QString PropertyRow::message() const
{
    return m_message->text();
}

void PropertyRow::setMessage(const QString& message)
{
    m_message->setMessage(message);
}

void PropertyRow::placeCells()
{
    m_grid->removeItem(m_editorBox);
    m_editorBox->setParent(nullptr);
    for (QWidget* widget :
         {static_cast<QWidget*>(m_label), static_cast<QWidget*>(m_mixedNote), static_cast<QWidget*>(m_message)})
        m_grid->removeWidget(widget);
    if (m_stacked) {
        m_grid->addWidget(m_label, 0, 0, 1, 2);
        m_grid->addLayout(m_editorBox, 1, 0, 1, 2);
        m_grid->addWidget(m_mixedNote, 2, 0, 1, 2);
        m_grid->addWidget(m_message, 3, 0, 1, 2);
    } else {
        m_grid->addWidget(m_label, 0, 0, Qt::AlignTop);
        m_grid->addLayout(m_editorBox, 0, 1);
        m_grid->addWidget(m_mixedNote, 1, 1);
        m_grid->addWidget(m_message, 2, 1);
    }
}

void PropertyRow::updateMixedNote()
{
    m_mixedNote->setVisible(std::any_of(m_fields.begin(), m_fields.end(), [](const PropertyField* field) {
        return field->isMixed() && !field->editor()->showsMixed();
    }));
}

} // namespace Korvex::Meridane::Designer
