#include "tests/cli/ProjectFixture.h"

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QJsonDocument>
#include <QTest>

#include <memory>

namespace {

QString value(const MeridaneProgram::Result& result, int line)
{
    return result.line(line).value(QLatin1String("value")).toString(QStringLiteral("no value"));
}

QByteArray importOf(const QString& file)
{
    const QJsonObject edit{{QStringLiteral("op"), QStringLiteral("import-image")}, {QStringLiteral("file"), file}};
    return QJsonDocument(edit).toJson(QJsonDocument::Compact);
}

QString id(const MeridaneProgram::Result& result, int line)
{
    return result.line(line).value(QLatin1String("id")).toString(QStringLiteral("no id"));
}

} // namespace

/// add-screen, remove-screen, add, remove, select, rotate, import-image.
class tst_CliApplyElements : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aScreenIsAddedAndRemoved();
    void anElementIsAddedWithItsProperties();
    void anElementGoesToTheFirstScreenUnlessAnotherIsNamed();
    void idsTakeTheSmallestFreeNumber();
    void anAddIsOneStepAndRefusedAsAWhole();
    void everyElementClassCanBeAdded();
    void elementsAreRemovedTogether();
    void selectingIsNoStep();
    void objectsOfTwoScreensAreNotSelectedTogether();
    void rotatingKeepsTheFixedPointUnlessOneIsNamed();
    void anImageIsImported();
    void aFileThatIsNoImageIsRefused();
    void anImportThatIsNotSavedLeavesNoFile();

private:
    QString makePicture(const char* name) const
    {
        QImage picture(4, 3, QImage::Format_RGB32);
        picture.fill(Qt::red);
        const QString file = m_project->path(name);
        return picture.save(file) ? file : QString();
    }

    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliApplyElements::init()
{
    m_project = std::make_unique<ProjectFixture>();
    QVERIFY(m_project->isValid());
}

void tst_CliApplyElements::aScreenIsAddedAndRemoved()
{
    auto result = m_project->apply(R"([{"op":"add-screen","id":"second"},
                                       {"op":"get","id":"second","property":"size"},
                                       {"op":"undo-count"}])");
    QCOMPARE(result.status, 0);
    QCOMPARE(value(result, 1), QStringLiteral("200,100"));
    QCOMPARE(result.line(2).value(QLatin1String("count")).toInt(), 1);
    QVERIFY(QFileInfo::exists(m_project->folder() + QStringLiteral("/screens/second.json")));

    result = m_project->apply(R"([{"op":"remove-screen","id":"second"},{"op":"undo-count"}])");
    QCOMPARE(result.status, 0);
    QCOMPARE(result.line(1).value(QLatin1String("count")).toInt(), 1);
    QVERIFY(!QFileInfo::exists(m_project->folder() + QStringLiteral("/screens/second.json")));
    QCOMPARE(m_project->run("check").status, 0);
}

void tst_CliApplyElements::anElementIsAddedWithItsProperties()
{
    auto result = m_project->apply(
        R"([{"op":"add","class":"Rectangle","id":"box",
             "properties":{"cornerRadius":"20","size":"50,40","position":"20,10","color":"#00ff00"}},
            {"op":"get","id":"box","property":"boundingSize"}])");
    QCOMPARE(result.status, 0);
    QCOMPARE(id(result, 0), QStringLiteral("box"));
    QCOMPARE(value(result, 1), QStringLiteral("50,40"));
    result = m_project->apply(R"([{"op":"get","id":"box","property":"cornerRadius"},
                                  {"op":"get","id":"box","property":"size"},
                                  {"op":"get","id":"box","property":"position"},
                                  {"op":"get","id":"box","property":"color"}])");
    QCOMPARE(value(result, 0), QStringLiteral("20"));
    QCOMPARE(value(result, 1), QStringLiteral("50,40"));
    QCOMPARE(value(result, 2), QStringLiteral("20,10"));
    QCOMPARE(value(result, 3), QStringLiteral("#00ff00"));
}

