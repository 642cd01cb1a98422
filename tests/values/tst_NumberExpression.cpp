#include "host/core/values/NumberExpression.h"
#include "tests/values/ValueGenerators.h"

#include <QtTest/QtTest>

using namespace Korvex::Meridane::Designer;
using Kind = NumberOperation::Kind;
using RelativeInput = NumberExpression::RelativeInput;

class tst_NumberExpression : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesAreComputed_data();
    void valuesAreComputed();
    void relativeInputIsRead_data();
    void relativeInputIsRead();
    void relativeInputIsRefusedUnlessAllowed();
    void faultsAreNamed_data();
    void faultsAreNamed();
    void nestingIsLimited();
    void operationsApply();
    void operationsNeverLeaveTheFiniteNumbers();
    void everyNumberIsReadAsItself();
    void anyTextIsReadOrRefused();
    void typingMayGoOnWithTheSignsOfAnExpression();
};

void tst_NumberExpression::valuesAreComputed_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<double>("expected");
    const auto row = [](const char* text, double expected) {
        QTest::newRow(text) << QString::fromUtf8(text) << expected;
    };
    row("12", 12);
    row(" 12.5 ", 12.5);
    row("12,5", 12.5);
    row("1,234", 1.234);
    row("-3", -3);
    row("+3", 3);
    row("--3", 3);
    row("120/3", 40);
    row("1+2*3", 7);
    row("(1+2)*3", 9);
    row("10-4-3", 3);
    row("100/5/2", 10);
    row("2*-3", -6);
    row("-(2+3)*2", -10);
    row(".5+5.", 5.5);
    row("1.5 + 2,5", 4);
    row("1e3", 1000);
    row("2e-1*10", 2);
    row("-0", 0);
    row("7 \xe2\x88\x92 2", 5);
    row("6 \xc3\xb7 2 \xc3\x97 5", 15);
}

void tst_NumberExpression::valuesAreComputed()
{
    QFETCH(QString, text);
    QString error = QStringLiteral("kept");
    const std::optional<NumberOperation> operation = NumberExpression::parse(text, RelativeInput::Refused, &error);
    QVERIFY2(operation, qPrintable(error));
    QVERIFY(error.isEmpty());
    QCOMPARE(operation->kind, Kind::Set);
    QTEST(operation->operand, "expected");
    QVERIFY(operation->operand != 0 || !std::signbit(operation->operand));
}

void tst_NumberExpression::relativeInputIsRead_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("kind");
    QTest::addColumn<double>("operand");
    const auto row = [](const char* text, Kind kind, double operand) {
        QTest::newRow(text) << QString::fromUtf8(text) << static_cast<int>(kind) << operand;
    };
    row("+=10", Kind::Add, 10);
    row("-=5", Kind::Subtract, 5);
    row("*=2", Kind::Multiply, 2);
    row("/=4", Kind::Divide, 4);
    row(" += 10/4 ", Kind::Add, 2.5);
    row("+=-1", Kind::Add, -1);
    row("+10", Kind::Set, 10);
}

void tst_NumberExpression::relativeInputIsRead()
{
    QFETCH(QString, text);
    const std::optional<NumberOperation> operation = NumberExpression::parse(text, RelativeInput::Allowed);
    QVERIFY(operation);
    QTEST(static_cast<int>(operation->kind), "kind");
    QTEST(operation->operand, "operand");
}

void tst_NumberExpression::relativeInputIsRefusedUnlessAllowed()
{
    QString error;
    QVERIFY(!NumberExpression::parse(u"+=10", RelativeInput::Refused, &error));
    QVERIFY(!error.isEmpty());
}

void tst_NumberExpression::faultsAreNamed_data()
{
    QTest::addColumn<QString>("text");
    for (const char* text :
         {"",    " ",   "+",       "-",       "*2",        "/2",          "2+",      "2*",     "(2",   "2)",
          "()",  "2 3", "1.2.3",   "1.234,5", "1,234,567", ".",           ",",       "2e",     "2e+",  "nan",
          "inf", "1/0", "1/(2-2)", "0/0",     "1e308*10",  "1e308+1e308", "1e999",   "1e-999", "0x10", "5px",
          "/=0", "*=",  "+=+=1",   "=5",      "2**3",      "2//3",        "\xd9\xa3"}) {
        QTest::newRow(qPrintable(QString::fromUtf8(text) + u'|')) << QString::fromUtf8(text);
    }
}

