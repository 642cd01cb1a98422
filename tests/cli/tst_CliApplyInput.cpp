#include "tests/cli/ProjectFixture.h"

#include <QTest>

#include <memory>

namespace {

QString value(const MeridaneProgram::Result& result, int line)
{
    return result.line(line).value(QLatin1String("value")).toString(QStringLiteral("no value"));
}

int count(const MeridaneProgram::Result& result, int line)
{
    return result.line(line).value(QLatin1String("count")).toInt(-1);
}

} // namespace

/// handle, drag, key: the mouse and the keyboard on the canvas.
class tst_CliApplyInput : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aHandleIsFound_data();
    void aHandleIsFound();
    void aPointHandleIsFound();
    void aDragMovesWhatItGrabs();
    void aDragMeetsFractionsOfAPixel();
    void aDragGoesOutsideOfTheScreen();
    void aDragPassesThroughItsViaPoints();
    void aDragOfAHandleResizes();
    void aDragIsOneStep();
    void aDragThatEndsWhereItBeganIsNone();
    void aDragOnEmptyGroundSelects();
    void modifiersAreHeldDown();
    void aDragTakesTheScreenTouchedLast();
    void anElementOffTheScreenCanBeDragged();
    void anArrowKeyMovesTheElement();
    void aKeyReachesTheElement();
    void aKeyThatNobodyTakesChangesNothing();

private:
    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliApplyInput::init()
{
    m_project = std::make_unique<ProjectFixture>();
    QVERIFY(m_project->isValid());
    QCOMPARE(m_project->apply(ProjectFixture::addBox()).status, 0); // 20 … 70, 10 … 50
}

void tst_CliApplyInput::aHandleIsFound_data()
{
    QTest::addColumn<QByteArray>("at");
    QTest::addColumn<int>("handle");
    QTest::addColumn<QString>("selectedToolTip");
    const QString point = QStringLiteral("Drag this point to resize");
    const QString line = QStringLiteral("Drag this line to resize");
    const QString name = QStringLiteral("Rectangle: box");
    QTest::newRow("top left") << QByteArray("[20,10]") << 0 << point;
    QTest::newRow("top") << QByteArray("[45,10]") << 1 << line;
    QTest::newRow("top right") << QByteArray("[70,10]") << 2 << point;
    QTest::newRow("left") << QByteArray("[20,30]") << 3 << line;
    QTest::newRow("inside") << QByteArray("[45,30]") << 4 << name;
    QTest::newRow("right") << QByteArray("[70,30]") << 5 << line;
    QTest::newRow("bottom left") << QByteArray("[20,50]") << 6 << point;
    QTest::newRow("bottom") << QByteArray("[45,50]") << 7 << line;
    QTest::newRow("bottom right") << QByteArray("[70,50]") << 8 << point;
    QTest::newRow("between pixels") << QByteArray("[70.5,50.25]") << 8 << point;
    QTest::newRow("far away") << QByteArray("[-5000,9000.5]") << 4 << name;
}

void tst_CliApplyInput::aHandleIsFound()
{
    QFETCH(QByteArray, at);
    QFETCH(int, handle);
    QFETCH(QString, selectedToolTip);
    const QByteArray search = R"({"op":"handle","id":"box","at":)" + at + '}';
    const auto result =
        m_project->apply('[' + search + R"(,{"op":"select","id":"box"},)" + search + R"(,{"op":"undo-count"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    for (const int line : {0, 2}) {
        QCOMPARE(result.line(line).value(QLatin1String("handle")).toInt(-2), handle);
        QCOMPARE(result.line(line).value(QLatin1String("pointHandle")).toInt(-2), -1);
    }
    QCOMPARE(result.line(0).value(QLatin1String("tooltip")).toString(), QStringLiteral("Rectangle: box"));
    QCOMPARE(result.line(2).value(QLatin1String("tooltip")).toString(), selectedToolTip);
    QCOMPARE(count(result, 3), 0);
}

