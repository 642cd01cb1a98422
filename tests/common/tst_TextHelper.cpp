#include "host/common/TextHelper.h"

#include <QJSEngine>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Common;

namespace {
/** Any text: units that are dangerous in source text are as likely as all others together. */
QString someText()
{
    static const std::vector<char16_t> dangerous = {
        u'"',   u'\'',  u'\\',  u'\n',  u'\r',  u'\t', 0,    1,    0x7f, 0x85, 0xa0, 0x2028, 0x2029, 0xd800, 0xdbff,
        0xdc00, 0xdfff, 0xfeff, 0xfffe, 0xffff, u'$',  u'{', u'}', u'`', u'u', u'0', u'/',   u'*',   u'%',   0x1f};
    const auto unit = rc::gen::weightedOneOf<char16_t>(
        {{1, rc::gen::elementOf(dangerous)},
         {1, rc::gen::map(rc::gen::inRange(0, 0x10000), [](int value) { return static_cast<char16_t>(value); })}});
    const std::vector<char16_t> units = *rc::gen::container<std::vector<char16_t>>(unit);
    return QString(reinterpret_cast<const QChar*>(units.data()), static_cast<qsizetype>(units.size()));
}

QString inQuotes(const QString& text)
{
    return QLatin1Char('"') + TextHelper::toQmlValueString(text) + QLatin1Char('"');
}
} // namespace

class TestTextHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void plainTextStaysAsItIs();
    void quotesBackslashesAndBreaksAreEscaped();
    void loneSurrogatesAreEscapedAndPairsAreKept();
    void scriptReadsBackTheSameText();
    void everyUnitIsReadBack();
    void fileReadsBackTheSameText();
};

void TestTextHelper::plainTextStaysAsItIs()
{
    QCOMPARE(TextHelper::toQmlValueString(QString()), QString());
    const QString text = QStringLiteral("Boiler 42 °C — it's 100 %, κόσμε 漢字 \U0001F600");
    QCOMPARE(TextHelper::toQmlValueString(text), text);
}

void TestTextHelper::quotesBackslashesAndBreaksAreEscaped()
{
    QCOMPARE(TextHelper::toQmlValueString(QStringLiteral("say \"hi\"\\")), QStringLiteral("say \\\"hi\\\"\\\\"));
    QCOMPARE(TextHelper::toQmlValueString(QStringLiteral("a\nb\rc\td")), QStringLiteral("a\\nb\\rc\\td"));
    QCOMPARE(TextHelper::toQmlValueString(QString(QChar(0x2028))), QStringLiteral("\\u2028"));
    QCOMPARE(TextHelper::toQmlValueString(QString(QChar(0))), QStringLiteral("\\u0000"));
}

void TestTextHelper::loneSurrogatesAreEscapedAndPairsAreKept()
{
    const QString pair = QStringLiteral("\U0001F600");
    QCOMPARE(TextHelper::toQmlValueString(pair), pair);
    QCOMPARE(TextHelper::toQmlValueString(pair.left(1)), QStringLiteral("\\ud83d"));
    QCOMPARE(TextHelper::toQmlValueString(pair.mid(1) + pair.left(1)), QStringLiteral("\\ude00\\ud83d"));
}

void TestTextHelper::scriptReadsBackTheSameText()
{
    QJSEngine engine;
    QVERIFY(rc::check("exact for every text", [&engine] {
        const QString text = someText();
        const QJSValue value = engine.evaluate(inQuotes(text));
        RC_ASSERT(value.isString());
        RC_ASSERT(value.toString() == text);
    }));
}

void TestTextHelper::everyUnitIsReadBack()
{
    QJSEngine engine;
    for (int high = 0; high < 0x100; ++high) {
        QString text;
        for (int low = 0; low < 0x100; ++low) {
            text += QChar(static_cast<char16_t>(high * 0x100 + low));
            text += QLatin1Char('x');
        }
        QCOMPARE(engine.evaluate(inQuotes(text)).toString(), text);
    }
}

void TestTextHelper::fileReadsBackTheSameText()
{
    QQmlEngine engine;
    QVERIFY(rc::check("exact through UTF-8 and the QML compiler", [&engine] {
        const QString text = someText();
        const QString file = QStringLiteral("import QtQuick\nQtObject { property string text: %1 }\n");
        QQmlComponent component(&engine);
        component.setData(QString(file).replace(QLatin1String("%1"), inQuotes(text)).toUtf8(), QUrl());
        const std::unique_ptr<QObject> object(component.create());
        RC_ASSERT(object != nullptr);
        RC_ASSERT(object->property("text").toString() == text);
    }));
}

QTEST_GUILESS_MAIN(TestTextHelper)
#include "tst_TextHelper.moc"
