#include "host/core/editors/PropertyEditor.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/widgets/HexColorField.h"
#include "host/core/widgets/SpinBox.h"

#include "host/common/LocalizationHelper.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QScopedValueRollback>

#include <memory>
#include <utility>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// Whether the canvas shows \a object as selected, which the undo step restores.
bool isSelected(const DesignerObject* object)
{
    const GraphicsItem* item = object ? object->graphicsItem() : nullptr;
    return item && item->graphic() && item->graphic()->isSelected();
}

/// Executes an edit of an object that stands in no project, which keeps no history.
EditResult executeDetached(UndoCommand& command)
{
    command.redo();
    const QString refusal = command.refusal();
    if (!refusal.isEmpty())
        command.undo();
    return {refusal.isEmpty(), refusal.isEmpty() && command.hasEffect(), refusal};
}

} // namespace

PropertyEditor::PropertyEditor(QWidget* parent)
    : QWidget(parent)
{
    // It paints nothing itself: a new size leaves what its parts have painted as it is.
    setAttribute(Qt::WA_StaticContents);
}

PropertyEditor::~PropertyEditor()
{
    if (m_property && m_property->editorWidget() == this)
        m_property->setEditorWidget(nullptr);
}

QString PropertyEditor::className() const
{
    return QStringLiteral("PropertyEditor");
}

QStringList PropertyEditor::classNames() const
{
    return {QStringLiteral("PropertyEditor")};
}

bool PropertyEditor::initialize()
{
    if (!m_property || (!m_editorWidget && (!createEditorWidget() || !m_editorWidget)))
        return false;
    applyToolTip();
    load();
    return true;
}

void PropertyEditor::setProperty(const QSharedPointer<DesignerProperty>& property)
{
    setProperties(property ? QList{property} : QList<QSharedPointer<DesignerProperty>>());
}

void PropertyEditor::setProperties(const QList<QSharedPointer<DesignerProperty>>& properties)
{
    const bool replaced = m_properties != properties;
    m_properties = properties;
    const QSharedPointer<DesignerProperty> property = properties.value(0);
    if (m_property == property) {
        if (!m_property)
            return;
        m_property->setEditorWidget(this);
        if (replaced)
            propertyReplaced(); // other elements are edited together with the first
        return;
    }
    if (m_property && m_property->editorWidget() == this)
        m_property->setEditorWidget(nullptr);
    m_property = property;
    if (std::exchange(m_refused, false))
        dropInput();
    m_changedValue.clear();
    m_mixedComponents.clear();
    m_mergeKey.clear();
    forgetEdited();
    if (m_property) {
        m_property->setEditorWidget(this);
        applyToolTip();
        propertyReplaced();
    }
}

EditSession* PropertyEditor::session() const
{
    return qobject_cast<EditSession*>(m_session.data());
}

void PropertyEditor::setSession(EditSession* session)
{
    m_session = session;
}

bool PropertyEditor::isMixed(const QString& component) const
{
    return m_mixedComponents.contains(component) || m_mixedComponents.contains(QString());
}

void PropertyEditor::load()
{
    if (!m_property)
        return;
    const QScopedValueRollback loading(m_loading, true);
    if (std::exchange(m_refused, false))
        dropInput();
    loadEditorValue();
}

bool PropertyEditor::isTyping() const
{
    const QWidget* focused = QApplication::focusWidget();
    if (!focused || (focused != this && !isAncestorOf(focused)))
        return false;
    const auto* field = qobject_cast<const QLineEdit*>(focused);
    if (const auto* number = qobject_cast<const SpinBox*>(focused)) {
        // Its text may be rewritten as it stands when it is taken over, so that "modified" says nothing.
        const QString shown =
            number->isMixed() ? QString() : number->textFromValue(number->QDoubleSpinBox::value()) + number->suffix();
        return number->text() != shown;
    }
    return field && field->isModified();
}