void tst_CliApplyElements::anElementGoesToTheFirstScreenUnlessAnotherIsNamed()
{
    const auto result = m_project->apply(R"([{"op":"add-screen","id":"second"},
                                             {"op":"add","class":"Rectangle","id":"one"},
                                             {"op":"add","class":"Rectangle","id":"two","screen":"second"},
                                             {"op":"get","id":"main/one","property":"size"},
                                             {"op":"get","id":"second/two","property":"size"}])");
    QCOMPARE(result.status, 0);
}

void tst_CliApplyElements::idsTakeTheSmallestFreeNumber()
{
    const auto result = m_project->apply(R"([{"op":"add","class":"Rectangle"},
                                             {"op":"add","class":"Rectangle"},
                                             {"op":"add","class":"Rectangle"},
                                             {"op":"remove","id":"rectangle2"},
                                             {"op":"add","class":"Rectangle"},
                                             {"op":"add","class":"Rectangle"}])");
    QCOMPARE(result.status, 0);
    QCOMPARE(id(result, 0), QStringLiteral("rectangle1"));
    QCOMPARE(id(result, 2), QStringLiteral("rectangle3"));
    QCOMPARE(id(result, 4), QStringLiteral("rectangle2"));
    QCOMPARE(id(result, 5), QStringLiteral("rectangle4"));
}

void tst_CliApplyElements::anAddIsOneStepAndRefusedAsAWhole()
{
    const auto result = m_project->apply(
        R"([{"op":"add","class":"Rectangle","properties":{"size":"50,40","cornerRadius":"21"}},
            {"op":"undo-count"},
            {"op":"add","class":"Rectangle","id":"box","properties":{"size":"50,40","cornerRadius":"20"}},
            {"op":"undo-count"},
            {"op":"undo"},
            {"op":"get","id":"box","property":"size"}])",
        {QStringLiteral("--keep-going")});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.line(0).value(QLatin1String("message")).toString(),
             QStringLiteral("The corner radius must be smaller than or equal to 20 px."));
    QCOMPARE(result.line(1).value(QLatin1String("count")).toInt(-1), 0);
    QCOMPARE(result.line(3).value(QLatin1String("count")).toInt(-1), 1);
    QCOMPARE(result.line(5).value(QLatin1String("ok")).toBool(true), false);
}

void tst_CliApplyElements::everyElementClassCanBeAdded()
{
    const QStringList classes = MeridaneProgram::classNames();
    QVERIFY(classes.contains(QStringLiteral("Rectangle")));
    QByteArray edits = "[";
    for (const QString& name : classes)
        edits += "{\"op\":\"add\",\"class\":\"" + name.toUtf8() + "\"},";
    edits += "{\"op\":\"undo-count\"}]";
    auto result = m_project->apply(edits);
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.line(int(classes.size())).value(QLatin1String("count")).toInt(), classes.size());

    // Each is saved and read back as it was.
    const auto saved = m_project->content();
    result = m_project->apply(R"([{"op":"add","class":"Rectangle","id":"extra"},{"op":"remove","id":"extra"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(m_project->content(), saved);
}

