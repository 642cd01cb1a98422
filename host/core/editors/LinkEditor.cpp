#include "host/core/editors/LinkEditor.h"

#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/IdRegistry.h"
#include "host/core/project/Project.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ComboBox.h"

#include "host/common/LocalizationHelper.h"

#include <QEvent>
#include <QScopedValueRollback>
#include <QVariant>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

namespace {

/// The object that \a object's ids of that scope are unique in.
DesignerObject* scopeObject(DesignerObject* object, const QString& scopeType)
{
    if (scopeType == QLatin1String("Project"))
        return Project::parentProject(object);
    for (DesignerObject* parent = object; parent; parent = parent->parentObject()) {
        if (parent->ownIdScope())
            return parent;
    }
    return nullptr;
}

/// The ids of the objects of one scope, in the order of the tree. Objects below another scope belong to that one.
void collectIds(const DesignerObject& parent, const QStringList& filter, const DesignerObject* except, QStringList& ids)
{
    const ObjectListProperty* children = parent.childList();
    if (!children)
        return;
    for (DesignerObject* child : children->items()) {
        if (child != except && (filter.isEmpty() || filter.contains(child->idInfo().filterType())))
            ids.append(child->getIdName());
        if (!child->ownIdScope())
            collectIds(*child, filter, except, ids);
    }
}

} // namespace

LinkEditor::LinkEditor(QWidget* parent)
    : StandardEditor(parent)
{}

LinkEditor::~LinkEditor() = default;

QString LinkEditor::className() const
{
    return QStringLiteral("LinkEditor");
}

bool LinkEditor::createEditorWidget()
{
    m_box = new ComboBox({}, this);
    m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_box->setMinimumContentsLength(8);
    m_box->setAccessibleName(property()->name());
    // What may be linked changes without this editor; it matters when the user turns to the list.
    m_box->installEventFilter(this);
    connect(m_box, &ComboBox::userModified, this, [this] { edit(); });
    setEditorWidget(m_box);
    return true;
}

bool LinkEditor::eventFilter(QObject* watched, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (watched == m_box && !isSaving()
        && (type == QEvent::FocusIn || type == QEvent::MouseButtonPress || type == QEvent::Enter))
        fillChoices(editorValue());
    return StandardEditor::eventFilter(watched, event);
}

bool LinkEditor::showValue(const QString& value)
{
    bool ok = false;
    (void)ValueConversion::toLinkInfo(value, &ok);
    setChoices({QString()});
    showChoice(value);
    return ok;
}

QString LinkEditor::widgetValue() const
{
    return m_box->currentItemKey();
}

QStringList LinkEditor::candidates() const
{
    QStringList ids;
    DesignerObject* object = property() ? property()->parentObject() : nullptr;
    if (const DesignerObject* scope = scopeObject(object, scopeType()))
        collectIds(*scope, filterTypes(), object, ids);
    return ids;
}

bool LinkEditor::isCandidate(const QString& id) const
{
    DesignerObject* object = property() ? property()->parentObject() : nullptr;
    DesignerObject* scope = scopeObject(object, scopeType());
    const IdRegistry* ids = scope ? scope->ownIdScope() : nullptr;
    const DesignerObject* found = ids ? ids->find(id) : nullptr;
    const QStringList filter = filterTypes();
    return found && found != object && (filter.isEmpty() || filter.contains(found->idInfo().filterType()));
}

void LinkEditor::choicesReplaced() {}

Project* LinkEditor::project() const
{
    return property() ? Project::parentProject(property()->parentObject()) : nullptr;
}

QString LinkEditor::scopeType() const
{
    const auto* link = dynamic_cast<const LinkProperty*>(property().data());
    return parameter("scopeType", link ? link->value().scopeType() : QString()).toString();
}

QStringList LinkEditor::filterTypes() const
{
    const auto* link = dynamic_cast<const LinkProperty*>(property().data());
    return parameter("filterType", link ? link->value().filterType() : QStringList()).toStringList();
}

void LinkEditor::fillChoices(const QString& value)
{
    setChoices(QStringList(QString()) + candidates());
    showChoice(value);
}

void LinkEditor::setChoices(const QStringList& choices)
{
    if (choices == m_choices)
        return;
    const QSignalBlocker silent(m_box);
    m_choices = choices;
    m_box->clear();
    for (const QString& id : choices)
        m_box->addKeyedItem(id, choiceText(id));
    choicesReplaced();
}

void LinkEditor::showChoice(const QString& value)
{
    if (!m_choices.contains(value))
        setChoices(QStringList(m_choices) << value);
    m_box->setCurrentItemKey(value);
    const int index = m_box->currentIndex();
    if (index >= 0)
        m_box->setItemText(index, choiceText(value));
    m_box->setMixed(isMixed());
}

QString LinkEditor::choiceText(const QString& id) const
{
    if (id.isEmpty())
        return LocalizationHelper::coreString(QStringLiteral("(none)"));
    return isCandidate(id) ? id : LocalizationHelper::coreString(QStringLiteral("%1 (missing)")).arg(id);
}

} // namespace Korvex::Meridane::Designer
