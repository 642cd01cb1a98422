#include "host/core/objects/QmlIdentifier.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;

class tst_QmlIdentifier : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesThatQmlTakesAreTaken_data()
    {
        QTest::addColumn<QString>("id");
        for (const char* id : {"a", "_", "_1", "rectangle1", "camelCase_9", "main", "classes"})
            QTest::newRow(id) << QString::fromLatin1(id);
    }

    void namesThatQmlTakesAreTaken()
    {
        QFETCH(QString, id);
        QString reason = QStringLiteral("unset");
        QVERIFY(isQmlIdentifier(id, &reason));
        QVERIFY(reason.isEmpty());
    }

    void otherNamesAreRefusedWithAReason_data()
    {
        QTest::addColumn<QString>("id");
        for (const char* id :
             {"",      "A",      "1a",        "a b",   "a-b",  "a.b",   "a/b",  "ä",    "a\"b", "a\n", "if",
              "class", "parent", "undefined", "yield", "with", "print", "a\\b", "../a", " a",   "a "})
            QTest::newRow(id) << QString::fromUtf8(id);
        QTest::newRow("too long") << QString(101, QLatin1Char('a'));
    }

    void otherNamesAreRefusedWithAReason()
    {
        QFETCH(QString, id);
        QString reason;
        QVERIFY(!isQmlIdentifier(id, &reason));
        QVERIFY(!reason.isEmpty());
    }
};

QTEST_MAIN(tst_QmlIdentifier)
#include "tst_QmlIdentifier.moc"