void PropertyEditor::save()
{
    if (m_loading || m_saving || !m_property)
        return;
    if (m_propertyChange) {
        saveChange();
        return;
    }
    const QString value = editorValue();
    if (m_property->equalsValue(value)) {
        m_refused = false;
        forgetEdited();
        Q_EMIT accepted();
        return;
    }
    std::unique_ptr<UndoCommand> command(createUpdateCommand(m_property, value, nullptr));
    if (!command) {
        forgetEdited();
        return;
    }
    if (command->text().isEmpty())
        command->setText(LocalizationHelper::coreString(QStringLiteral("Change %1")).arg(m_property->name()));
    if (command->mergeKey().isEmpty())
        command->setMergeKey(m_mergeKey);
    // A value is taken with all that follows from it or not at all.
    command->setAllOrNothing(true);

    EditResult result;
    {
        const QPointer<PropertyEditor> self(this);
        m_saving = true;
        if (Project* project = Project::parentProject(m_property->parentObject()))
            result = project->execute(std::move(command));
        else
            result = executeDetached(*command);
        if (!self)
            return;
        m_saving = false;
    }
    forgetEdited();
    if (!result.accepted) {
        refuse(result.message);
        return;
    }
    m_refused = false;
    if (m_property && !m_property->equalsValue(editorValue()))
        load();
    Q_EMIT accepted();
}

void PropertyEditor::saveChange()
{
    if (m_loading || m_saving || !m_property)
        return;
    m_changedValue = editorValue();
    const QPointer<PropertyEditor> self(this);
    m_saving = true;
    Q_EMIT changeSaved();
    if (!self)
        return;
    m_saving = false;
    forgetEdited();
}

void PropertyEditor::setVerdict(bool accepted, const QString& message)
{
    if (!accepted) {
        refuse(message);
        return;
    }
    m_refused = false;
    Q_EMIT this->accepted();
}

UndoCommand* PropertyEditor::createUpdateCommand(const QSharedPointer<DesignerProperty>& property, const QString& value,
                                                 UndoCommand* parent)
{
    return new ChangeProperty(property, value, isSelected(property->parentObject()), parent);
}

void PropertyEditor::propertyReplaced() {}

bool PropertyEditor::showsMixed() const
{
    return false;
}

void PropertyEditor::setEditorWidget(QWidget* widget)
{
    if (m_editorWidget == widget)
        return;
    delete m_editorWidget;
    m_editorWidget = widget;
    if (!widget)
        return;
    if (!layout()) {
        auto* box = new QHBoxLayout(this);
        box->setContentsMargins(0, 0, 0, 0);
    }
    layout()->addWidget(widget);
    setFocusProxy(widget);
}

QString PropertyEditor::valueToLoad() const
{
    if (m_propertyChange)
        return m_changedValue;
    return m_property ? m_property->valueString() : QString();
}

void PropertyEditor::setEdited(const QString& component, const QString& operation)
{
    m_editedComponent = component;
    m_editedOperation = operation;
    m_hasEditedComponent = true;
}

void PropertyEditor::forgetEdited()
{
    m_editedComponent.clear();
    m_editedOperation.clear();
    m_hasEditedComponent = false;
}

void PropertyEditor::refuse(const QString& message)
{
    m_refused = true;
    Q_EMIT refused(message.isEmpty() ? LocalizationHelper::coreString(QStringLiteral("This value cannot be used."))
                                     : message);
}

void PropertyEditor::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && (m_refused || isTyping())) {
        load();
        Q_EMIT accepted();
        event->accept();
        return;
    }
    QWidget::keyPressEvent(event);
}

/// Fields that show the value already keep what was typed into them; a refused text is not to outlive its object.
void PropertyEditor::dropInput()
{
    for (SpinBox* field : findChildren<SpinBox*>())
        field->dropInput();
    for (HexColorField* field : findChildren<HexColorField*>())
        field->dropInput();
}

void PropertyEditor::applyToolTip()
{
    const QString text = m_property->editorParameters().value(QStringLiteral("tooltip")).toString();
    if (toolTip() != text)
        setToolTip(text);
}

} // namespace Korvex::Meridane::Designer
