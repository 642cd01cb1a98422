#pragma once

#include "host/core/plugins/IDesignerFactory.h"

#include <QObject>

#ifndef SAMPLE_CLASS
#define SAMPLE_CLASS "SampleElement"
#endif

using Korvex::Meridane::Designer::DesignerObject;
using Korvex::Meridane::Designer::DesignerProperty;
using Korvex::Meridane::Designer::GraphicsItem;
using Korvex::Meridane::Designer::IDesignerFactory;
using Korvex::Meridane::Designer::IDesignerObject;
using Korvex::Meridane::Designer::PropertyEditor;

/// A plug-in that lists one class; each build of it differs from what the loader takes in one point.
class SamplePlugin : public QObject
#ifndef SAMPLE_WITHOUT_FACTORY
    ,
                     public IDesignerFactory
#endif
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "korvex.meridane.designer.IDesignerFactory/1.0")
#ifndef SAMPLE_WITHOUT_FACTORY
    Q_INTERFACES(Korvex::Meridane::Designer::IDesignerFactory)

public:
    QStringList dataObjectClassNames() const override
    {
        return {QStringLiteral(SAMPLE_CLASS)};
    }
    QStringList graphicsItemClassNames() const override
    {
        return {};
    }
    QStringList propertyEditorClassNames() const override
    {
        return {};
    }
    QStringList propertyClassNames() const override
    {
        return {};
    }
    QStringList otherClassNames() const override
    {
        return {};
    }
    DesignerObject* createDataObject(const QString&, QObject*) override
    {
        return nullptr;
    }
    GraphicsItem* createGraphicsItem(const QString&, DesignerObject*) override
    {
        return nullptr;
    }
    PropertyEditor* createPropertyEditor(const QString&, QWidget*) override
    {
        return nullptr;
    }
    DesignerProperty* createProperty(const QString&, DesignerObject*) override
    {
        return nullptr;
    }
    IDesignerObject* createOther(const QString&) override
    {
        return nullptr;
    }
#endif
};
