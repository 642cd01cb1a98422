#pragma once

#include "host/core/plugins/IDesignerFactory.h"

namespace Korvex::Meridane::Designer::Test {

/// Serves the tests' own classes: PointElement and its item.
class CanvasTestFactory : public IDesignerFactory
{
public:
    QStringList dataObjectClassNames() const override;
    QStringList graphicsItemClassNames() const override;
    QStringList propertyEditorClassNames() const override;
    QStringList propertyClassNames() const override;
    QStringList otherClassNames() const override;
    DesignerObject* createDataObject(const QString& className, QObject* parent) override;
    GraphicsItem* createGraphicsItem(const QString& className, DesignerObject* dataObject) override;
    PropertyEditor* createPropertyEditor(const QString& className, QWidget* parent) override;
    DesignerProperty* createProperty(const QString& className, DesignerObject* parent) override;
    IDesignerObject* createOther(const QString& className) override;
};

} // namespace Korvex::Meridane::Designer::Test
