#include "cli/ClassDescription.h"

#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/RuntimeProperty.h"
#include "host/core/values/ValueConversion.h"

#include <QGraphicsItem>
#include <QJsonArray>
#include <QPoint>
#include <QSize>

#include <memory>

namespace Korvex::Meridane::Designer {

namespace {

/// Sizes and points, for which JSON has no form, become their value strings.
QJsonValue parameterValue(const QVariant& value)
{
    switch (value.metaType().id()) {
    case QMetaType::QSize:
    case QMetaType::QSizeF:
        return ValueConversion::toString(value.toSizeF());
    case QMetaType::QPoint:
    case QMetaType::QPointF:
        return ValueConversion::toString(value.toPointF());
    default:
        return QJsonValue::fromVariant(value);
    }
}

QJsonObject describeProperty(const DesignerProperty& property)
{
    QJsonObject parameters;
    const QMap<QString, QVariant>& values = property.editorParameters();
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        parameters.insert(it.key(), parameterValue(it.value()));
    return {{QStringLiteral("id"), property.id()},
            {QStringLiteral("label"), property.name()},
            {QStringLiteral("type"), property.className()},
            {QStringLiteral("default"), property.defaultValueString()},
            {QStringLiteral("flags"), static_cast<int>(property.flags())},
            {QStringLiteral("rank"), property.rank()},
            {QStringLiteral("editor"), property.editor()},
            {QStringLiteral("parameters"), parameters},
            {QStringLiteral("allowInvalidValue"), property.allowInvalidValue()},
            {QStringLiteral("validator"), property.hasValidator()},
            {QStringLiteral("qmlCreator"), property.hasQmlCreator()}};
}

QJsonObject describeRuntimeProperty(const RuntimeProperty& property)
{
    return {{QStringLiteral("name"), property.name()},
            {QStringLiteral("label"), property.label()},
            {QStringLiteral("type"), static_cast<int>(property.type())},
            {QStringLiteral("flag"), property.isWritable()}};
}

QString graphicsItemName(DesignerObject& object)
{
    GraphicsItem* item = object.createGraphicsItem();
    if (!item)
        return {};
    QString name = item->className();
    // Both parts of an item are one object, and without a scene it is ours.
    delete item->graphic();
    return name;
}

} // namespace

QJsonObject ClassDescription::describe(const QString& className)
{
    DesignerFactory* factory = DesignerFactory::instance();
    if (!factory->hasDataObject(className))
        return {};
    const std::unique_ptr<DesignerObject> object(factory->createDataObject(className, nullptr));
    if (!object)
        return {};

    QJsonArray properties;
    for (const QSharedPointer<DesignerProperty>& property : object->properties())
        properties.append(describeProperty(*property));
    QJsonArray runtimeProperties;
    if (const auto* element = qobject_cast<const VisualElement*>(object.get())) {
        const QList<RuntimeProperty> declared = element->runtimeProperties();
        for (const RuntimeProperty& property : declared)
            runtimeProperties.append(describeRuntimeProperty(property));
    }
    return {{QStringLiteral("className"), object->className()},
            {QStringLiteral("displayName"), object->displayName()},
            {QStringLiteral("qmlName"), object->qmlName()},
            {QStringLiteral("graphicsItem"), graphicsItemName(*object)},
            {QStringLiteral("plugin"), factory->pluginName(className)},
            {QStringLiteral("properties"), properties},
            {QStringLiteral("runtimeProperties"), runtimeProperties}};
}

} // namespace Korvex::Meridane::Designer
