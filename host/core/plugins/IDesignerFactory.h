#pragma once

#include <QStringList>
#include <QtPlugin>

class QObject;
class QWidget;

namespace Korvex::Meridane::Designer {

class DesignerObject;
class DesignerProperty;
class GraphicsItem;
class IDesignerObject;
class PropertyEditor;

/// The factory of a plug-in: which class names it serves, and the objects of those names. A create operation gives null
/// for a name it does not know; what it makes belongs to the caller. The order of the operations is the contract.
class IDesignerFactory
{
public:
    virtual ~IDesignerFactory() = default;

    [[nodiscard]] virtual QStringList dataObjectClassNames() const = 0;
    [[nodiscard]] virtual QStringList graphicsItemClassNames() const = 0;
    [[nodiscard]] virtual QStringList propertyEditorClassNames() const = 0;
    [[nodiscard]] virtual QStringList propertyClassNames() const = 0;
    [[nodiscard]] virtual QStringList otherClassNames() const = 0;
    virtual DesignerObject* createDataObject(const QString& className, QObject* parent) = 0;
    virtual GraphicsItem* createGraphicsItem(const QString& className, DesignerObject* dataObject) = 0;
    virtual PropertyEditor* createPropertyEditor(const QString& className, QWidget* parent) = 0;
    virtual DesignerProperty* createProperty(const QString& className, DesignerObject* parent) = 0;
    virtual IDesignerObject* createOther(const QString& className) = 0;
};

} // namespace Korvex::Meridane::Designer

Q_DECLARE_INTERFACE(Korvex::Meridane::Designer::IDesignerFactory, "korvex.meridane.designer.IDesignerFactory/1.0")
