#include "tests/cli/ProjectFixture.h"

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTest>

#include <memory>

#include <signal.h>

class tst_CliPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aFrameIsGrabbed();
    void anotherScreenIsGrabbed();
    void nothingIsLeftBehind();
    void anUnknownScreenIsNamed();
    void aMissingProjectIsNamed();
    void aFrameThatCannotBeWrittenIsAFault();
    void withoutADisplayThereIsNoWindow();
    void aRequestToEndEndsTheDisplayToo();

private:
    /// The environment with an empty folder of its own for temporary files.
    [[nodiscard]] QProcessEnvironment environment() const
    {
        QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
        QDir().mkpath(m_project->path("tmp"));
        result.insert(QStringLiteral("TMPDIR"), m_project->path("tmp"));
        return result;
    }
    [[nodiscard]] QStringList temporaryFiles() const
    {
        return QDir(m_project->path("tmp")).entryList({QStringLiteral("meridane*")}, QDir::AllEntries | QDir::Hidden);
    }

    std::unique_ptr<ProjectFixture> m_project;
};

void tst_CliPreview::init()
{
    m_project = std::make_unique<ProjectFixture>();
    QVERIFY(m_project->isValid());
    QCOMPARE(m_project->apply(ProjectFixture::addBox()).status, 0);
}

void tst_CliPreview::aFrameIsGrabbed()
{
    const auto result = m_project->run("preview", {QStringLiteral("--grab"), m_project->path("frame.png")});
    QVERIFY2(result.status == 0, result.errors.constData());
    const QImage frame(m_project->path("frame.png"));
    QCOMPARE(frame.size(), QSize(200, 100));
    QCOMPARE(frame.pixelColor(45, 30), QColor(248, 151, 29));
    QCOMPARE(frame.pixelColor(10, 5), QColor(Qt::white));
}

void tst_CliPreview::anotherScreenIsGrabbed()
{
    QCOMPARE(m_project
                 ->apply(R"([{"op":"add-screen","id":"blue"},
                                  {"op":"set","id":"blue","property":"color","value":"#0000ff"}])")
                 .status,
             0);
    const auto result = m_project->run("preview", {QStringLiteral("--screen"), QStringLiteral("blue"),
                                                   QStringLiteral("--grab"), m_project->path("frame.png")});
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(QImage(m_project->path("frame.png")).pixelColor(45, 30), QColor(Qt::blue));
}

void tst_CliPreview::nothingIsLeftBehind()
{
    const auto before = m_project->content();
    const auto result = MeridaneProgram::runIn(environment(), {QStringLiteral("preview"), m_project->folder(),
                                                               QStringLiteral("--grab"), m_project->path("frame.png")});
    QVERIFY2(result.status == 0, result.errors.constData());
    QCOMPARE(temporaryFiles(), QStringList());
    QCOMPARE(m_project->content(), before);
}

void tst_CliPreview::anUnknownScreenIsNamed()
{
    const auto result = m_project->run("preview", {QStringLiteral("--screen"), QStringLiteral("nowhere"),
                                                   QStringLiteral("--grab"), m_project->path("frame.png")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("nowhere"), result.errors.constData());
    QVERIFY(!QFileInfo::exists(m_project->path("frame.png")));
}

void tst_CliPreview::aMissingProjectIsNamed()
{
    const auto result = MeridaneProgram::run({QStringLiteral("preview"), m_project->path("nowhere"),
                                              QStringLiteral("--grab"), m_project->path("frame.png")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.errors.contains(m_project->path("nowhere").toUtf8()), result.errors.constData());
}

void tst_CliPreview::aFrameThatCannotBeWrittenIsAFault()
{
    const auto result = m_project->run("preview", {QStringLiteral("--grab"), QStringLiteral("/proc/no/frame.png")});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("/proc/no/frame.png"), result.errors.constData());
}

void tst_CliPreview::withoutADisplayThereIsNoWindow()
{
    const auto result =
        MeridaneProgram::runIn(MeridaneProgram::withoutDisplay(), {QStringLiteral("preview"), m_project->folder()});
    QCOMPARE(result.status, 1);
    QVERIFY2(result.saysError("--grab"), result.errors.constData());
}

void tst_CliPreview::aRequestToEndEndsTheDisplayToo()
{
    QProcessEnvironment offscreen = environment();
    offscreen.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    QProcess process;
    process.setProcessEnvironment(offscreen);
    process.start(MeridaneProgram::path(), {QStringLiteral("preview"), m_project->folder()});
    QVERIFY(process.waitForStarted());
    QTRY_VERIFY_WITH_TIMEOUT(!temporaryFiles().isEmpty(), 30000);
    QVERIFY(!process.waitForFinished(2000)); // it stays until it is asked to end
    ::kill(static_cast<pid_t>(process.processId()), SIGTERM);
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(temporaryFiles(), QStringList());
}

QTEST_GUILESS_MAIN(tst_CliPreview)
#include "tst_CliPreview.moc"
