#include "lines/GraphicsLine.h"
#include "lines/Line.h"
#include "tests/lines/AnyNumber.h"
#include "tests/shapes/ShapeFixture.h"

#include "host/core/canvas/GraphicsRectangle.h"
#include "host/core/values/ValueConversion.h"

#include "host/common/LineGeometry.h"
#include "host/common/TransformOrigin.h"

#include <QtTest>

#include <rapidcheck.h>

#include <cmath>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Common;
using namespace Korvex::Meridane::Designer::Test;

namespace {

bool near(const QSizeF& a, const QSizeF& b, double tolerance)
{
    return std::abs(a.width() - b.width()) <= tolerance && std::abs(a.height() - b.height()) <= tolerance;
}

} // namespace

/// The line's data object: its properties, its outline, and how it follows its outer size.
class tst_Line : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_line = std::make_unique<ShapeFixture>(std::make_unique<Line>()); }
    void cleanup() { m_line.reset(); }

    void theIdentityIsThatOfALine()
    {
        QCOMPARE(line().identity(),
                 QStringLiteral("Line,Line,Line,Line,Screen,Line,line,line").split(QLatin1Char(',')));
        QVERIFY(line().element->classNames().contains(QLatin1String("VisualElement")));
    }

    void theRuntimePropertiesFollowThoseOfTheBase()
    {
        QCOMPARE(line().runtimeRows(),
                 (QStringList{QStringLiteral("color|Color|6|1"), QStringLiteral("angle|Angle|3|1"),
                              QStringLiteral("length|Length|3|1"), QStringLiteral("lineWidth|Thickness|2|1")}));
    }

    void aNewLineIs100LongAnd2ThickAndLevel()
    {
        QCOMPARE(line().element->getBoundingRect(), QRectF(0, -1, 100, 2));
        QCOMPARE(line().value("color"), QStringLiteral("#f8971d"));
        line().place<GraphicsLine>();
        QCOMPARE(line().value("boundingSize"), QStringLiteral("100,2"));
    }

    void withoutThePlugInThereIsNoItem() { QVERIFY(!line().element->createGraphicsItem()); }

    void theBoundingRectangleIsThatOfTheOutline_data()
    {
        QTest::addColumn<QString>("length");
        QTest::addColumn<QString>("angle");
        QTest::addColumn<QString>("width");
        QTest::addColumn<QRectF>("bounds");
        const auto row = [](const char* name, const char* length, const char* angle, const char* width,
                            const QRectF& bounds) {
            QTest::newRow(name) << QString::fromLatin1(length) << QString::fromLatin1(angle)
                                << QString::fromLatin1(width) << bounds;
        };
        row("level", "100", "0", "2", QRectF(0, -1, 100, 2));
        row("down", "100", "90", "2", QRectF(-1, 0, 2, 100));
        row("left", "100", "180", "2", QRectF(-100, -1, 100, 2));
        row("up", "100", "270", "2", QRectF(-1, -100, 2, 100));
        row("up, counted backwards", "100", "-90", "2", QRectF(-1, -100, 2, 100));
        row("odd thickness", "50.5", "0", "3", QRectF(0, -1.5, 50.5, 3));
        const double root = std::sqrt(0.5);
        row("slanted", "100", "45", "20", QRectF(-10 * root, -10 * root, 120 * root, 120 * root));
        row("slanted, up and left", "100", "225", "20", QRectF(-110 * root, -110 * root, 120 * root, 120 * root));
        row("no thickness", "100", "30", "0", QRectF());
        row("negative thickness", "100", "30", "-5", QRectF());
        row("no length", "0", "30", "2", QRectF());
        row("negative length", "-100", "30", "2", QRectF());
        row("a length that does not convert", "long", "30", "2", QRectF());
        row("an angle that does not convert", "100", "", "2", QRectF());
        row("a thickness that does not convert", "100", "30", "2.5", QRectF());
        row("huge", "1e300", "0", "2147483647", QRectF(0, -1073741823.5, 1e300, 2147483647));
    }

    void theBoundingRectangleIsThatOfTheOutline()
    {
        QFETCH(QString, length);
        QFETCH(QString, angle);
        QFETCH(QString, width);
        QFETCH(QRectF, bounds);
        QVERIFY(line().set("length", length));
        QVERIFY(line().set("angle", angle));
        QVERIFY(line().set("width", width));
        const QRectF found = line().element->getBoundingRect();
        QCOMPARE(found.topLeft(), bounds.topLeft());
        QCOMPARE(found.size(), bounds.size());
        QCOMPARE(found.isNull(), bounds.isNull());
    }

    void theThicknessIsWrittenAsLineWidth()
    {
        const auto width = line().element->getProperty(QStringLiteral("width"));
        QVERIFY(line().set("width", "5"));
        QCOMPARE(width->toQml(2), QStringLiteral("\t\tlineWidth: 5"));
        for (const char* text : {"", "thick", "5.5"}) {
            QVERIFY(line().set("width", text));
            QCOMPARE(width->toQml(2), QString());
        }
    }

    void theQmlHoldsEveryExportedPropertyInOrderOfRank()
    {
        QVERIFY(line().element->setIdName(QStringLiteral("hand")));
        line().set("position", "10,20.5");
        line().set("rotation", "angle: 15; fixedPoint: TopLeft;");
        line().set("length", "33.33333333");
        line().set("angle", "359.99");
        line().set("width", "100");
        line().set("color", "#80f8971d");
        line().set("keepRatio", "2");
        QCOMPARE(line().element->toQml(1), QStringLiteral("\tLine {\n"
                                                          "\t\tid: hand\n"
                                                          "\t\tx: 10\n"
                                                          "\t\ty: 20.5\n"
                                                          "\t\trotation: 15\n"
                                                          "\t\tfixedPoint: \"TopLeft\"\n"
                                                          "\t\tlength: 33.3333\n"
                                                          "\t\tangle: 359.99\n"
                                                          "\t\tlineWidth: 100\n"
                                                          "\t\tcolor: \"#80f8971d\"\n"
                                                          "\t}"));
    }

    void valuesBeyondTheLimitsOfTheEditorsAreTaken_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("value");
        const auto row = [](const char* id, const char* value) {
            QTest::addRow("%s %s", id, value) << QString::fromLatin1(id) << QString::fromLatin1(value);
        };
        for (const char* value : {"0", "-5", "0.5", "10000", "1e+300"})
            row("length", value);
        for (const char* value : {"-30", "360", "720.5", "1e+300"})
            row("angle", value);
        for (const char* value : {"0", "-5", "101", "2147483647", "-2147483648"})
            row("width", value);
    }

    void valuesBeyondTheLimitsOfTheEditorsAreTaken()
    {
        QFETCH(QString, id);
        QFETCH(QString, value);
        const QByteArray property = id.toLatin1();
        const auto* item = line().place<GraphicsLine>();
        QVERIFY(line().set(property.constData(), value));
        QCOMPARE(line().value(property.constData()), value);
        const QRectF bounds = line().element->getBoundingRect();
        QCOMPARE(item->outerRect(), bounds);
        QVERIFY(std::isfinite(bounds.width()) && std::isfinite(bounds.height()));
        QVERIFY(
            near(ValueConversion::toSize(line().value("boundingSize")), bounds.size(), 1e-6 * bounds.width() + 1e-6));
        QVERIFY(line().element->toQml(0).contains(QLatin1String("length: ")));
    }

    void textsThatDoNotConvertAreKeptAndInert_data()
    {
        QTest::addColumn<QString>("id");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* id, const char* text) {
            QTest::addRow("%s \"%s\"", id, text) << QString::fromLatin1(id) << QString::fromLatin1(text);
        };
        for (const char* text : {"", "long", "nan", "inf", "1e400", "1,5", " 5"}) {
            row("length", text);
            row("angle", text);
        }
        for (const char* text : {"", "thick", "2.5", "2147483648", "1e3"})
            row("width", text);
        for (const char* text : {"", "chartreusish", "#12345"})
            row("color", text);
        for (const char* text : {"", "ratio", "nan"})
            row("keepRatio", text);
        for (const char* text : {"", "100", "100;2", "nan,2"})
            row("boundingSize", text);
    }

    void textsThatDoNotConvertAreKeptAndInert()
    {
        QFETCH(QString, id);
        QFETCH(QString, text);
        const QByteArray property = id.toLatin1();
        line().set("length", "60");
        line().set("angle", "30");
        line().set("width", "7");
        const auto* item = line().place<GraphicsLine>();
        const QRectF outline = item->outerRect();
        const QString outer = line().value("boundingSize");
        const QStringList before = line().element->toQml(0).split(QLatin1Char('\n'));
        QVERIFY(line().set(property.constData(), text));
        QCOMPARE(line().value(property.constData()), text);
        QCOMPARE(item->outerRect(), outline);
        if (id != QLatin1String("boundingSize"))
            QCOMPARE(line().value("boundingSize"), outer);
        // The line of that property is missing, and no other one is.
        QStringList missing = before;
        const QString after = line().element->toQml(0);
        missing.removeIf([&after](const QString& written) { return after.contains(written); });
        const bool exported = id != QLatin1String("keepRatio") && id != QLatin1String("boundingSize");
        QCOMPARE(missing.size(), exported ? 1 : 0);
    }

    void otherPropertiesLeaveTheLineAlone()
    {
        line().place<GraphicsLine>();
        line().set("color", "#102030");
        line().set("position", "4,5");
        line().set("rotation", "angle: 33; fixedPoint: TopLeft;");
        line().set("keepRatio", "50");
        QCOMPARE(line().value("length"), QStringLiteral("100"));
        QCOMPARE(line().value("angle"), QStringLiteral("0"));
        QCOMPARE(line().value("width"), QStringLiteral("2"));
        QCOMPARE(line().value("boundingSize"), QStringLiteral("100,2"));
    }

    void noPropertyIsNoChange() { line().element->afterPropertyChanged(nullptr, QString()); }

private:
    [[nodiscard]] ShapeFixture& line() const { return *m_line; }

    std::unique_ptr<ShapeFixture> m_line;
};

QTEST_MAIN(tst_Line)
#include "tst_Line.moc"