void tst_NumberExpression::faultsAreNamed()
{
    QFETCH(QString, text);
    QString error;
    QVERIFY(!NumberExpression::parse(text, RelativeInput::Allowed, &error));
    QVERIFY(!error.isEmpty());
}

void tst_NumberExpression::nestingIsLimited()
{
    const auto nested = [](int depth) { return QString(depth, u'(') + u'1' + QString(depth, u')'); };
    QVERIFY(NumberExpression::parse(nested(NumberExpression::maximumDepth - 1)));
    QString error;
    QVERIFY(!NumberExpression::parse(nested(NumberExpression::maximumDepth), RelativeInput::Refused, &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(!NumberExpression::parse(nested(1000000)));
    QVERIFY(!NumberExpression::parse(QString(1000000, u'-') + u'1'));
}

void tst_NumberExpression::operationsApply()
{
    QCOMPARE((NumberOperation{Kind::Set, 3}.applyTo(10)), 3.0);
    QCOMPARE((NumberOperation{Kind::Add, 3}.applyTo(10)), 13.0);
    QCOMPARE((NumberOperation{Kind::Subtract, 3}.applyTo(10)), 7.0);
    QCOMPARE((NumberOperation{Kind::Multiply, 3}.applyTo(10)), 30.0);
    QCOMPARE((NumberOperation{Kind::Divide, 4}.applyTo(10)), 2.5);
    QCOMPARE((NumberOperation{Kind::Divide, 0}.applyTo(10)), 10.0);
    QCOMPARE((NumberOperation{Kind::Multiply, 1e300}.applyTo(1e300)), 1e300);
    QVERIFY(!std::signbit(NumberOperation{Kind::Multiply, -1}.applyTo(0)));
}

void tst_NumberExpression::operationsNeverLeaveTheFiniteNumbers()
{
    QVERIFY(rc::check("finite results", [] {
        const NumberOperation operation{static_cast<Kind>(*rc::gen::inRange(0, 5)), *Generators::finiteReal()};
        RC_ASSERT(std::isfinite(operation.applyTo(*Generators::finiteReal())));
    }));
}

void tst_NumberExpression::everyNumberIsReadAsItself()
{
    QVERIFY(rc::check("numbers", [] {
        const double value = *Generators::finiteReal();
        const auto operation = NumberExpression::parse(QString::number(value, 'g', 17));
        RC_ASSERT(operation.has_value());
        RC_ASSERT(operation->operand == value);
    }));
}

void tst_NumberExpression::anyTextIsReadOrRefused()
{
    QVERIFY(rc::check("any text", [] {
        const auto unit = rc::gen::oneOf(
            rc::gen::element<char16_t>(u'1', u'2', u'.', u',', u'+', u'-', u'*', u'/', u'(', u')', u'=', u' ', u'e'),
            Generators::bits<char16_t>());
        const QString text = QString::fromStdU16String(*rc::gen::container<std::u16string>(unit));
        QString error;
        const auto operation = NumberExpression::parse(text, RelativeInput::Allowed, &error);
        RC_ASSERT(operation.has_value() == error.isEmpty());
        RC_ASSERT(!operation || std::isfinite(operation->operand));
        RC_ASSERT(!operation || NumberExpression::mayBecomeExpression(text, RelativeInput::Allowed));
    }));
}

void tst_NumberExpression::typingMayGoOnWithTheSignsOfAnExpression()
{
    QVERIFY(NumberExpression::mayBecomeExpression(u"(1+", RelativeInput::Refused));
    QVERIFY(NumberExpression::mayBecomeExpression(u"+=", RelativeInput::Allowed));
    QVERIFY(!NumberExpression::mayBecomeExpression(u"+=", RelativeInput::Refused));
    QVERIFY(!NumberExpression::mayBecomeExpression(u"1x", RelativeInput::Allowed));
}

QTEST_APPLESS_MAIN(tst_NumberExpression)
#include "tst_NumberExpression.moc"
