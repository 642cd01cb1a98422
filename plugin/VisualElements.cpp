#include "plugin/VisualElements.h"

#include "gradients/ConicalGradientElement.h"
#include "gradients/GradientStopsEditor.h"
#include "gradients/GraphicsConicalGradient.h"
#include "gradients/GraphicsLinearGradient.h"
#include "gradients/GraphicsPathItem.h"
#include "gradients/GraphicsRadialGradient.h"
#include "gradients/LinearGradientElement.h"
#include "gradients/PathElement.h"
#include "gradients/RadialGradientElement.h"
#include "images/GraphicsImage.h"
#include "images/Image.h"
#include "images/ImageSizeEditor.h"
#include "lines/FocusRealEditor.h"
#include "lines/GraphicsIrregularPolygon.h"
#include "lines/GraphicsLine.h"
#include "lines/IrregularPolygon.h"
#include "lines/Line.h"
#include "lines/PointListEditor.h"
#include "shapes/Ellipse.h"
#include "shapes/GraphicsEllipse.h"
#include "shapes/GraphicsPolygon.h"
#include "shapes/Polygon.h"
#include "shapes/Rectangle.h"
#include "text/GraphicsTextBox.h"
#include "text/TextAlignmentEditor.h"
#include "text/TextBox.h"
#include "text/TextEditPropertyEditor.h"
#include "text/TextStyleEditor.h"

namespace Korvex::Meridane::Designer {

// Names are compared in the order of the chains below; the lists have an order of their own. A class is added as a row
// of its chain and of its list.

VisualElements::VisualElements() = default;

VisualElements::~VisualElements() = default;

QStringList VisualElements::dataObjectClassNames() const
{
    return {QStringLiteral("Rectangle"),
            QStringLiteral("Ellipse"),
            QStringLiteral("Image"),
            QStringLiteral("Line"),
            QStringLiteral("Polygon"),
            QStringLiteral("IrregularPolygon"),
            QStringLiteral("TextBox"),
            QStringLiteral("PathElement"),
            QStringLiteral("LinearGradientElement"),
            QStringLiteral("RadialGradientElement"),
            QStringLiteral("ConicalGradientElement")};
}

QStringList VisualElements::graphicsItemClassNames() const
{
    return {QStringLiteral("GraphicsEllipse"),
            QStringLiteral("GraphicsImage"),
            QStringLiteral("GraphicsLine"),
            QStringLiteral("GraphicsPolygon"),
            QStringLiteral("GraphicsIrregularPolygon"),
            QStringLiteral("GraphicsTextBox"),
            QStringLiteral("GraphicsPathItem"),
            QStringLiteral("GraphicsLinearGradient"),
            QStringLiteral("GraphicsRadialGradient"),
            QStringLiteral("GraphicsConicalGradient")};
}

QStringList VisualElements::propertyEditorClassNames() const
{
    return {QStringLiteral("ImageSizeEditor"),        QStringLiteral("TextAlignmentEditor"),
            QStringLiteral("PointListEditor"),        QStringLiteral("TextStyleEditor"),
            QStringLiteral("TextEditPropertyEditor"), QStringLiteral("GradientStopsEditor"),
            QStringLiteral("FocusRealEditor")};
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
    if (className == QLatin1String("Image"))
        return new Image(parent);
    if (className == QLatin1String("Line"))
        return new Line(parent);
    if (className == QLatin1String("Polygon"))
        return new Polygon(parent);
    if (className == QLatin1String("IrregularPolygon"))
        return new IrregularPolygon(parent);
    if (className == QLatin1String("TextBox"))
        return new TextBox(parent);
    if (className == QLatin1String("PathElement"))
        return new PathElement(parent);
    if (className == QLatin1String("LinearGradientElement"))
        return new LinearGradientElement(parent);
    if (className == QLatin1String("RadialGradientElement"))
        return new RadialGradientElement(parent);
    if (className == QLatin1String("ConicalGradientElement"))
        return new ConicalGradientElement(parent);
    return nullptr;
}

GraphicsItem* VisualElements::createGraphicsItem(const QString& className, DesignerObject* dataObject)
{
    if (className == QLatin1String("GraphicsEllipse"))
        return new GraphicsEllipse(dataObject);
    if (className == QLatin1String("GraphicsImage"))
        return new GraphicsImage(dataObject);
    if (className == QLatin1String("GraphicsLine"))
        return new GraphicsLine(dataObject);
    if (className == QLatin1String("GraphicsPolygon"))
        return new GraphicsPolygon(dataObject);
    if (className == QLatin1String("GraphicsIrregularPolygon"))
        return new GraphicsIrregularPolygon(dataObject);
    if (className == QLatin1String("GraphicsTextBox"))
        return new GraphicsTextBox(dataObject);
    if (className == QLatin1String("GraphicsLinearGradient"))
        return new GraphicsLinearGradient(dataObject);
    if (className == QLatin1String("GraphicsRadialGradient"))
        return new GraphicsRadialGradient(dataObject);
    if (className == QLatin1String("GraphicsConicalGradient"))
        return new GraphicsConicalGradient(dataObject);
    if (className == QLatin1String("GraphicsPathItem"))
        return new GraphicsPathItem(dataObject);
    return nullptr;
}

PropertyEditor* VisualElements::createPropertyEditor(const QString& className, QWidget* parent)
{
    if (className == QLatin1String("ImageSizeEditor"))
        return new ImageSizeEditor(parent);
    if (className == QLatin1String("TextAlignmentEditor"))
        return new TextAlignmentEditor(parent);
    if (className == QLatin1String("PointListEditor"))
        return new PointListEditor(parent);
    if (className == QLatin1String("TextStyleEditor"))
        return new TextStyleEditor(parent);
    if (className == QLatin1String("TextEditPropertyEditor"))
        return new TextEditPropertyEditor(parent);
    if (className == QLatin1String("GradientStopsEditor"))
        return new GradientStopsEditor(parent);
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
