#include "host/core/objects/DesignerObject.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/commands/ChangeRecording.h"
#include "host/core/commands/ChangeScopes.h"
#include "host/core/objects/IdRegistry.h"
#include "host/core/objects/ObjectContainer.h"
#include "host/core/objects/QmlIdentifier.h"
#include "host/core/project/Project.h"
#include "host/core/properties/LinkProperty.h"
#include "host/core/properties/ObjectListProperty.h"

#include "host/common/LocalizationHelper.h"

#include <QScopeGuard>

#include <algorithm>

namespace Korvex::Meridane::Designer {

using Common::LocalizationHelper;

DesignerObject::DesignerObject(QObject* parent)
    : QObject(parent)
{}

DesignerObject::~DesignerObject() = default;

QString DesignerObject::className() const
{
    return QStringLiteral("DesignerObject");
}

QStringList DesignerObject::classNames() const
{
    return {QStringLiteral("DesignerObject")};
}

bool DesignerObject::initialize()
{
    if (!initializeProperties())
        return false;
    for (const auto& property : std::as_const(m_properties))
        property->rememberDefault();
    return true;
}

QString DesignerObject::displayName() const
{
    return className();
}

QString DesignerObject::qmlName() const
{
    return className();
}

QString DesignerObject::toQml(int indent) const
{
    const QString tabs = getTabs(indent);
    QString qml = tabs + qmlName() + QStringLiteral(" {\n");
    // The root of a file needs no id: it would only compete with those of the elements in it.
    if (!m_idName.isEmpty() && !ownIdScope())
        qml += getTabs(indent + 1) + QStringLiteral("id: ") + m_idName + QLatin1Char('\n');
    const auto append = [&qml](const QString& lines) {
        if (!lines.isEmpty())
            qml += lines + QLatin1Char('\n');
    };
    for (const auto& property : m_properties) {
        if (property->hasFlag(Exported))
            append(property->toQml(indent + 1));
    }
    append(onCompletedQml(indent + 1));
    return qml + tabs + QLatin1Char('}');
}

QString DesignerObject::onCompletedQml(int) const
{
    return {};
}

void DesignerObject::afterListPropertyChanged() {}

bool DesignerObject::initializeProperties()
{
    return true;
}

bool DesignerObject::beforePropertyChanged(const DesignerProperty*, const QString&)
{
    return true;
}

bool DesignerObject::beforeObjectPropertyChanged(const DesignerProperty*, const DesignerObject*)
{
    return true;
}

bool DesignerObject::beforeListItemAdded(const DesignerProperty*, const DesignerObject*)
{
    return true;
}

bool DesignerObject::beforeListItemRemoved(const DesignerProperty*, const DesignerObject*)
{
    return true;
}

void DesignerObject::afterPropertyChanged(const DesignerProperty*, const QString&) {}

void DesignerObject::afterObjectPropertyChanged(const DesignerProperty*, const DesignerObject*) {}

void DesignerObject::afterListItemAdded(const DesignerProperty*, const DesignerObject*) {}

void DesignerObject::afterListItemRemoved(const DesignerProperty*, const DesignerObject*) {}

QList<QSharedPointer<DesignerProperty>> DesignerObject::getDependencyProperties() const
{
    return {};
}

QSharedPointer<DesignerProperty> DesignerObject::getProperty(const QString& id) const
{
    for (const auto& property : m_properties) {
        if (property->id() == id)
            return property;
    }
    return {};
}

bool DesignerObject::changePropertyValue(const QSharedPointer<DesignerProperty>& property, const QString& valueString,
                                         QString* message)
{
    QString unasked;
    QString& reason = message ? *message : unasked;
    reason.clear();
    if (!property || property->parentObject() != this || ValueRestoreScope::isActive())
        return false;

    const QSharedPointer<DesignerProperty> held = property;
    const NotificationScope observersWait;
    if (!beforePropertyChanged(held.data(), valueString))
        return false;
    const QString before = held->valueString();
    if (!storeValue(*held, valueString, reason))
        return false;
    const QString after = held->valueString();
    if (after != before) {
        if (auto* recording = ChangeRecording::current())
            recording->record(held, before, after);
        NotificationScope::announce(this, held);
    }

    // A value that does not convert is inert, and a reaction that writes its own property does not run again.
    if (held->isConverted() && !m_reacting.contains(held.data())) {
        m_reacting.append(held.data());
        const auto done = qScopeGuard([this, &held] { m_reacting.removeOne(held.data()); });
        afterPropertyChanged(held.data(), before);
        if (const auto* link = dynamic_cast<const LinkProperty*>(held.data()))
            afterObjectPropertyChanged(link, link->linkedObject());
    }
    if (m_graphicsItem)
        m_graphicsItem->updateGraphicsItem(held);
    return true;
}

bool DesignerObject::storeValue(DesignerProperty& property, const QString& valueString, QString& message)
{
    const QString before = property.valueString();
    if (!property.convertToValue(valueString)) {
        message = LocalizationHelper::coreString(QStringLiteral("\"%1\" is not a valid value for \"%2\"."))
                      .arg(valueString, property.name());
        return false;
    }
    bool accepted = property.validateValue(message) && property.validateObjectValue(message);
    if (accepted) {
        if (const auto* link = dynamic_cast<const LinkProperty*>(&property))
            accepted = beforeObjectPropertyChanged(link, link->linkedObject());
    }
    if (!accepted)
        property.fill(before);
    return accepted;
}

void DesignerObject::restorePropertyValue(const QSharedPointer<DesignerProperty>& property, const QString& valueString)
{
    if (!property || property->parentObject() != this)
        return;
    const QSharedPointer<DesignerProperty> held = property;
    const NotificationScope observersWait;
    const ValueRestoreScope restoring;
    if (held->valueString() != valueString) {
        held->fill(valueString);
        NotificationScope::announce(this, held);
    }
    // Also when the value stands already: during a gesture the item alone has moved away from it.
    if (m_graphicsItem)
        m_graphicsItem->updateGraphicsItem(held);
}

bool DesignerObject::setIdName(const QString& id)
{
    if (id == m_idName)
        return true;
    if (!isQmlIdentifier(id))
        return false;
    if (IdRegistry* scope = idScope()) {
        if (!scope->insert(id, this))
            return false;
        scope->remove(m_idName);
    }
    const QString old = std::exchange(m_idName, id);
    if (m_graphicsItem)
        m_graphicsItem->nameChanged();
    Q_EMIT idNameChanged(old);
    if (Project* project = Project::parentProject(this))
        Q_EMIT project->objectRenamed(this, old);
    return true;
}

bool DesignerObject::setIdInfo(const IdentifierInfo& info)
{
    if (!isQmlIdentifier(info.base()))
        return false;
    m_idInfo = info;
    return true;
}

bool DesignerObject::setEditorMark(const QString& mark, const QString& value)
{
    if (!m_editorMarkKeys.contains(mark) || m_editorMarks.value(mark) == value)
        return false;
    if (value.isEmpty())
        m_editorMarks.remove(mark);
    else
        m_editorMarks.insert(mark, value);
    if (Project* project = Project::parentProject(this))
        Q_EMIT project->objectMarked(this, mark);
    return true;
}

IdRegistry* DesignerObject::idScope() const
{
    for (DesignerObject* object = parentObject(); object; object = object->parentObject()) {
        if (IdRegistry* scope = object->ownIdScope())
            return scope;
    }
    return nullptr;
}

IdRegistry* DesignerObject::ownIdScope() const
{
    return m_container ? m_container->containedIds() : nullptr;
}

QString DesignerObject::getTabs(int indent)
{
    return QString(std::max(indent, 0), QLatin1Char('\t'));
}

ObjectListProperty* DesignerObject::childList() const
{
    return m_container ? m_container->containedObjects() : nullptr;
}

DesignerObject* DesignerObject::parentObject() const
{
    return qobject_cast<DesignerObject*>(parent());
}

void DesignerObject::addProperty(const QSharedPointer<DesignerProperty>& property)
{
    const auto place =
        std::upper_bound(m_properties.begin(), m_properties.end(), property,
                         [](const auto& left, const auto& right) { return left->rank() < right->rank(); });
    m_properties.insert(place, property);
}

} // namespace Korvex::Meridane::Designer
