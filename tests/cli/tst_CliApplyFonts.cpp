#include "tests/cli/ProjectFixture.h"

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTest>

#include <memory>

/// import-font: into the list, onto the canvas, into the export. The font of the tests is installed nowhere.
class tst_CliApplyFonts : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project = std::make_unique<ProjectFixture>();
        QVERIFY(m_project->isValid());
    }

    void anImportedFontIsListedDrawnAndExported();
    void theFontOfAWorkingFolderIsFound();
    void aFileThatIsNoFontIsRefused();
    void anImportThatIsNotSavedLeavesNoFile();
    void onlyFontsInUseAreExported();

private:
    static QByteArray import(const QString& file)
    {
        return QJsonDocument(
                   QJsonObject{{QStringLiteral("op"), QStringLiteral("import-font")}, {QStringLiteral("file"), file}})
            .toJson(QJsonDocument::Compact);
    }
    static QByteArray importSegments() { return import(QStringLiteral(MERIDANE_FONT)); }
    /// A text in the font, on the screen "main".
    static QByteArray text()
    {
        return R"({"op":"add","class":"TextBox","properties":{"text":"21.5 A","size":"180,90",
                   "font":"family: Panel Segments; pixelSize: 40;"}})";
    }
    QImage drawn() const
    {
        const QString folder = m_project->path("pictures");
        m_project->run("render", {QStringLiteral("--output"), folder});
        return QImage(folder + QStringLiteral("/main.png"));
    }

    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliApplyFonts::anImportedFontIsListedDrawnAndExported()
{
    QCOMPARE(m_project->apply('[' + text() + ']').status, 0);
    const QImage fallback = drawn();
    QVERIFY(!fallback.isNull());
    auto result = m_project->run("check");
    QCOMPARE(result.status, 1);
    QVERIFY(result.output.contains("Panel Segments"));

    result = m_project->apply('[' + importSegments() + ',' + importSegments() + ']');
    QVERIFY2(result.status == 0, result.errors.constData());
    for (int line : {0, 1}) {
        QCOMPARE(result.line(line).value(QLatin1String("id")).toString(), QStringLiteral("PanelSegments.otf"));
        QCOMPARE(result.line(line).value(QLatin1String("families")).toArray(),
                 QJsonArray{QStringLiteral("Panel Segments")});
    }
    QCOMPARE(m_project->readJson("project.json").value(QLatin1String("fonts")).toArray(),
             QJsonArray{QStringLiteral("PanelSegments.otf")});
    result = m_project->run("check");
    QVERIFY2(result.status == 0, result.output.constData());
    QVERIFY(drawn() != fallback);

    const QString folder = m_project->path("export");
    QCOMPARE(m_project->run("export", {QStringLiteral("--output"), folder}).status, 0);
    const auto files = ProjectFixture::content(folder);
    QCOMPARE(files.value(QStringLiteral("/fonts/PanelSegments.otf")), m_project->read("fonts/PanelSegments.otf"));
    QVERIFY(files.value(QStringLiteral("/screens/main.qml")).contains("family: \"Panel Segments\""));
}

void tst_CliApplyFonts::theFontOfAWorkingFolderIsFound()
{
    const QString folder = QFileInfo(QStringLiteral(MERIDANE_FONT)).path();
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(folder));
    const auto result = m_project->apply('[' + import(QStringLiteral("PanelSegments.otf")) + ']');
    QVERIFY(QDir::setCurrent(before));
    QVERIFY2(result.status == 0, result.errors.constData());
}

void tst_CliApplyFonts::aFileThatIsNoFontIsRefused()
{
    const auto before = m_project->content();
    m_project->write("../text.ttf", "no font");
    for (const char* name : {"text.ttf", "missing.ttf"}) {
        const QString file = m_project->path(name);
        const auto result = m_project->apply('[' + import(file) + ']');
        QCOMPARE(result.status, 1);
        QVERIFY(result.line(0).value(QLatin1String("message")).toString().contains(file));
    }
    QCOMPARE(m_project->apply(R"([{"op":"import-font"}])").status, 1);
    QCOMPARE(m_project->apply(R"([{"op":"import-font","file":"x","name":"y"}])").status, 1);
    QCOMPARE(m_project->content(), before);
}

void tst_CliApplyFonts::anImportThatIsNotSavedLeavesNoFile()
{
    const auto before = m_project->content();
    QCOMPARE(m_project->apply('[' + importSegments() + ']', {QStringLiteral("--dry-run")}).status, 0);
    QCOMPARE(m_project->content(), before);
    QCOMPARE(m_project->apply('[' + importSegments() + R"(,{"op":"undo"}])").status, 1);
    QCOMPARE(m_project->content(), before);
}

void tst_CliApplyFonts::onlyFontsInUseAreExported()
{
    QCOMPARE(m_project->apply('[' + importSegments() + ']').status, 0);
    const QString folder = m_project->path("export");
    QCOMPARE(m_project->run("export", {QStringLiteral("--output"), folder}).status, 0);
    QVERIFY(!ProjectFixture::content(folder).contains(QStringLiteral("/fonts/PanelSegments.otf")));
    QVERIFY(m_project->content().contains(QStringLiteral("/fonts/PanelSegments.otf")));
}

QTEST_GUILESS_MAIN(tst_CliApplyFonts)
#include "tst_CliApplyFonts.moc"
