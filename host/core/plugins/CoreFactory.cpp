#include "host/core/plugins/CoreFactory.h"

#include "host/core/canvas/GraphicsGroup.h"
#include "host/core/canvas/GraphicsRectangle.h"
#include "host/core/canvas/GraphicsScreen.h"
#include "host/core/editors/StandardEditors.h"
#include "host/core/objects/Group.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/UnknownElement.h"

namespace Korvex::Meridane::Designer {

QStringList CoreFactory::dataObjectClassNames() const
{
    return {QStringLiteral("Screen"), QStringLiteral("Group"), QStringLiteral("UnknownElement")};
}

QStringList CoreFactory::graphicsItemClassNames() const
{
    return {QStringLiteral("GraphicsRectangle"), QStringLiteral("GraphicsScreen"), QStringLiteral("GraphicsGroup")};
}

QStringList CoreFactory::propertyEditorClassNames() const
{
    return standardEditorClassNames();
}

QStringList CoreFactory::propertyClassNames() const
{
    return {};
}

QStringList CoreFactory::otherClassNames() const
{
    return {};
}

DesignerObject* CoreFactory::createDataObject(const QString& className, QObject* parent)
{
    if (className == QLatin1String("Screen"))
        return new Screen(parent);
    if (className == QLatin1String("Group"))
        return new Group(parent);
    if (className == QLatin1String("UnknownElement"))
        return new UnknownElement(parent);
    return nullptr;
}

GraphicsItem* CoreFactory::createGraphicsItem(const QString& className, DesignerObject* dataObject)
{
    if (className == QLatin1String("GraphicsRectangle"))
        return new GraphicsRectangle(dataObject);
    if (className == QLatin1String("GraphicsScreen"))
        return new GraphicsScreen(dataObject);
    if (className == QLatin1String("GraphicsGroup"))
        return new GraphicsGroup(dataObject);
    return nullptr;
}

PropertyEditor* CoreFactory::createPropertyEditor(const QString& className, QWidget* parent)
{
    return createStandardEditor(className, parent);
}

DesignerProperty* CoreFactory::createProperty(const QString&, DesignerObject*)
{
    return nullptr;
}

IDesignerObject* CoreFactory::createOther(const QString&)
{
    return nullptr;
}

} // namespace Korvex::Meridane::Designer
