#include "tests/cli/ProjectFixture.h"

#include <QJsonDocument>
#include <QTest>

#include <memory>

namespace {

QString value(const MeridaneProgram::Result& result, int line)
{
    return result.line(line).value(QLatin1String("value")).toString(QStringLiteral("no value"));
}

} // namespace

/// set, get, qml, bounds.
class tst_CliApplyValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void everyPropertyCanBeSetAndRead_data();
    void everyPropertyCanBeSetAndRead();
    void derivedValuesFollow();
    void aValueThatDoesNotConvertIsKeptAndChecked();
    void aPropertyThatIsNotEditableCanBeSet();
    void theScreenHasProperties();
    void theQmlIsThatOfAnExport();
    void theBoundsHoldTheBorder();
    void textsOfEveryKindSurvive();

private:
    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliApplyValues::init()
{
    m_project = std::make_unique<ProjectFixture>();
    QVERIFY(m_project->isValid());
    QCOMPARE(m_project->apply(ProjectFixture::addBox()).status, 0);
}

void tst_CliApplyValues::everyPropertyCanBeSetAndRead_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QByteArray>("given");
    QTest::addColumn<QByteArray>("kept");
    const auto row = [](const char* property, const char* given, const char* kept) {
        QTest::newRow(property) << QByteArray(property) << QByteArray(given) << QByteArray(kept);
    };
    row("position", "12.5,-3", "12.5,-3");
    row("rotation", "angle: 30; fixedPoint: BottomRight;", "angle: 30; fixedPoint: BottomRight;");
    row("size", "10,20.25", "10,20.25");
    row("boundingSize", "60,70", "60,70");
    row("keepRatio", "1.5", "1.5");
    row("color", "navy", "#000080");
    row("border", "width: 2; color: #80ff0000;", "width: 2; color: #80ff0000;");
    row("cornerRadius", "7", "7");
}

void tst_CliApplyValues::everyPropertyCanBeSetAndRead()
{
    QFETCH(QByteArray, property);
    QFETCH(QByteArray, given);
    QFETCH(QByteArray, kept);
    const QByteArray get = R"({"op":"get","id":"box","property":")" + property + R"("})";
    const auto result =
        m_project->apply(R"([{"op":"set","id":"box","property":")" + property + R"(","value":")" + given + R"("},)"
                         + get + R"(,{"op":"undo-count"},{"op":"undo"},)" + get + R"(,{"op":"redo"},)" + get + ']');
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 1), QString::fromUtf8(kept));
    QCOMPARE(result.line(2).value(QLatin1String("count")).toInt(), 1);
    QVERIFY(value(result, 4) != QString::fromUtf8(kept));
    QCOMPARE(value(result, 6), QString::fromUtf8(kept));

    const auto reopened = m_project->apply('[' + get + ']');
    QCOMPARE(value(reopened, 0), QString::fromUtf8(kept));
}

void tst_CliApplyValues::derivedValuesFollow()
{
    const auto result = m_project->apply(
        R"([{"op":"set","id":"box","property":"border","value":"width: 3; color: #000000;"},
            {"op":"get","id":"box","property":"boundingSize"},
            {"op":"set","id":"box","property":"boundingSize","value":"2,43"},
            {"op":"get","id":"box","property":"size"},
            {"op":"undo"},
            {"op":"get","id":"box","property":"size"},
            {"op":"set","id":"box","property":"keepRatio","value":"2"},
            {"op":"set","id":"box","property":"boundingSize","value":"103,43"},
            {"op":"get","id":"box","property":"size"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 1), QStringLiteral("53,43"));
    QCOMPARE(value(result, 3), QStringLiteral("1,40"));
    QCOMPARE(value(result, 5), QStringLiteral("50,40"));
    QCOMPARE(value(result, 8), QStringLiteral("100,48.5"));
}

