#include "plugin/VisualElements.h"

#include "shapes/Ellipse.h"
#include "shapes/GraphicsEllipse.h"
#include "shapes/GraphicsPolygon.h"
#include "shapes/Polygon.h"
#include "shapes/Rectangle.h"

namespace Korvex::Meridane::Designer {

// Names are compared in the order of the chains below; the lists have an order of their own. A class is added as a row
// of its chain and of its list.

VisualElements::VisualElements() = default;

VisualElements::~VisualElements() = default;

QStringList VisualElements::dataObjectClassNames() const
{
    return {QStringLiteral("Rectangle"), QStringLiteral("Ellipse"), QStringLiteral("Polygon")};
}

QStringList VisualElements::graphicsItemClassNames() const
{
    return {QStringLiteral("GraphicsEllipse"), QStringLiteral("GraphicsPolygon")};
}

QStringList VisualElements::propertyEditorClassNames() const
{
    return {};
}

QStringList VisualElements::propertyClassNames() const
{
    return {};
}

QStringList VisualElements::otherClassNames() const
{
    return {};
}

DesignerObject* VisualElements::createDataObject(const QString& className, QObject* parent)
{
    if (className == QLatin1String("Rectangle"))
        return new Rectangle(parent);
    if (className == QLatin1String("Ellipse"))
        return new Ellipse(parent);
    if (className == QLatin1String("Polygon"))
        return new Polygon(parent);
    return nullptr;
}

GraphicsItem* VisualElements::createGraphicsItem(const QString& className, DesignerObject* dataObject)
{
    if (className == QLatin1String("GraphicsEllipse"))
        return new GraphicsEllipse(dataObject);
    if (className == QLatin1String("GraphicsPolygon"))
        return new GraphicsPolygon(dataObject);
    return nullptr;
}

PropertyEditor* VisualElements::createPropertyEditor(const QString&, QWidget*)
{
    return nullptr;
}

DesignerProperty* VisualElements::createProperty(const QString&, DesignerObject*)
{
    return nullptr;
}

IDesignerObject* VisualElements::createOther(const QString&)
{
    return nullptr;
}

} // namespace Korvex::Meridane::Designer
