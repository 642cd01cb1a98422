#include "host/core/sheet/PropertyRow.h"

#include "host/core/editors/PropertyEditor.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/DefaultMark.h"
#include "host/core/sheet/FieldEdits.h"
#include "host/core/sheet/MessageLabel.h"
#include "host/core/sheet/PropertyField.h"
#include "host/core/sheet/RowDescription.h"
#include "host/core/sheet/SheetMetrics.h"

#include "host/common/LocalizationHelper.h"

#include <QAbstractSpinBox>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

PropertyRow::PropertyRow(const RowDescription& description, QWidget* parent)
    : QWidget(parent)
    , m_text(description.label)
    , m_label(new QLabel(description.label, this))
    , m_mark(new DefaultMark(this))
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
    m_label->setAlignment(Qt::AlignLeading | Qt::AlignVCenter);
    m_mark->hide();
    m_mark->resize(m_mark->sizeHint());
    connect(m_mark, &QAbstractButton::clicked, this, &PropertyRow::reset);
    m_mixedNote->setTextFormat(Qt::PlainText);
    m_mixedNote->setWordWrap(true);
    m_mixedNote->setEnabled(false);
    m_mixedNote->hide();

    // The mark stands in the margin.
    m_grid->setContentsMargins(SheetMetrics::Margin, 0, SheetMetrics::Margin, 0);
    m_grid->setHorizontalSpacing(SheetMetrics::LabelGap);
    m_grid->setVerticalSpacing(2);
    m_grid->setColumnStretch(1, 1);
    m_editorBox->setContentsMargins(0, 0, 0, 0);
    m_editorBox->setSpacing(4);
    placeCells();
}

PropertyRow::~PropertyRow() = default;

void PropertyRow::addField(PropertyField* field, const QString& propertyId)
{
    PropertyEditor* editor = field->editor();
    if (m_fields.isEmpty()) {
        m_editorBox->addWidget(editor, 1);
        m_label->setBuddy(editor);
    } else {
        m_editorBox->addWidget(editor, 0, Qt::AlignTop);
    }
    m_fields.append(field);
    m_propertyIds.append(propertyId);
    // A text field has a menu of its own, to which the row adds.
    for (QWidget* part : editor->findChildren<QWidget*>()) {
        const bool isText = qobject_cast<QLineEdit*>(part) && part->contextMenuPolicy() == Qt::DefaultContextMenu;
        if (isText || qobject_cast<QAbstractSpinBox*>(part))
            part->installEventFilter(this);
    }
    connect(editor, &PropertyEditor::refused, this, &PropertyRow::setMessage);
    connect(editor, &PropertyEditor::accepted, this, [this] { setMessage({}); });
    connect(field, &PropertyField::invalidShown, this, &PropertyRow::setMessage);
    connect(field, &PropertyField::mixedChanged, this, &PropertyRow::updateMixedNote);
    connect(field, &PropertyField::differsChanged, this, &PropertyRow::updateMark);
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

bool PropertyRow::canReset() const
{
    return std::any_of(m_fields.begin(), m_fields.end(), [](const PropertyField* field) {
        return field->differsFromDefault() && field->editor()->isEnabled();
    });
}

void PropertyRow::reset()
{
    setMessage({});
    const EditResult result = FieldEdits::reset(m_fields, m_text);
    setMessage(result.message);
}

void PropertyRow::copyValue() const
{
    const QString value = m_fields.isEmpty() ? QString() : FieldEdits::commonValue(*m_fields.constFirst());
    if (!value.isNull())
        QGuiApplication::clipboard()->setText(value);
}

void PropertyRow::pasteValue()
{
    if (m_fields.isEmpty() || !m_fields.constFirst()->editor()->isEnabled())
        return;
    setMessage({});
    const EditResult result = FieldEdits::paste(*m_fields.constFirst(), QGuiApplication::clipboard()->text());
    if (result.accepted)
        m_fields.constFirst()->reload();
    else
        setMessage(result.message);
}

bool PropertyRow::matches(const QString& text) const
{
    const auto holds = [&text](const QString& name) { return name.contains(text, Qt::CaseInsensitive); };
    return holds(m_text) || std::any_of(m_propertyIds.begin(), m_propertyIds.end(), holds)
           || std::any_of(m_fields.begin(), m_fields.end(),
                          [&text](const PropertyField* field) { return field->holdsText(text); });
}

void PropertyRow::highlight(const QString& text)
{
    if (text == m_highlighted)
        return;
    m_highlighted = text;
    showLabel();
}

bool PropertyRow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::ContextMenu)
        return QWidget::eventFilter(watched, event);
    auto* line = qobject_cast<QLineEdit*>(watched);
    if (!line)
        line = watched->findChild<QLineEdit*>();
    if (!line)
        return false;
    QMenu* menu = line->createStandardContextMenu();
    menu->setParent(this, menu->windowFlags());
    menu->addSeparator();
    addActionsTo(menu);
    menu->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
}

void PropertyRow::contextMenuEvent(QContextMenuEvent* event)
{
    auto* menu = new QMenu(this);
    addActionsTo(menu);
    menu->popup(event->globalPos());
}

void PropertyRow::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_highlighted.isEmpty())
        showLabel();
}

void PropertyRow::addActionsTo(QMenu* menu)
{
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const PropertyField* field = m_fields.value(0);
    const bool editable = field && field->editor()->isEnabled();
    const auto add = [this, menu](const QString& text, bool enabled, auto run) {
        QAction* action = menu->addAction(text);
        action->setEnabled(enabled);
        connect(action, &QAction::triggered, this, run);
    };
    add(LocalizationHelper::coreString(QStringLiteral("Reset to Default")), canReset(), [this] { reset(); });
    add(LocalizationHelper::coreString(QStringLiteral("Copy Value")),
        field && !FieldEdits::commonValue(*field).isNull(), [this] { copyValue(); });
    add(LocalizationHelper::coreString(QStringLiteral("Paste Value")),
        editable && !QGuiApplication::clipboard()->text().isEmpty(), [this] { pasteValue(); });
}

void PropertyRow::updateMark()
{
    const bool shown = canReset();
    if (shown) {
        QStringList defaults;
        for (const PropertyField* field : std::as_const(m_fields)) {
            if (field->differsFromDefault() && !field->properties().isEmpty())
                defaults.append(field->properties().constFirst()->defaultValueString());
        }
        m_mark->setToolTip(LocalizationHelper::coreString(QStringLiteral("Reset to the default: %1"))
                               .arg(defaults.join(QStringLiteral(", ")).left(80)));
    }
    m_mark->setAccessibleName(LocalizationHelper::coreString(QStringLiteral("Reset %1")).arg(m_text));
    m_mark->setVisible(shown);
    Q_EMIT canResetChanged();
}

void PropertyRow::showLabel()
{
    const qsizetype at = m_highlighted.isEmpty() ? -1 : m_text.indexOf(m_highlighted, 0, Qt::CaseInsensitive);
    if (at < 0) {
        m_label->setTextFormat(Qt::PlainText);
        m_label->setText(m_text);
        return;
    }
    const QString found = m_text.mid(at, m_highlighted.size());
    m_label->setTextFormat(Qt::RichText);
    m_label->setText(QStringLiteral("%1<span style=\"background-color:%2;color:%3\">%4</span>%5")
                         .arg(m_text.left(at).toHtmlEscaped(), palette().color(QPalette::Highlight).name(),
                              palette().color(QPalette::HighlightedText).name(), found.toHtmlEscaped(),
                              m_text.mid(at + found.size()).toHtmlEscaped()));
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
