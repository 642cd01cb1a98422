#include "host/core/objects/IdRegistry.h"
#include "tests/support/TestElement.h"

#include <QSet>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

class tst_IdRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theFreeIdIsTheBaseWithTheSmallestFreeNumberFrom1()
    {
        Test::TestElement element;
        IdRegistry ids;
        QCOMPARE(ids.freeId(QStringLiteral("rectangle")), QStringLiteral("rectangle1"));
        QVERIFY(ids.insert(QStringLiteral("rectangle1"), &element));
        QVERIFY(ids.insert(QStringLiteral("rectangle3"), &element));
        QCOMPARE(ids.freeId(QStringLiteral("rectangle")), QStringLiteral("rectangle2"));
        QCOMPARE(ids.freeId(QStringLiteral("line")), QStringLiteral("line1"));
        ids.remove(QStringLiteral("rectangle1"));
        QCOMPARE(ids.freeId(QStringLiteral("rectangle")), QStringLiteral("rectangle1"));
    }

    void anIdNamesOneObject()
    {
        Test::TestElement first;
        Test::TestElement second;
        IdRegistry ids;
        QVERIFY(ids.insert(QStringLiteral("a"), &first));
        QVERIFY(!ids.insert(QStringLiteral("a"), &second));
        QVERIFY(ids.insert(QStringLiteral("a"), &first));
        QCOMPARE(ids.find(QStringLiteral("a")), &first);
    }

    void theFreeIdIsAlwaysTheSmallest()
    {
        QVERIFY(rc::check("against a plain search", [] {
            Test::TestElement element;
            IdRegistry ids;
            QSet<QString> taken;
            const auto steps = *rc::gen::container<std::vector<int>>(rc::gen::inRange(0, 30));
            for (const int step : steps) {
                const QString id = QStringLiteral("x%1").arg(step + 1);
                if (step % 3 == 0 && taken.remove(id)) {
                    ids.remove(id);
                } else {
                    const QString free = ids.freeId(QStringLiteral("x"));
                    int smallest = 1;
                    while (taken.contains(QStringLiteral("x%1").arg(smallest)))
                        ++smallest;
                    RC_ASSERT(free == QStringLiteral("x%1").arg(smallest));
                    ids.insert(step % 2 ? free : id, &element);
                    taken.insert(step % 2 ? free : id);
                }
            }
        }));
    }
};

QTEST_MAIN(tst_IdRegistry)
#include "tst_IdRegistry.moc"
