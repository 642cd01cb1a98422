#include "host/core/project/JsonKeyScanner.h"
#include "host/core/project/JsonText.h"

#include <QJsonArray>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

class tst_JsonText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultsAreToldWithTheirLine_data();
    void faultsAreToldWithTheirLine();
    void keysThatOnlyLookAlikeAreNoDuplicates();
    void anyValueSurvivesWritingAndReading();
    void everyDuplicateIsFound();
    void scanningStaysLinear();
};

void tst_JsonText::faultsAreToldWithTheirLine_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("message");
    const auto row = [](const char* name, const QByteArray& text, const char* message) {
        QTest::newRow(name) << text << QString::fromUtf8(message);
    };
    row("empty", "", "The file is empty.");
    row("blank", " \n\t ", "The file is empty.");
    row("truncated", "{\n \"a\": {\n", "Line 3: This is not JSON");
    row("no JSON", "<svg/>", "Line 1: This is not JSON");
    row("trailing comma", "{\n\"a\": 1,\n}", "Line 3: This is not JSON");
    row("invalid UTF-8", "{\"a\": \"\xff\"}", "Line 1: This is not JSON");
    row("a list", "[1, 2]", "must hold a JSON object, not a list");
    row("nested too deeply", QByteArray("{\"a\":") + QByteArray(1200, '[') + QByteArray(1200, ']') + "}",
        "too deeply nested");
    row("merge conflict", "{\n<<<<<<< HEAD\n\"a\": 1\n=======\n\"a\": 2\n>>>>>>> theirs\n}",
        "Line 2: A merge conflict has not been resolved.");
    row("duplicate key", "{\n\"a\": 1,\n\"b\": 2,\n\"a\": 3\n}",
        "Line 4: The key \"a\" stands here for the second time (first in line 2)");
    row("duplicate key in an inner object", "{\"x\": [{},\n{\"a\": {},\n\"a\": 1}]}", "Line 3: The key \"a\"");
    row("duplicate key, one of them escaped", "{\"size\": 1,\n\"si\\u007ae\": 2}", "Line 2: The key \"size\"");
    row("the first of several duplicates", "{\"o\": {\"b\": 1,\n\"b\": 1},\n\"o\": 2}", "Line 2: The key \"b\"");
    row("duplicate empty key", "{\"\": 1, \"\": 2}", "The key \"\" stands here");
    row("duplicate key behind a line break in a text", "{\"a\": \"1\n2\",\n\"a\": 3}", "Line 3: The key \"a\"");
}

void tst_JsonText::faultsAreToldWithTheirLine()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, message);
    QString error;
    QVERIFY(!JsonText::parse(text, &error));
    QVERIFY2(error.contains(message), qUtf8Printable(error));
}

void tst_JsonText::keysThatOnlyLookAlikeAreNoDuplicates()
{
    const QByteArray text = R"({"a": "a", "b": ["a", "a", {"a": 1}, {"a": 2}], "A": 1, "a\\": 2, "a\"": {"a\"": 3},
                                "\ud800": 1, "\ud801": 2, "\uD83D\uDE00": 3, "\t": 4, "t": 5})";
    QString error;
    QVERIFY2(JsonText::parse(text, &error), qUtf8Printable(error));
    QVERIFY(!JsonText::parse("{\"\\uD83D\\uDE00\": 1, \"\xF0\x9F\x98\x80\": 2}", &error));
    QVERIFY(JsonText::parse("\xef\xbb\xbf{\"a\": 1}", &error));
}

namespace {

QString anyText()
{
    const auto units = *rc::gen::container<std::u16string>(
        rc::gen::oneOf(rc::gen::element<char16_t>(u'"', u'\\', u'\n', u'{', u'}', u'[', u']', u',', u':', u'\0'),
                       rc::gen::inRange<char16_t>(u'a', u'd'), rc::gen::arbitrary<char16_t>()));
    return QString::fromStdU16String(units);
}

QJsonValue anyValue(int depth)
{
    switch (*rc::gen::inRange(0, depth > 0 ? 6 : 4)) {
    case 0:
        return anyText();
    case 1:
        return *rc::gen::arbitrary<int>();
    case 2:
        return *rc::gen::arbitrary<bool>();
    case 3:
        return QJsonValue::Null;
    case 4: {
        QJsonArray list;
        for (int i = *rc::gen::inRange(0, 4); i > 0; --i)
            list.append(anyValue(depth - 1));
        return list;
    }
    default: {
        QJsonObject object;
        for (int i = *rc::gen::inRange(0, 4); i > 0; --i)
            object.insert(anyText(), anyValue(depth - 1));
        return object;
    }
    }
}

} // namespace

void tst_JsonText::anyValueSurvivesWritingAndReading()
{
    QVERIFY(rc::check("write and parse are inverse, and nothing is taken for a duplicate", [] {
        const QJsonObject object{{QStringLiteral("value"), anyValue(4)}};
        QString error;
        const auto read = JsonText::parse(JsonText::write(object), &error);
        RC_ASSERT(read.has_value());
        RC_ASSERT(*read == object);
    }));
}

void tst_JsonText::everyDuplicateIsFound()
{
    QVERIFY(rc::check("of some keys on lines of their own the second occurrence is told", [] {
        const auto keys = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 8));
        QByteArray text = "{\n";
        QMap<int, int> firstLines;
        int duplicateLine = 0;
        for (std::size_t i = 0; i < keys.size(); ++i) {
            const int line = int(i) + 2;
            text += "\"k" + QByteArray::number(keys[i]) + "\": {\"k0\": 1}" + (i + 1 < keys.size() ? ",\n" : "\n");
            if (firstLines.contains(keys[i]) && duplicateLine == 0)
                duplicateLine = line;
            firstLines.insert(keys[i], line);
        }
        const auto found = JsonKeyScanner(text + "}").firstDuplicate();
        RC_ASSERT(found.has_value() == (duplicateLine > 0));
        if (found)
            RC_ASSERT(found->secondLine == duplicateLine);
    }));
}

void tst_JsonText::scanningStaysLinear()
{
    QByteArray text = "{";
    for (int i = 0; i < 200000; ++i)
        text += "\"k" + QByteArray::number(i) + "\":0,";
    text += "\"k7\":1}";
    QElapsedTimer timer;
    timer.start();
    QVERIFY(JsonKeyScanner(text).firstDuplicate());
    QVERIFY2(timer.elapsed() < 5000, "hundreds of thousands of keys take seconds");
}

QTEST_GUILESS_MAIN(tst_JsonText)
#include "tst_JsonText.moc"
