#include "host/core/canvas/EditSession.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/DefaultMark.h"
#include "host/core/sheet/DefaultValues.h"
#include "host/core/sheet/PropertySheet.h"
#include "host/core/values/ValueConversion.h"

#include <QtTest>

#include <rapidcheck.h>

#include <memory>

using namespace Korvex::Meridane::Designer;

namespace {

QString point(int least, int most)
{
    return ValueConversion::toString(QPointF(*rc::gen::inRange(least, most), *rc::gen::inRange(least, most)));
}

QString color()
{
    return ValueConversion::toString(QColor::fromRgba(*rc::gen::arbitrary<QRgb>()));
}

/// Any value of the type of \a property that an element may be given; empty for types that this makes none of.
QString anyValue(const DesignerProperty& property)
{
    const QString type = property.className();
    if (type == QLatin1String("PointProperty"))
        return point(0, 100);
    if (type == QLatin1String("SizeProperty"))
        return ValueConversion::toString(QSizeF(*rc::gen::inRange(1, 400), *rc::gen::inRange(1, 400)));
    if (type == QLatin1String("ColorProperty"))
        return color();
    if (type == QLatin1String("BorderProperty"))
        return QStringLiteral("width: %1; color: %2;").arg(*rc::gen::inRange(0, 30)).arg(color());
    if (type == QLatin1String("RotationProperty")) {
        return QStringLiteral("angle: %1; fixedPoint: %2;")
            .arg(*rc::gen::inRange(0, 360))
            .arg(*rc::gen::element(QStringLiteral("Center"), QStringLiteral("TopLeft"), QStringLiteral("Bottom")));
    }
    if (type == QLatin1String("IntegerProperty"))
        return QString::number(*rc::gen::inRange(3, 20));
    if (type == QLatin1String("RealProperty") && property.id() != QLatin1String("keepRatio"))
        return QString::number(*rc::gen::inRange(1, 300));
    if (type == QLatin1String("FontProperty"))
        return QStringLiteral("family: DejaVu Sans; pointSize: %1;").arg(*rc::gen::inRange(4, 90));
    return {};
}

} // namespace

/// Every value of every element goes back to its default and forth again.
class tst_SheetResets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // Each case goes through all properties of an element of its kind.
        if (!qEnvironmentVariableIsSet("RC_PARAMS"))
            qputenv("RC_PARAMS", "max_success=30");
        QString message;
        QVERIFY2(DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message),
                 qPrintable(message));
    }

    void whatIsMarkedGoesBackToItsDefaultInOneStep_data()
    {
        QTest::addColumn<QString>("className");
        for (const QString& className : DesignerFactory::instance()->elementClassNames())
            QTest::newRow(qPrintable(className)) << className;
    }

    void whatIsMarkedGoesBackToItsDefaultInOneStep()
    {
        QFETCH(QString, className);
        auto project = std::make_unique<Project>();
        QVERIFY(project->initialize());
        EditSession session(std::move(project));
        Screen* screen = nullptr;
        session.addScreen({}, {}, &screen);
        PropertySheet sheet(&session);
        sheet.resize(320, 1200);
        sheet.show();
        QVERIFY(QTest::qWaitForWindowExposed(&sheet));

        const bool holds = rc::check([&] {
            QList<DesignerObject*> elements;
            const int count = *rc::gen::inRange(1, 3);
            for (int i = 0; i < count; ++i) {
                DesignerObject* element = nullptr;
                RC_ASSERT(session.addElement(className, screen, {}, {}, &element).accepted);
                elements.append(element);
                for (const auto& property : element->properties()) {
                    const QString value = property->hasFlag(Shown) ? anyValue(*property) : QString();
                    if (!value.isEmpty() && *rc::gen::arbitrary<bool>())
                        (void)session.setProperty(element, property->id(), value); // an element may refuse it
                }
            }
            session.setSelection(elements);
            QCoreApplication::processEvents();
            const QStringList before = values(elements);
            for (const auto& property : elements.constFirst()->properties()) {
                if (!sheet.editor(property->id()) || property->id() == QLatin1String("keepRatio"))
                    continue;
                const bool differs = std::any_of(elements.begin(), elements.end(), [&](const DesignerObject* element) {
                    return !hasDefaultValue(*element->getProperty(property->id()));
                });
                auto* mark = markOf(sheet, property->id());
                RC_LOG(property->id().toStdString());
                RC_ASSERT(mark->isVisible() == differs);
                if (!differs)
                    continue;
                const int steps = session.undoStack()->index();
                mark->click();
                const bool done = session.undoStack()->index() == steps + 1;
                // What stays does so with its reason.
                RC_ASSERT(done || !sheet.message(property->id()).isEmpty());
                if (property->hasFlag(Stored) && sheet.message(property->id()).isEmpty()) {
                    for (const DesignerObject* element : elements)
                        RC_ASSERT(hasDefaultValue(*element->getProperty(property->id())));
                    RC_ASSERT(!mark->isVisible());
                }
                if (done)
                    session.undo();
                RC_ASSERT(session.selection().size() == elements.size());
                QCoreApplication::processEvents();
                RC_ASSERT(values(elements) == before);
                RC_ASSERT(session.undoStack()->index() == steps);
            }
            session.removeElements(elements);
        });
        QVERIFY(holds);
    }

private:
    static QStringList values(const QList<DesignerObject*>& elements)
    {
        QStringList values;
        for (const DesignerObject* element : elements) {
            for (const auto& property : element->properties())
                values.append(property->valueString());
        }
        return values;
    }

    static DefaultMark* markOf(const PropertySheet& sheet, const QString& propertyId)
    {
        const QWidget* row = sheet.editor(propertyId);
        while (!row->objectName().startsWith(QLatin1String("row_")))
            row = row->parentWidget();
        return row->findChild<DefaultMark*>();
    }
};

QTEST_MAIN(tst_SheetResets)
#include "tst_SheetResets.moc"
