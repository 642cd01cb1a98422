#include "plugin/VisualElements.h"

#include "shapes/Rectangle.h"

namespace Korvex::Meridane::Designer {

// Names are compared in the order of the chains below; the lists have an order of their own. A class is added as a row
// of its chain and of its list.

VisualElements::VisualElements() = default;

VisualElements::~VisualElements() = default;

QStringList VisualElements::dataObjectClassNames() const
{
    return {QStringLiteral("Rectangle")};
}

QStringList VisualElements::graphicsItemClassNames() const
{
    return {};
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
    return nullptr;
}

GraphicsItem* VisualElements::createGraphicsItem(const QString&, DesignerObject*)
{
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
