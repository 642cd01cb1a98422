#include "host/core/editors/ValueComponents.h"
#include "host/core/values/ValueConversion.h"

#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

namespace {

QString latin(const char* text)
{
    return QString::fromLatin1(text);
}

NumberOperation add(double operand)
{
    return {NumberOperation::Kind::Add, operand};
}

} // namespace

class tst_ValueComponents : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void oneComponentIsTakenOverAndTheOthersStay_data()
    {
        QTest::addColumn<QString>("propertyClass");
        QTest::addColumn<QString>("own");
        QTest::addColumn<QString>("component");
        QTest::addColumn<QString>("edited");
        QTest::addColumn<QString>("expected");
        const auto row = [](const char* name, const char* type, const char* own, const char* component,
                            const char* edited, const char* expected) {
            QTest::newRow(name) << latin(type) << latin(own) << latin(component) << latin(edited) << latin(expected);
        };
        row("width", "SizeProperty", "100,75", "width", "50,20", "50,75");
        row("height", "SizeProperty", "100,75", "height", "50,20", "100,20");
        row("x", "PointProperty", "1.5,-2", "x", "7,8", "7,-2");
        row("y", "PointProperty", "1.5,-2", "y", "7,8", "1.5,8");
        row("border width", "BorderProperty", "width: 2; color: #ff0000;", "width", "width: 5; color: #00ff00;",
            "width: 5; color: #ff0000;");
        row("border colour", "BorderProperty", "width: 2; color: #ff0000;", "color", "width: 5; color: #00ff00;",
            "width: 2; color: #00ff00;");
        row("angle", "RotationProperty", "angle: 10; fixedPoint: Top;", "angle", "angle: 45; fixedPoint: Center;",
            "angle: 45; fixedPoint: Top;");
        row("fixed point", "RotationProperty", "angle: 10; fixedPoint: Top;", "fixedPoint",
            "angle: 45; fixedPoint: Center;", "angle: 10; fixedPoint: Center;");
        row("family", "FontProperty", "family: Serif; pointSize: 12; italic: true;", "family",
            "family: Sans; pixelSize: 9;", "family: Sans; pointSize: 12; italic: true;");
        row("font size with its unit", "FontProperty", "family: Serif; pointSize: 12; bold: true;", "size",
            "family: Sans; pixelSize: 9;", "family: Serif; pixelSize: 9; bold: true;");
        row("bold on", "FontProperty", "family: Serif; pointSize: 12;", "bold",
            "family: Sans; pixelSize: 9; bold: true;", "family: Serif; pointSize: 12; bold: true;");
        row("bold off", "FontProperty", "family: Serif; pointSize: 12; weight: 600;", "bold",
            "family: Sans; pixelSize: 9;", "family: Serif; pointSize: 12;");
        row("underline off", "FontProperty", "family: Serif; pointSize: 12; underline: true; overline: true;",
            "underline", "family: Sans; pixelSize: 9;", "family: Serif; pointSize: 12; overline: true;");
        row("letter spacing", "FontProperty", "family: Serif; pointSize: 12;", "letterSpacing",
            "family: Sans; pixelSize: 9; letterSpacing: 1;", "family: Serif; pointSize: 12; letterSpacing: 1;");
        row("whole value", "SizeProperty", "100,75", "", "50,20", "50,20");
        row("unknown component", "SizeProperty", "100,75", "depth", "50,20", "50,20");
        row("class without components", "ColorProperty", "#ff0000", "", "#00ff00", "#00ff00");
        row("own value does not convert", "SizeProperty", "abc", "width", "50,20", "50,20");
    }

    void oneComponentIsTakenOverAndTheOthersStay()
    {
        QFETCH(QString, propertyClass);
        QFETCH(QString, own);
        QFETCH(QString, component);
        QFETCH(QString, edited);
        QFETCH(QString, expected);
        QCOMPARE(ValueComponents::withComponent(propertyClass, own, component, edited), expected);
    }

    void anOperationChangesTheNumberOfOneComponent()
    {
        const QString size = latin("SizeProperty");
        QCOMPARE(ValueComponents::withOperation(size, latin("100,75"), latin("width"), add(10)), latin("110,75"));
        QCOMPARE(
            ValueComponents::withOperation(size, latin("100,75"), latin("height"), {NumberOperation::Kind::Divide, 3}),
            latin("100,25"));
        QCOMPARE(ValueComponents::withOperation(latin("IntegerProperty"), latin("12"), {}, add(0.6)), latin("13"));
        QCOMPARE(ValueComponents::withOperation(latin("RealProperty"), latin("12"), {}, add(0.5)), latin("12.5"));
        QCOMPARE(ValueComponents::withOperation(latin("BorderProperty"), latin("width: 2; color: #ff0000;"),
                                                latin("width"), add(-5)),
                 latin("width: 0; color: #ff0000;"));
        QCOMPARE(ValueComponents::withOperation(latin("RotationProperty"), latin("angle: 10; fixedPoint: Top;"),
                                                latin("angle"), add(35)),
                 latin("angle: 45; fixedPoint: Top;"));
        QCOMPARE(ValueComponents::withOperation(latin("FontProperty"), latin("family: Serif; pixelSize: 12;"),
                                                latin("size"), {NumberOperation::Kind::Multiply, 1.3}),
                 latin("family: Serif; pixelSize: 16;"));
    }

    void anOperationLeavesAloneWhatIsNoNumber()
    {
        QCOMPARE(ValueComponents::withOperation(latin("SizeProperty"), latin("abc"), latin("width"), add(1)),
                 latin("abc"));
        QCOMPARE(ValueComponents::withOperation(latin("RealProperty"), latin("abc"), {}, add(1)), latin("abc"));
        QCOMPARE(ValueComponents::withOperation(latin("ColorProperty"), latin("#ff0000"), {}, add(1)),
                 latin("#ff0000"));
        QCOMPARE(ValueComponents::withOperation(latin("SizeProperty"), latin("1,2"), {}, add(1)), latin("1,2"));
    }

    void changedComponentsNamesWhatDiffers()
    {
        const auto changed = [](const char* type, const char* before, const char* after) {
            return ValueComponents::changedComponents(latin(type), latin(before), latin(after));
        };
        QCOMPARE(changed("SizeProperty", "100,75", "100,75"), QStringList());
        QCOMPARE(changed("SizeProperty", "100,75", "50,75"), QStringList{latin("width")});
        QCOMPARE(changed("SizeProperty", "100,75", "50,70"), QStringList({latin("width"), latin("height")}));
        QCOMPARE(changed("SizeProperty", "100,75", "100.0,75"), QStringList());
        QCOMPARE(changed("SizeProperty", "abc", "100,75"), QStringList{QString()});
        QCOMPARE(changed("IntegerProperty", "1", "2"), QStringList{QString()});
        QCOMPARE(changed("FontProperty", "family: A; pointSize: 9;", "family: A; pixelSize: 9; weight: 600;"),
                 QStringList({latin("size"), latin("bold")}));
    }

    void takingOverEveryChangedComponentGivesTheOtherValue()
    {
        rc::check("sizes", [](int w1, int h1, int w2, int h2) {
            const QString before = ValueConversion::toString(QSizeF(w1 / 8.0, h1 / 8.0));
            const QString after = ValueConversion::toString(QSizeF(w2 / 8.0, h2 / 8.0));
            QString value = before;
            for (const QString& part : ValueComponents::changedComponents(latin("SizeProperty"), before, after))
                value = ValueComponents::withComponent(latin("SizeProperty"), value, part, after);
            RC_ASSERT(value == after);
        });
        rc::check("fonts", [](bool bold1, bool italic2, int size1, int size2, bool pixels) {
            const auto font = [](const char* family, int size, bool inPixels, bool bold, bool italic) {
                QFont made(latin(family), 1, bold ? QFont::Bold : QFont::Normal, italic);
                if (inPixels)
                    made.setPixelSize(std::abs(size % 500) + 1);
                else
                    made.setPointSizeF((std::abs(size % 500) + 1) / 2.0);
                return ValueConversion::toString(made);
            };
            const QString before = font("Serif", size1, false, bold1, false);
            const QString after = font("Sans", size2, pixels, false, italic2);
            QString value = before;
            for (const QString& part : ValueComponents::changedComponents(latin("FontProperty"), before, after))
                value = ValueComponents::withComponent(latin("FontProperty"), value, part, after);
            RC_ASSERT(value == after);
        });
    }

    void everyClassWithComponentsNamesThem()
    {
        QCOMPARE(ValueComponents::names(latin("SizeProperty")), QStringList({latin("width"), latin("height")}));
        QCOMPARE(ValueComponents::names(latin("FontProperty")).size(), 9);
        QVERIFY(ValueComponents::names(latin("ColorProperty")).isEmpty());
    }
};

QTEST_GUILESS_MAIN(tst_ValueComponents)
#include "tst_ValueComponents.moc"
