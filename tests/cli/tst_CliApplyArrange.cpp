#include "tests/cli/ProjectFixture.h"

#include <QJsonArray>
#include <QTest>

#include <memory>

namespace {

const char* const ThreeRectangles =
    R"({"op":"add","class":"Rectangle","id":"a","properties":{"position":"10,10","size":"20,20"}},
       {"op":"add","class":"Rectangle","id":"b","properties":{"position":"50,40","size":"30,10"}},
       {"op":"add","class":"Rectangle","id":"c","properties":{"position":"110,70","size":"40,40"}})";

QString value(const MeridaneProgram::Result& result, int line)
{
    return result.line(line).value(QLatin1String("value")).toString(QStringLiteral("no value"));
}

} // namespace

/// The operations that arrange elements.
class tst_CliApplyArrange : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_project = std::make_unique<ProjectFixture>(); }

    void elementsAreAlignedDistributedAndSized()
    {
        const auto result = apply(R"({"op":"align","ids":["a","b","c"],"to":"left"},
                                     {"op":"get","id":"c","property":"position"},
                                     {"op":"distribute","ids":["a","b","c"],"axis":"vertical"},
                                     {"op":"get","id":"b","property":"position"},
                                     {"op":"same-size","ids":["a","c"],"dimension":"width"},
                                     {"op":"get","id":"a","property":"boundingSize"},
                                     {"op":"center","id":"a"},
                                     {"op":"undo-count"})");
        QCOMPARE(result.status, 0);
        QCOMPARE(value(result, 4), QStringLiteral("10,70"));
        QCOMPARE(value(result, 6), QStringLiteral("10,45"));
        QVERIFY(value(result, 8).startsWith(QLatin1String("4")));
        QCOMPARE(result.line(10).value(QLatin1String("count")).toInt(), 3 + 4);
    }

    void groupsAreMadeAndTakenApart()
    {
        const auto result = apply(R"({"op":"group","ids":["a","b"],"group":"pair"},
                                     {"op":"get","id":"pair","property":"position"},
                                     {"op":"get","id":"b","property":"position"},
                                     {"op":"ungroup","id":"pair"},
                                     {"op":"get","id":"b","property":"position"},
                                     {"op":"undo-count"})");
        QCOMPARE(result.status, 0);
        QCOMPARE(result.line(3).value(QLatin1String("id")).toString(), QStringLiteral("pair"));
        QCOMPARE(value(result, 4), QStringLiteral("10,10"));
        QCOMPARE(value(result, 5), QStringLiteral("40,30"));
        QCOMPARE(result.line(6).value(QLatin1String("ids")).toArray(),
                 (QJsonArray{QStringLiteral("a"), QStringLiteral("b")}));
        QCOMPARE(value(result, 7), QStringLiteral("50,40"));
        QCOMPARE(result.line(8).value(QLatin1String("count")).toInt(), 3 + 2);
    }

    void theOrderChanges()
    {
        const auto result = apply(R"({"op":"order","id":"a","to":"front"},
                                     {"op":"order","id":"c","to":"backward"},
                                     {"op":"order","ids":["b"],"to":"back"},
                                     {"op":"order","id":"a","to":"front"},
                                     {"op":"undo-count"})");
        QCOMPARE(result.status, 0);
        QCOMPARE(m_project->apply("[]").status, 0);
        const QJsonArray elements = m_project->readJson("screens/main.json").value(QLatin1String("elements")).toArray();
        QStringList ids;
        for (const auto& element : elements)
            ids.append(element.toObject().value(QLatin1String("id")).toString());
        QCOMPARE(ids, (QStringList{QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("a")}));
    }

    void whatIsLockedOrHiddenIsPassedThroughByTheMouse()
    {
        const auto result = apply(R"({"op":"lock","id":"a"},
                                     {"op":"drag","from":[20,20],"to":[30,20]},
                                     {"op":"get","id":"a","property":"position"},
                                     {"op":"unlock","id":"a"},
                                     {"op":"hide","ids":["b","a"]},
                                     {"op":"drag","from":[20,20],"to":[30,20]},
                                     {"op":"get","id":"a","property":"position"},
                                     {"op":"show","ids":["b","a"]},
                                     {"op":"drag","from":[20,20],"to":[30,20]},
                                     {"op":"get","id":"a","property":"position"})");
        QCOMPARE(result.status, 0);
        QCOMPARE(value(result, 5), QStringLiteral("10,10"));
        QCOMPARE(value(result, 9), QStringLiteral("10,10"));
        QCOMPARE(value(result, 12), QStringLiteral("20,10"));
    }

    void duplicatesGoWhereTheyAreWanted()
    {
        const auto result = apply(R"({"op":"duplicate","id":"a"},
                                     {"op":"get","id":"rectangle1","property":"position"},
                                     {"op":"duplicate","ids":["a","b"],"by":[0,25]},
                                     {"op":"get","id":"rectangle3","property":"position"})");
        QCOMPARE(result.status, 0);
        QCOMPARE(result.line(3).value(QLatin1String("ids")).toArray(), QJsonArray{QStringLiteral("rectangle1")});
        QCOMPARE(value(result, 4), QStringLiteral("20,20"));
        QCOMPARE(result.line(5).value(QLatin1String("ids")).toArray().size(), 2);
        QCOMPARE(value(result, 6), QStringLiteral("50,65"));
    }

    void whatCannotBeDoneIsRefused_data()
    {
        QTest::addColumn<QByteArray>("edit");
        QTest::addColumn<QString>("said");
        QTest::newRow("no edge") << QByteArray(R"({"op":"align","id":"a","to":"inside"})") << QStringLiteral("\"to\"");
        QTest::newRow("edge missing") << QByteArray(R"({"op":"align","id":"a"})") << QStringLiteral("\"to\"");
        QTest::newRow("no axis") << QByteArray(R"({"op":"distribute","ids":["a","b","c"],"axis":"x"})")
                                 << QStringLiteral("\"axis\"");
        QTest::newRow("too few") << QByteArray(R"({"op":"distribute","ids":["a","b"],"axis":"vertical"})")
                                 << QStringLiteral("Three");
        QTest::newRow("one in a group") << QByteArray(R"({"op":"group","id":"a"})") << QStringLiteral("Two or more");
        QTest::newRow("id taken") << QByteArray(R"({"op":"group","ids":["a","b"],"group":"c"})")
                                  << QStringLiteral("\"c\"");
        QTest::newRow("no group") << QByteArray(R"({"op":"ungroup","id":"a"})") << QStringLiteral("no group");
        QTest::newRow("no order") << QByteArray(R"({"op":"order","id":"a","to":"up"})") << QStringLiteral("\"to\"");
        QTest::newRow("no point") << QByteArray(R"({"op":"duplicate","id":"a","by":3})") << QStringLiteral("\"by\"");
        QTest::newRow("one size") << QByteArray(R"({"op":"same-size","ids":["a"]})") << QStringLiteral("Two or more");
        QTest::newRow("unknown argument")
            << QByteArray(R"({"op":"lock","id":"a","on":true})") << QStringLiteral("\"on\"");
    }

    void whatCannotBeDoneIsRefused()
    {
        QFETCH(QByteArray, edit);
        QFETCH(QString, said);
        const auto result = apply(edit.constData());
        QCOMPARE(result.status, 1);
        const QString message = result.line(3).value(QLatin1String("message")).toString();
        QVERIFY2(message.contains(said), qPrintable(message));
    }

private:
    MeridaneProgram::Result apply(const char* edits) const
    {
        return m_project->apply(QByteArray("[") + ThreeRectangles + "," + edits + "]");
    }

    std::unique_ptr<ProjectFixture> m_project;
};

QTEST_MAIN(tst_CliApplyArrange)
#include "tst_CliApplyArrange.moc"
