#include "tests/cli/ProjectFixture.h"

#include <QTest>

#include <memory>

namespace {

QString text(const MeridaneProgram::Result& result, int line)
{
    return result.line(line).value(QLatin1String("text")).toString(QStringLiteral("no text"));
}

} // namespace

/// undo, redo, undo-count.
class tst_CliApplyHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void everyStepGoesBackAndForth();
    void whatIsUndoneIsNotSaved();
    void undoingEverythingGivesTheSameBytes();
    void anEditWithoutEffectKeepsTheRedoList();
    void aRefusedEditKeepsTheRedoList();
    void thereIsNothingToUndoAtFirst();

private:
    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliApplyHistory::init()
{
    m_project = std::make_unique<ProjectFixture>();
    QVERIFY(m_project->isValid());
    QCOMPARE(m_project->apply(ProjectFixture::addBox()).status, 0);
}

void tst_CliApplyHistory::everyStepGoesBackAndForth()
{
    const auto result = m_project->apply(R"([{"op":"set","id":"box","property":"color","value":"#010203"},
                                             {"op":"add","class":"Rectangle"},
                                             {"op":"undo-count"},
                                             {"op":"undo"},
                                             {"op":"undo"},
                                             {"op":"undo-count"},
                                             {"op":"redo"},
                                             {"op":"redo"},
                                             {"op":"undo-count"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    const QJsonObject full = result.line(2);
    QCOMPARE(full.value(QLatin1String("count")).toInt(), 2);
    QCOMPARE(full.value(QLatin1String("index")).toInt(), 2);
    QVERIFY(!text(result, 2).isEmpty());
    QCOMPARE(text(result, 3), text(result, 2));
    QVERIFY(text(result, 4) != text(result, 3));
    QCOMPARE(result.line(5).value(QLatin1String("count")).toInt(), 2);
    QCOMPARE(result.line(5).value(QLatin1String("index")).toInt(-1), 0);
    QCOMPARE(text(result, 5), QString());
    QCOMPARE(text(result, 6), text(result, 4));
    QCOMPARE(text(result, 7), text(result, 3));
    QCOMPARE(result.line(8), full);
}

void tst_CliApplyHistory::whatIsUndoneIsNotSaved()
{
    QCOMPARE(m_project
                 ->apply(R"([{"op":"add","class":"Rectangle","id":"kept"},
                                  {"op":"add","class":"Rectangle","id":"gone"},
                                  {"op":"undo"}])")
                 .status,
             0);
    QCOMPARE(m_project->apply(R"([{"op":"get","id":"kept","property":"size"}])").status, 0);
    QCOMPARE(m_project->apply(R"([{"op":"get","id":"gone","property":"size"}])").status, 1);
}

void tst_CliApplyHistory::undoingEverythingGivesTheSameBytes()
{
    const auto before = m_project->content();
    QCOMPARE(m_project
                 ->apply(R"([{"op":"set","id":"box","property":"boundingSize","value":"60,60"},
                                  {"op":"remove","id":"box"},
                                  {"op":"add-screen","id":"second"},
                                  {"op":"remove-screen","id":"main"},
                                  {"op":"undo"},{"op":"undo"},{"op":"undo"},{"op":"undo"}])")
                 .status,
             0);
    QCOMPARE(m_project->content(), before);
}

void tst_CliApplyHistory::anEditWithoutEffectKeepsTheRedoList()
{
    const auto result = m_project->apply(R"([{"op":"set","id":"box","property":"color","value":"#010203"},
                                             {"op":"undo"},
                                             {"op":"set","id":"box","property":"size","value":"50,40"},
                                             {"op":"select","id":"box"},
                                             {"op":"drag","from":[45,30],"to":[45,30]},
                                             {"op":"redo"},
                                             {"op":"get","id":"box","property":"color"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.line(6).value(QLatin1String("value")).toString(), QStringLiteral("#010203"));
}

void tst_CliApplyHistory::aRefusedEditKeepsTheRedoList()
{
    const auto result = m_project->apply(R"([{"op":"set","id":"box","property":"color","value":"#010203"},
                                             {"op":"undo"},
                                             {"op":"set","id":"box","property":"cornerRadius","value":"-1"},
                                             {"op":"redo"}])",
                                         {QStringLiteral("--keep-going")});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.line(2).value(QLatin1String("ok")).toBool(true), false);
    QCOMPARE(result.line(3).value(QLatin1String("ok")).toBool(false), true);
}

void tst_CliApplyHistory::thereIsNothingToUndoAtFirst()
{
    const auto result =
        m_project->apply(R"([{"op":"undo"},{"op":"redo"},{"op":"undo-count"}])", {QStringLiteral("--keep-going")});
    QCOMPARE(result.status, 1);
    for (int i = 0; i < 2; ++i) {
        QCOMPARE(result.line(i).value(QLatin1String("ok")).toBool(true), false);
        QVERIFY(!result.line(i).value(QLatin1String("message")).toString().isEmpty());
    }
    QCOMPARE(result.line(2).value(QLatin1String("count")).toInt(-1), 0);
}

QTEST_GUILESS_MAIN(tst_CliApplyHistory)
#include "tst_CliApplyHistory.moc"
