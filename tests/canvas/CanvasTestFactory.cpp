#include "tests/canvas/CanvasTestFactory.h"

#include "tests/canvas/PointItem.h"

namespace Korvex::Meridane::Designer::Test {

QStringList CanvasTestFactory::dataObjectClassNames() const
{
    return {QStringLiteral("PointElement")};
}

QStringList CanvasTestFactory::graphicsItemClassNames() const
{
    return {QStringLiteral("PointItem")};
}

QStringList CanvasTestFactory::propertyEditorClassNames() const
{
    return {};
}

QStringList CanvasTestFactory::propertyClassNames() const
{
    return {};
}

QStringList CanvasTestFactory::otherClassNames() const
{
    return {};
}

DesignerObject* CanvasTestFactory::createDataObject(const QString& className, QObject* parent)
{
    return className == QLatin1String("PointElement") ? new PointElement(parent) : nullptr;
}

GraphicsItem* CanvasTestFactory::createGraphicsItem(const QString& className, DesignerObject* dataObject)
{
    return className == QLatin1String("PointItem") ? new PointItem(dataObject) : nullptr;
}

PropertyEditor* CanvasTestFactory::createPropertyEditor(const QString&, QWidget*)
{
    return nullptr;
}

DesignerProperty* CanvasTestFactory::createProperty(const QString&, DesignerObject*)
{
    return nullptr;
}

IDesignerObject* CanvasTestFactory::createOther(const QString&)
{
    return nullptr;
}

} // namespace Korvex::Meridane::Designer::Test
