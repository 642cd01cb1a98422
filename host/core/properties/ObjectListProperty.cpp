#include "host/core/properties/ObjectListProperty.h"

#include "host/core/objects/DesignerObject.h"

#include "host/common/LocalizationHelper.h"

#include <QSet>

namespace Korvex::Meridane::Designer {

ObjectListProperty::ObjectListProperty(DesignerObject* parent, const QString& id, const QString& name)
    : DesignerProperty(parent, id, name)
{}

ObjectListProperty::~ObjectListProperty() = default;

QString ObjectListProperty::className() const
{
    return QStringLiteral("ObjectListProperty");
}

QStringList ObjectListProperty::classNames() const
{
    return DesignerProperty::classNames() << QStringLiteral("ObjectListProperty");
}

bool ObjectListProperty::convertToValue(const QString& valueString)
{
    return valueString == convertToValueString();
}

QString ObjectListProperty::convertToValueString() const
{
    QStringList ids;
    ids.reserve(m_items.size());
    for (const DesignerObject* item : m_items)
        ids.append(item->getIdName());
    return ids.join(QLatin1String(", "));
}

QString ObjectListProperty::convertToQml(int indent) const
{
    QString qml;
    for (const DesignerObject* item : m_items) {
        const QString lines = item->toQml(indent);
        if (lines.isEmpty())
            continue;
        // An empty line sets each object apart from what stands before it.
        qml += (qml.isEmpty() ? QLatin1String("\n") : QLatin1String("\n\n")) + lines;
    }
    return qml;
}

bool ObjectListProperty::valueIsEqual(const QString& valueString) const
{
    return valueString == convertToValueString();
}

bool ObjectListProperty::validateListItems(QString& message) const
{
    message.clear();
    QSet<QString> ids;
    for (const DesignerObject* item : m_items) {
        if (ids.contains(item->getIdName())) {
            message = Common::LocalizationHelper::coreString(QStringLiteral("The id \"%1\" is used more than once."))
                          .arg(item->getIdName());
            return false;
        }
        ids.insert(item->getIdName());
    }
    return true;
}

} // namespace Korvex::Meridane::Designer