void tst_CliApplyInput::aPointHandleIsFound()
{
    const auto result = m_project->apply(
        R"([{"op":"add","class":"Line","id":"line","properties":{"position":"10,20"}},
            {"op":"select","ids":[]},
            {"op":"handle","id":"line","at":[110,20]},
            {"op":"select","id":"line"},
            {"op":"handle","id":"line","at":[110,20]},
            {"op":"handle","id":"line","at":[60,20]}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    const auto pointHandle = [&](int line) { return result.line(line).value(QLatin1String("pointHandle")).toInt(-2); };
    const auto toolTip = [&](int line) { return result.line(line).value(QLatin1String("tooltip")).toString(); };
    QCOMPARE(pointHandle(2), 1);
    QCOMPARE(toolTip(2), QStringLiteral("Line: line"));
    QCOMPARE(pointHandle(4), 1);
    QCOMPARE(toolTip(4), QStringLiteral("This is the end point."));
    QCOMPARE(pointHandle(5), -1);
    QCOMPARE(toolTip(5), QStringLiteral("Line: line"));
}

void tst_CliApplyInput::aDragMovesWhatItGrabs()
{
    const auto result = m_project->apply(R"([{"op":"drag","from":[45,30],"to":[55,25]},
                                             {"op":"get","id":"box","property":"position"},
                                             {"op":"get","id":"box","property":"size"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 1), QStringLiteral("30,5"));
    QCOMPARE(value(result, 2), QStringLiteral("50,40"));
}

void tst_CliApplyInput::aDragMeetsFractionsOfAPixel()
{
    const auto result = m_project->apply(R"([{"op":"drag","from":[45.25,30.5],"to":[55.75,25.125]},
                                             {"op":"get","id":"box","property":"position"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 1), QStringLiteral("30.5,4.625"));
}

void tst_CliApplyInput::aDragGoesOutsideOfTheScreen()
{
    const auto result = m_project->apply(R"([{"op":"drag","from":[45,30],"to":[-2955,4030]},
                                             {"op":"get","id":"box","property":"position"},
                                             {"op":"drag","from":[-2955,4030],"to":[45,30]},
                                             {"op":"get","id":"box","property":"position"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 1), QStringLiteral("-2980,4010"));
    QCOMPARE(value(result, 3), QStringLiteral("20,10"));
}

void tst_CliApplyInput::aDragPassesThroughItsViaPoints()
{
    // Held beyond its opposite corner and brought back, the box is as large as at the end of a straight way.
    const auto result = m_project->apply(
        R"([{"op":"select","id":"box"},
            {"op":"drag","from":[70,50],"to":[80,60],"via":[[60,45],[0,0],[150,90]]},
            {"op":"get","id":"box","property":"size"},
            {"op":"get","id":"box","property":"position"},
            {"op":"undo-count"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 2), QStringLiteral("60,50"));
    QCOMPARE(value(result, 3), QStringLiteral("20,10"));
    QCOMPARE(count(result, 4), 1);
}

void tst_CliApplyInput::aDragOfAHandleResizes()
{
    const auto result = m_project->apply(R"([{"op":"select","id":"box"},
                                             {"op":"drag","from":[20,10],"to":[10,5]},
                                             {"op":"get","id":"box","property":"size"},
                                             {"op":"get","id":"box","property":"position"},
                                             {"op":"get","id":"box","property":"boundingSize"},
                                             {"op":"undo"},
                                             {"op":"get","id":"box","property":"size"},
                                             {"op":"get","id":"box","property":"position"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 2), QStringLiteral("60,45"));
    QCOMPARE(value(result, 3), QStringLiteral("10,5"));
    QCOMPARE(value(result, 4), QStringLiteral("60,45"));
    QCOMPARE(value(result, 6), QStringLiteral("50,40"));
    QCOMPARE(value(result, 7), QStringLiteral("20,10"));
}

void tst_CliApplyInput::aDragIsOneStep()
{
    const auto result = m_project->apply(R"([{"op":"drag","from":[45,30],"to":[55,25],"via":[[50,50],[60,60]]},
                                             {"op":"undo-count"},
                                             {"op":"undo"},
                                             {"op":"get","id":"box","property":"position"},
                                             {"op":"redo"},
                                             {"op":"get","id":"box","property":"position"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(count(result, 1), 1);
    QCOMPARE(result.line(1).value(QLatin1String("text")), result.line(2).value(QLatin1String("text")));
    QCOMPARE(value(result, 3), QStringLiteral("20,10"));
    QCOMPARE(value(result, 5), QStringLiteral("30,5"));
}

void tst_CliApplyInput::aDragThatEndsWhereItBeganIsNone()
{
    const auto before = m_project->content();
    const auto result = m_project->apply(R"([{"op":"drag","from":[45,30],"to":[45,30],"via":[[90,70]]},
                                             {"op":"drag","from":[45,30],"to":[45,30]},
                                             {"op":"undo-count"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(count(result, 2), 0);
    QCOMPARE(m_project->content(), before);
}

void tst_CliApplyInput::aDragOnEmptyGroundSelects()
{
    const auto result = m_project->apply(R"([{"op":"add","class":"Rectangle","id":"other",
                                              "properties":{"position":"100,10","size":"20,20"}},
                                             {"op":"drag","from":[5,5],"to":[130,60]},
                                             {"op":"undo-count"},
                                             {"op":"drag","from":[45,30],"to":[50,40]},
                                             {"op":"get","id":"box","property":"position"},
                                             {"op":"get","id":"other","property":"position"},
                                             {"op":"undo-count"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(count(result, 2), 1);
    QCOMPARE(value(result, 4), QStringLiteral("25,20"));
    QCOMPARE(value(result, 5), QStringLiteral("105,20"));
    QCOMPARE(count(result, 6), 2);
}

void tst_CliApplyInput::modifiersAreHeldDown()
{
    // Shift keeps a move to one direction.
    for (const char* modifiers : {R"(["Shift"])", R"("Shift")"}) {
        const auto result =
            m_project->apply(R"([{"op":"drag","from":[45,30],"to":[75,35],"modifiers":)" + QByteArray(modifiers) + R"(},
                                                 {"op":"get","id":"box","property":"position"}])",
                             {QStringLiteral("--dry-run")});
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(value(result, 1), QStringLiteral("50,10"));
    }
    QCOMPARE(m_project->apply(R"([{"op":"drag","from":[150,80],"to":[160,90],"modifiers":["Ctrl","Alt"]}])").status, 0);
}

void tst_CliApplyInput::aDragTakesTheScreenTouchedLast()
{
    const auto result = m_project->apply(R"([{"op":"add-screen","id":"second"},
                                             {"op":"add","class":"Rectangle","id":"there","screen":"second",
                                              "properties":{"position":"20,10","size":"50,40"}},
                                             {"op":"drag","from":[45,30],"to":[46,40]},
                                             {"op":"get","id":"there","property":"position"},
                                             {"op":"get","id":"box","property":"position"},
                                             {"op":"drag","from":[45,30],"to":[45,40]},
                                             {"op":"get","id":"box","property":"position"},
                                             {"op":"drag","from":[46,40],"to":[46,50],"screen":"second"},
                                             {"op":"get","id":"there","property":"position"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 3), QStringLiteral("21,20"));
    QCOMPARE(value(result, 4), QStringLiteral("20,10"));
    QCOMPARE(value(result, 6), QStringLiteral("20,20"));
    QCOMPARE(value(result, 8), QStringLiteral("21,30"));
}

void tst_CliApplyInput::anElementOffTheScreenCanBeDragged()
{
    const auto result = m_project->apply(R"([{"op":"set","id":"box","property":"position","value":"1500.5,-700"},
                                             {"op":"drag","from":[1520,-680],"to":[20,20]},
                                             {"op":"get","id":"box","property":"position"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 2), QStringLiteral("0.5,0"));
}

void tst_CliApplyInput::anArrowKeyMovesTheElement()
{
    const auto result = m_project->apply(R"([{"op":"key","id":"box","keys":"Right"},
                                             {"op":"key","id":"box","keys":"Right"},
                                             {"op":"key","id":"box","keys":"Shift+Down"},
                                             {"op":"get","id":"box","property":"position"},
                                             {"op":"undo-count"},
                                             {"op":"key","id":"box","keys":"Del"},
                                             {"op":"get","id":"box","property":"position"}])",
                                         {QStringLiteral("--keep-going")});
    QCOMPARE(value(result, 3), QStringLiteral("22,20"));
    QCOMPARE(count(result, 4), 3);
    QCOMPARE(result.line(5).value(QLatin1String("ok")).toBool(false), true);
    QCOMPARE(result.line(6).value(QLatin1String("ok")).toBool(true), false);
}

void tst_CliApplyInput::aKeyReachesTheElement()
{
    const auto result = m_project->apply(R"([{"op":"add","class":"TextBox","id":"label"},
                                             {"op":"get","id":"label","property":"font"},
                                             {"op":"key","id":"label","keys":"Alt+B"},
                                             {"op":"get","id":"label","property":"font"},
                                             {"op":"undo-count"},
                                             {"op":"undo"},
                                             {"op":"get","id":"label","property":"font"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QVERIFY(!value(result, 1).contains(QLatin1String("bold: true;")));
    QVERIFY2(value(result, 3).contains(QLatin1String("bold: true;")), qPrintable(value(result, 3)));
    QCOMPARE(count(result, 4), 2);
    QCOMPARE(value(result, 6), value(result, 1));
}

void tst_CliApplyInput::aKeyThatNobodyTakesChangesNothing()
{
    const auto before = m_project->content();
    for (const char* keys : {"Alt+B", "F7", "x", "Ctrl+Shift+Y", "Escape"}) {
        const auto result =
            m_project->apply(R"([{"op":"key","id":"box","keys":")" + QByteArray(keys) + R"("},{"op":"undo-count"}])");
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(count(result, 1), 0);
        QCOMPARE(m_project->content(), before);
    }
}

QTEST_GUILESS_MAIN(tst_CliApplyInput)
#include "tst_CliApplyInput.moc"
