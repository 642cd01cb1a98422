#pragma once

#include "host/core/plugins/IDesignerFactory.h"

namespace Korvex::Meridane::Designer {

/// The host's own classes, served like a plug-in's.
class CoreFactory : public IDesignerFactory
{
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

} // namespace Korvex::Meridane::Designer
