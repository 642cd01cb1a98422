#pragma once

#include "lines/GraphicsIrregularPolygon.h"
#include "lines/IrregularPolygon.h"
#include "lines/PointListEditor.h"
#include "lines/PointListWidget.h"

#include "host/core/plugins/DesignerFactory.h"
#include "host/core/plugins/IDesignerFactory.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/SpinBox.h"

#include "tests/sheet/SheetFixture.h"

#include <QLabel>
#include <QtTest>

namespace Korvex::Meridane::Designer::Test {

/// Serves the irregular polygon, its canvas item and its point list editor to the host.
class PolygonFactory : public IDesignerFactory
{
public:
    PolygonFactory() { DesignerFactory::instance()->addFactory(this, QStringLiteral("polygons")); }
    ~PolygonFactory() override { DesignerFactory::instance()->removeFactory(this); }

    QStringList dataObjectClassNames() const override { return {QStringLiteral("IrregularPolygon")}; }
    QStringList graphicsItemClassNames() const override { return {QStringLiteral("GraphicsIrregularPolygon")}; }
    QStringList propertyEditorClassNames() const override { return {QStringLiteral("PointListEditor")}; }
    QStringList propertyClassNames() const override { return {}; }
    QStringList otherClassNames() const override { return {}; }
    DesignerObject* createDataObject(const QString&, QObject* parent) override { return new IrregularPolygon(parent); }
    GraphicsItem* createGraphicsItem(const QString&, DesignerObject* object) override
    {
        return new GraphicsIrregularPolygon(object);
    }
    PropertyEditor* createPropertyEditor(const QString&, QWidget* parent) override
    {
        return new PointListEditor(parent);
    }
    DesignerProperty* createProperty(const QString&, DesignerObject*) override { return nullptr; }
    IDesignerObject* createOther(const QString&) override { return nullptr; }
};

/// Irregular polygons on a screen, and the property sheet that edits their points.
class PolygonSheet : private PolygonFactory, public SheetFixture
{
public:
    /// A new polygon with these value strings; the history is empty afterwards.
    IrregularPolygon* add(const QMap<QString, QString>& values = {})
    {
        DesignerObject* object = nullptr;
        session->addElement(QStringLiteral("IrregularPolygon"), screen, {}, values, &object);
        stack()->clear();
        if (!object)
            qFatal("no polygon");
        return qobject_cast<IrregularPolygon*>(object);
    }
    IrregularPolygon* addAndSelect(const QMap<QString, QString>& values = {})
    {
        IrregularPolygon* polygon = add(values);
        select({polygon});
        return polygon;
    }

    [[nodiscard]] PointListEditor* editor() const { return SheetFixture::editor<PointListEditor>("pointList"); }
    [[nodiscard]] PointListWidget* widget() const { return editor()->pointListWidget(); }
    [[nodiscard]] QString notice() const
    {
        for (const QLabel* label : widget()->findChildren<QLabel*>()) {
            if (label->isVisible() && label->objectName().isEmpty())
                return label->text();
        }
        return {};
    }

    static QString value(const DesignerObject* object, const char* id)
    {
        return object->getProperty(QString::fromLatin1(id))->valueString();
    }
    /// Every value string, for comparing whole states.
    static QStringList state(const DesignerObject* object)
    {
        QStringList values;
        for (const auto& property : object->properties())
            values.append(property->id() + QLatin1Char('=') + property->valueString());
        return values;
    }
    static GraphicsIrregularPolygon* item(const DesignerObject* object)
    {
        return dynamic_cast<GraphicsIrregularPolygon*>(object->graphicsItem());
    }
    /// Where the points are on the canvas.
    static QPolygonF onCanvas(const IrregularPolygon* polygon) { return item(polygon)->mapToScene(polygon->polygon()); }
    /// Where the top-left corner of the outline is on the canvas.
    static QPointF cornerOnCanvas(const IrregularPolygon* polygon)
    {
        return item(polygon)->mapToScene(polygon->polygon().boundingRect().topLeft());
    }
};

} // namespace Korvex::Meridane::Designer::Test
