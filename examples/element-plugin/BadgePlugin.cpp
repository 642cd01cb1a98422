#include "examples/element-plugin/BadgePlugin.h"

#include "examples/element-plugin/Badge.h"
#include "examples/element-plugin/GraphicsBadge.h"
#include "host/core/plugins/PluginVerification.h"

MERIDANE_EXPORT_VERIFICATION

namespace Example {

QStringList BadgePlugin::dataObjectClassNames() const
{
    return {QStringLiteral("Badge")};
}

QStringList BadgePlugin::graphicsItemClassNames() const
{
    return {QStringLiteral("GraphicsBadge")};
}

QStringList BadgePlugin::propertyEditorClassNames() const
{
    return {};
}

QStringList BadgePlugin::propertyClassNames() const
{
    return {};
}

QStringList BadgePlugin::otherClassNames() const
{
    return {};
}

DesignerObject* BadgePlugin::createDataObject(const QString& className, QObject* parent)
{
    return className == QLatin1String("Badge") ? new Badge(parent) : nullptr;
}

GraphicsItem* BadgePlugin::createGraphicsItem(const QString& className, DesignerObject* dataObject)
{
    return className == QLatin1String("GraphicsBadge") ? new GraphicsBadge(dataObject) : nullptr;
}

PropertyEditor* BadgePlugin::createPropertyEditor(const QString&, QWidget*)
{
    return nullptr;
}

DesignerProperty* BadgePlugin::createProperty(const QString&, DesignerObject*)
{
    return nullptr;
}

IDesignerObject* BadgePlugin::createOther(const QString&)
{
    return nullptr;
}

} // namespace Example
