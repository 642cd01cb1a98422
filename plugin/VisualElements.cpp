#include "plugin/VisualElements.h"

#include "lines/FocusRealEditor.h"
#include "lines/GraphicsIrregularPolygon.h"
#include "lines/GraphicsLine.h"
#include "lines/IrregularPolygon.h"
#include "lines/Line.h"
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
    return {QStringLiteral("Rectangle"), QStringLiteral("Ellipse"), QStringLiteral("Line"), QStringLiteral("Polygon"),
            QStringLiteral("IrregularPolygon")};
}

QStringList VisualElements::graphicsItemClassNames() const
{
    return {QStringLiteral("GraphicsEllipse"), QStringLiteral("GraphicsLine"), QStringLiteral("GraphicsPolygon"),
            QStringLiteral("GraphicsIrregularPolygon")};
}

QStringList VisualElements::propertyEditorClassNames() const
{
    return {QStringLiteral("FocusRealEditor")};
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
    if (className == QLatin1String("Line"))
        return new Line(parent);
    if (className == QLatin1String("Polygon"))
        return new Polygon(parent);
    if (className == QLatin1String("IrregularPolygon"))
        return new IrregularPolygon(parent);
    return nullptr;
}

GraphicsItem* VisualElements::createGraphicsItem(const QString& className, DesignerObject* dataObject)
{
    if (className == QLatin1String("GraphicsEllipse"))
        return new GraphicsEllipse(dataObject);
    if (className == QLatin1String("GraphicsLine"))
        return new GraphicsLine(dataObject);
    if (className == QLatin1String("GraphicsPolygon"))
        return new GraphicsPolygon(dataObject);
    if (className == QLatin1String("GraphicsIrregularPolygon"))
        return new GraphicsIrregularPolygon(dataObject);
    return nullptr;
}

PropertyEditor* VisualElements::createPropertyEditor(const QString& className, QWidget* parent)
{
    if (className == QLatin1String("FocusRealEditor"))
        return new FocusRealEditor(parent);
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
