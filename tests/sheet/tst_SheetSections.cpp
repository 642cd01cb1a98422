#include "host/core/objects/DesignerObject.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/DefaultValues.h"
#include "host/core/sheet/SheetSections.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

#include <QtTest>

#include <memory>

using namespace Korvex::Meridane::Designer;

/// Where the rows of the elements stand, and that new elements are at their defaults.
class tst_SheetSections : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString message;
        QVERIFY2(DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message),
                 qPrintable(message));
    }

    void everyElementHasItsSections_data()
    {
        QTest::addColumn<QStringList>("sections");
        const auto row = [](const char* className, const char* sections) {
            QTest::newRow(className) << QString::fromLatin1(sections).split(QLatin1Char(' '));
        };
        row("Rectangle", "geometry appearance");
        row("Ellipse", "geometry appearance");
        row("Image", "geometry image");
        row("Line", "geometry appearance");
        row("Polygon", "geometry appearance");
        row("IrregularPolygon", "geometry points appearance");
        row("TextBox", "geometry text");
        row("PathElement", "geometry appearance");
        row("LinearGradientElement", "geometry gradient");
        row("RadialGradientElement", "geometry gradient");
        row("ConicalGradientElement", "geometry gradient");
        row("Screen", "general geometry appearance");
    }

    void everyElementHasItsSections()
    {
        QFETCH(QStringList, sections);
        const std::unique_ptr<DesignerObject> object(
            DesignerFactory::instance()->createDataObject(QString::fromLatin1(QTest::currentDataTag()), nullptr));
        QVERIFY(object);
        QStringList found;
        for (const auto& property : object->properties()) {
            if (property->hasFlag(Shown) && !found.contains(SheetSections::keyOf(*property)))
                found.append(SheetSections::keyOf(*property));
        }
        QCOMPARE(found, sections);
    }

    void newElementsAreAtTheirDefaults_data()
    {
        QTest::addColumn<QString>("className");
        const QStringList classes = DesignerFactory::instance()->elementClassNames();
        QVERIFY(classes.size() >= 11);
        for (const QString& className : classes)
            QTest::newRow(qPrintable(className)) << className;
    }

    void newElementsAreAtTheirDefaults()
    {
        auto project = std::make_unique<Project>();
        QVERIFY(project->initialize());
        EditSession session(std::move(project));
        Screen* screen = nullptr;
        session.addScreen({}, {}, &screen);
        DesignerObject* element = nullptr;
        QFETCH(QString, className);
        session.addElement(className, screen, {}, {}, &element);
        QVERIFY(element);
        for (const auto& property : element->properties())
            QVERIFY2(!property->hasFlag(Shown) || hasDefaultValue(*property), qPrintable(property->id()));
    }

    void theTitlesAreForTheUser()
    {
        const std::unique_ptr<DesignerObject> object(
            DesignerFactory::instance()->createDataObject(QStringLiteral("Rectangle"), nullptr));
        QCOMPARE(SheetSections::title(QStringLiteral("geometry"), *object, true), QStringLiteral("Geometry"));
        QCOMPARE(SheetSections::title(QStringLiteral("own"), *object, true), QStringLiteral("Rectangle"));
        QCOMPARE(SheetSections::title(QStringLiteral("own"), *object, false), QStringLiteral("Other"));
    }
};

QTEST_MAIN(tst_SheetSections)
#include "tst_SheetSections.moc"
