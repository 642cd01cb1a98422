#pragma once

#include "host/core/plugins/IDesignerFactory.h"

#include <QObject>

namespace Example {

using namespace Korvex::Meridane::Designer;

/// The root object of the plug-in: makes badges and their canvas items by class name.
class BadgePlugin : public QObject, public IDesignerFactory
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "korvex.meridane.designer.IDesignerFactory/1.0")
    Q_INTERFACES(Korvex::Meridane::Designer::IDesignerFactory)

public:
    [[nodiscard]] QStringList dataObjectClassNames() const override;
    [[nodiscard]] QStringList graphicsItemClassNames() const override;
    [[nodiscard]] QStringList propertyEditorClassNames() const override;
    [[nodiscard]] QStringList propertyClassNames() const override;
    [[nodiscard]] QStringList otherClassNames() const override;
    DesignerObject* createDataObject(const QString& className, QObject* parent) override;
    GraphicsItem* createGraphicsItem(const QString& className, DesignerObject* dataObject) override;
    PropertyEditor* createPropertyEditor(const QString& className, QWidget* parent) override;
    DesignerProperty* createProperty(const QString& className, DesignerObject* parent) override;
    IDesignerObject* createOther(const QString& className) override;
};

} // namespace Example