void tst_CliApplyElements::elementsAreRemovedTogether()
{
    const auto result = m_project->apply(R"([{"op":"add","class":"Rectangle"},
                                             {"op":"add","class":"Rectangle"},
                                             {"op":"add","class":"Rectangle"},
                                             {"op":"remove","ids":["rectangle1","rectangle3","rectangle1"]},
                                             {"op":"undo-count"},
                                             {"op":"get","id":"rectangle2","property":"size"},
                                             {"op":"undo"},
                                             {"op":"get","id":"rectangle1","property":"size"},
                                             {"op":"get","id":"rectangle3","property":"size"},
                                             {"op":"redo"},
                                             {"op":"remove","ids":[]},
                                             {"op":"undo-count"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.line(4).value(QLatin1String("count")).toInt(), 4);
    QCOMPARE(result.line(11).value(QLatin1String("count")).toInt(), 4);
}

void tst_CliApplyElements::selectingIsNoStep()
{
    const auto result = m_project->apply(R"([{"op":"add","class":"Rectangle"},
                                             {"op":"add","class":"Rectangle"},
                                             {"op":"select","id":"rectangle1"},
                                             {"op":"select","ids":["rectangle1","rectangle2"]},
                                             {"op":"select","ids":[]},
                                             {"op":"select","id":"main"},
                                             {"op":"undo-count"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(result.line(6).value(QLatin1String("count")).toInt(), 2);
}

void tst_CliApplyElements::objectsOfTwoScreensAreNotSelectedTogether()
{
    const auto result = m_project->apply(R"([{"op":"add-screen","id":"second"},
                                             {"op":"add","class":"Rectangle","id":"one"},
                                             {"op":"add","class":"Rectangle","id":"two","screen":"second"},
                                             {"op":"select","ids":["one","two"]}])");
    QCOMPARE(result.status, 1);
    QVERIFY(result.line(3).value(QLatin1String("message")).toString().contains(QLatin1String("one screen")));
}

void tst_CliApplyElements::rotatingKeepsTheFixedPointUnlessOneIsNamed()
{
    const auto result = m_project->apply(R"([{"op":"add","class":"Rectangle","id":"box"},
                                             {"op":"rotate","id":"box","angle":45},
                                             {"op":"get","id":"box","property":"rotation"},
                                             {"op":"rotate","id":"box","angle":-30.5,"fixedPoint":"TopLeft"},
                                             {"op":"get","id":"box","property":"rotation"},
                                             {"op":"rotate","id":"box","angle":90},
                                             {"op":"get","id":"box","property":"rotation"},
                                             {"op":"rotate","id":"box","angle":90},
                                             {"op":"undo-count"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 2), QStringLiteral("angle: 45; fixedPoint: Center;"));
    QCOMPARE(value(result, 4), QStringLiteral("angle: -30.5; fixedPoint: TopLeft;"));
    QCOMPARE(value(result, 6), QStringLiteral("angle: 90; fixedPoint: TopLeft;"));
    QCOMPARE(result.line(8).value(QLatin1String("count")).toInt(), 4);
}

void tst_CliApplyElements::anImageIsImported()
{
    const QString picture = makePicture("logo.png");
    const auto result = m_project->apply('[' + importOf(picture) + ',' + importOf(picture) + R"(,
        {"op":"add","class":"Image","id":"logo","properties":{"source":"logo.png"}}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(id(result, 0), QStringLiteral("logo.png"));
    QVERIFY(id(result, 1) != QStringLiteral("logo.png"));
    QVERIFY(id(result, 1).endsWith(QLatin1String(".png")));
}

void tst_CliApplyElements::aFileThatIsNoImageIsRefused()
{
    const auto before = m_project->content();
    for (const char* name : {"text.png", "empty.png", "missing.png"}) {
        QFile file(m_project->path(name));
        if (qstrcmp(name, "missing.png") != 0) {
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(qstrcmp(name, "text.png") == 0 ? "no picture" : "");
            file.close();
        }
        const auto result = m_project->apply('[' + importOf(file.fileName()) + ']');
        QCOMPARE(result.status, 1);
        QVERIFY(result.line(0).value(QLatin1String("message")).toString().contains(file.fileName()));
    }
    QCOMPARE(m_project->content(), before);
}

void tst_CliApplyElements::anImportThatIsNotSavedLeavesNoFile()
{
    const auto before = m_project->content();
    const QString picture = makePicture("logo.png");
    QCOMPARE(m_project->apply('[' + importOf(picture) + ']', {QStringLiteral("--dry-run")}).status, 0);
    QCOMPARE(m_project->content(), before);
    QCOMPARE(m_project->apply('[' + importOf(picture) + R"(,{"op":"undo"}])").status, 1);
    QCOMPARE(m_project->content(), before);
}

QTEST_GUILESS_MAIN(tst_CliApplyElements)
#include "tst_CliApplyElements.moc"