void tst_CliApplyValues::aValueThatDoesNotConvertIsKeptAndChecked()
{
    auto result = m_project->apply(R"([{"op":"set","id":"box","property":"size","value":"wide"},
                                       {"op":"get","id":"box","property":"size"},
                                       {"op":"qml","id":"box"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(result, 1), QStringLiteral("wide"));
    QVERIFY(!result.line(2).value(QLatin1String("qml")).toString().contains(QLatin1String("width:")));
    QCOMPARE(value(m_project->apply(R"([{"op":"get","id":"box","property":"size"}])"), 0), QStringLiteral("wide"));
    result = m_project->run("check");
    QCOMPARE(result.status, 1);
    QVERIFY2(result.output.contains("main/box.size: "), result.output.constData());
    // The export goes on without that line.
    QCOMPARE(m_project->run("export", {QStringLiteral("--output"), m_project->path("out")}).status, 0);
}

void tst_CliApplyValues::aPropertyThatIsNotEditableCanBeSet()
{
    // "size" of a rectangle has flags 3: it is neither shown nor editable in the sheet.
    QCOMPARE(m_project->apply(R"([{"op":"set","id":"box","property":"size","value":"5,5"}])").status, 0);
}

void tst_CliApplyValues::theScreenHasProperties()
{
    const auto result = m_project->apply(R"([{"op":"set","id":"main","property":"color","value":"#102030"},
                                             {"op":"set","id":"main/","property":"size","value":"320,240"},
                                             {"op":"get","id":"main","property":"color"},
                                             {"op":"get","id":"main","property":"size"},
                                             {"op":"set","id":"main","property":"size","value":"0,240"}])",
                                         {QStringLiteral("--keep-going")});
    QCOMPARE(result.status, 1);
    QCOMPARE(value(result, 2), QStringLiteral("#102030"));
    QCOMPARE(value(result, 3), QStringLiteral("320,240"));
    QCOMPARE(result.line(4).value(QLatin1String("ok")).toBool(true), false);
}

void tst_CliApplyValues::theQmlIsThatOfAnExport()
{
    const auto result = m_project->apply(R"([{"op":"set","id":"box","property":"cornerRadius","value":"12"},
                                             {"op":"qml","id":"box"},
                                             {"op":"qml","id":"box","indent":2}])");
    QCOMPARE(result.status, 0);
    const QString qml = result.line(1).value(QLatin1String("qml")).toString();
    QVERIFY(qml.startsWith(QLatin1String("Rectangle2 {\n\tid: box\n")));
    QVERIFY(qml.contains(QLatin1String("\n\twidth: 50\n")));
    QVERIFY(qml.contains(QLatin1String("\n\tcornerRadius: 12\n")));
    QVERIFY(qml.endsWith(QLatin1String("\n}")));
    const QString indented = result.line(2).value(QLatin1String("qml")).toString();
    QVERIFY(indented.startsWith(QLatin1String("\t\tRectangle2 {\n\t\t\tid: box\n")));
    QVERIFY(indented.endsWith(QLatin1String("\n\t\t}")));
}

void tst_CliApplyValues::theBoundsHoldTheBorder()
{
    const auto result = m_project->apply(R"([{"op":"bounds","id":"box"},
                                             {"op":"set","id":"box","property":"border","value":"width: 3; color: #000000;"},
                                             {"op":"bounds","id":"box"},
                                             {"op":"set","id":"box","property":"size","value":"none"},
                                             {"op":"bounds","id":"box"}])");
    QVERIFY2(result.status == 0, result.errors.constData());
    const auto rect = [&result](int line) { return result.line(line).value(QLatin1String("rect")).toArray(); };
    QCOMPARE(rect(0), QJsonArray({0, 0, 50, 40}));
    QCOMPARE(rect(2), QJsonArray({-1.5, -1.5, 53, 43}));
    QCOMPARE(rect(4), QJsonArray({0, 0, 0, 0}));
}

void tst_CliApplyValues::textsOfEveryKindSurvive()
{
    const QString text = QStringLiteral("Ölstand \"5\" \\ {x: 1}\n\t炉 \U0001F525 <b>");
    const QJsonObject add{{QStringLiteral("op"), QStringLiteral("add")},
                          {QStringLiteral("class"), QStringLiteral("TextBox")},
                          {QStringLiteral("id"), QStringLiteral("label")},
                          {QStringLiteral("properties"), QJsonObject{{QStringLiteral("text"), text}}}};
    const auto result = m_project->apply(QJsonDocument(QJsonArray{add}).toJson());
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(value(m_project->apply(R"([{"op":"get","id":"label","property":"text"}])"), 0), text);
}

QTEST_GUILESS_MAIN(tst_CliApplyValues)
#include "tst_CliApplyValues.moc"
