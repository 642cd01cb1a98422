#include "runtime/viewer/ViewerOptions.h"

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

#include <sys/stat.h>

using namespace Korvex::Meridane::Display;

namespace {
ViewerOptions parse(const QStringList& arguments)
{
    return parseViewerOptions(QStringList{QStringLiteral("meridane-viewer")} + arguments);
}
} // namespace

class TestDisplayViewer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void optionsAreRead();
    void wrongUsageIsTold();
    void grabsTheFirstScreen();
    void grabsTheNamedScreen();
    void needsNoEnvironment();
    void unknownScreenFails();
    void missingExportFails();
    void brokenExportFailsAndWritesNothing();
    void warningsAtRunTimeFail();
    void unwritablePictureFails();
    void wrongUsageExitsWithTwo();
    void helpGoesToTheStandardOutput();
    void importPathsAreSearched();

private:
    void write(const QString& name, const QByteArray& text) const;
    int view(const QStringList& arguments,
             const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment());
    [[nodiscard]] QString picture() const;

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_output;
    QString m_messages;
};

void TestDisplayViewer::init()
{
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("export/screens")));
    write(QStringLiteral("export/Main.qml"), "import Meridane.Display\n\nDisplay {\n\twidth: 200\n\theight: 120\n"
                                             "\tscreens: [ \"main\", \"settings\" ]\n}\n");
    write(QStringLiteral("export/screens/main.qml"),
          "import Meridane.Display\n\nScreen {\n\twidth: 200\n\theight: 120\n\tcolor: \"#00ff00\"\n\n"
          "\tRectangle2 {\n\t\tx: 20\n\t\ty: 10\n\t\twidth: 100\n\t\theight: 75\n\t}\n}\n");
    write(QStringLiteral("export/screens/settings.qml"),
          "import Meridane.Display\n\nScreen {\n\twidth: 200\n\theight: 120\n\tcolor: \"#0000ff\"\n}\n");
}

void TestDisplayViewer::write(const QString& name, const QByteArray& text) const
{
    QFile file(m_folder->filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
}

int TestDisplayViewer::view(const QStringList& arguments, const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(m_folder->path());
    process.start(QCoreApplication::applicationDirPath() + QLatin1String("/../bin/meridane-viewer"), arguments);
    if (!process.waitForFinished(60000)) {
        return -1;
    }
    m_output = QString::fromLocal8Bit(process.readAllStandardOutput());
    m_messages = QString::fromLocal8Bit(process.readAllStandardError());
    return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
}

QString TestDisplayViewer::picture() const
{
    return m_folder->filePath(QStringLiteral("frame.png"));
}

void TestDisplayViewer::optionsAreRead()
{
    const ViewerOptions options = parse({QStringLiteral("folder"), QStringLiteral("--screen"), QStringLiteral("main"),
                                         QStringLiteral("--grab=frame.png"), QStringLiteral("--import"),
                                         QStringLiteral("a"), QStringLiteral("--import"), QStringLiteral("b")});
    QVERIFY(options.result == ViewerOptions::Result::Run);
    QCOMPARE(options.folder, QStringLiteral("folder"));
    QCOMPARE(options.screen, QStringLiteral("main"));
    QCOMPARE(options.grabFile, QStringLiteral("frame.png"));
    QCOMPARE(options.importPaths, QStringList({QStringLiteral("a"), QStringLiteral("b")}));
}

void TestDisplayViewer::wrongUsageIsTold()
{
    for (const QStringList& arguments : {QStringList(), QStringList{QStringLiteral("a"), QStringLiteral("b")},
                                         QStringList{QStringLiteral("a"), QStringLiteral("--nothing")},
                                         QStringList{QStringLiteral("a"), QStringLiteral("--grab")},
                                         QStringList{QStringLiteral("a"), QStringLiteral("--grab=")}}) {
        const ViewerOptions options = parse(arguments);
        QVERIFY(options.result == ViewerOptions::Result::Wrong);
        QVERIFY(!options.message.isEmpty());
    }
    QVERIFY(parse({QStringLiteral("--help")}).result == ViewerOptions::Result::Help);
}

void TestDisplayViewer::grabsTheFirstScreen()
{
    QCOMPARE(view({QStringLiteral("export"), QStringLiteral("--grab"), picture()}), 0);
    const QImage frame(picture());
    QCOMPARE(frame.size(), QSize(200, 120));
    QCOMPARE(frame.pixelColor(150, 100), QColor(0, 255, 0));
    QCOMPARE(frame.pixelColor(60, 50), QColor(248, 151, 29));
    QVERIFY(m_output.isEmpty());
}

void TestDisplayViewer::grabsTheNamedScreen()
{
    QCOMPARE(view({QStringLiteral("export"), QStringLiteral("--screen"), QStringLiteral("settings"),
                   QStringLiteral("--grab"), picture()}),
             0);
    QCOMPARE(QImage(picture()).pixelColor(60, 50), QColor(0, 0, 255));
}

void TestDisplayViewer::needsNoEnvironment()
{
    QProcessEnvironment empty;
    QCOMPARE(view({m_folder->filePath(QStringLiteral("export/")), QStringLiteral("--grab"), picture()}, empty), 0);
    QCOMPARE(QImage(picture()).pixelColor(150, 100), QColor(0, 255, 0));
    // Neither another platform nor a scaled desktop changes the picture.
    QProcessEnvironment scaled = QProcessEnvironment::systemEnvironment();
    scaled.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    QCOMPARE(view({QStringLiteral("export"), QStringLiteral("--grab"), picture()}, scaled), 0);
    QCOMPARE(QImage(picture()).size(), QSize(200, 120));
}

void TestDisplayViewer::unknownScreenFails()
{
    QCOMPARE(view({QStringLiteral("export"), QStringLiteral("--screen"), QStringLiteral("nowhere"),
                   QStringLiteral("--grab"), picture()}),
             1);
    QVERIFY(m_messages.contains(QLatin1String("there is no screen \"nowhere\"")));
}

void TestDisplayViewer::missingExportFails()
{
    QCOMPARE(view({QStringLiteral("nothing"), QStringLiteral("--grab"), picture()}), 1);
    QVERIFY(m_messages.contains(QLatin1String("nothing/Main.qml")));
    QVERIFY(!QFile::exists(picture()));
}

void TestDisplayViewer::brokenExportFailsAndWritesNothing()
{
    write(QStringLiteral("export/Main.qml"), "import Meridane.Display\nDisplay { nothing: 1 }\n");
    QCOMPARE(view({QStringLiteral("export"), QStringLiteral("--grab"), picture()}), 1);
    QVERIFY(m_messages.contains(QLatin1String("Main.qml:2")));
    QVERIFY(!QFile::exists(picture()));
}

void TestDisplayViewer::warningsAtRunTimeFail()
{
    write(QStringLiteral("export/screens/main.qml"),
          "import Meridane.Display\nScreen {\n\tGroup { x: nowhere.x }\n}\n");
    QCOMPARE(view({QStringLiteral("export"), QStringLiteral("--grab"), picture()}), 1);
    QVERIFY(m_messages.contains(QLatin1String("main.qml:3")));
    QVERIFY(m_messages.contains(QLatin1String("nowhere")));
}

void TestDisplayViewer::unwritablePictureFails()
{
    const QString file = m_folder->filePath(QStringLiteral("missing/frame.png"));
    QCOMPARE(view({QStringLiteral("export"), QStringLiteral("--grab"), file}), 1);
    QVERIFY(m_messages.contains(file));
    const QString pipe = m_folder->filePath(QStringLiteral("pipe"));
    QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& target : {pipe, m_folder->filePath(QStringLiteral("export"))}) {
        QCOMPARE(view({QStringLiteral("export"), QStringLiteral("--grab"), target}), 1);
        QVERIFY(m_messages.contains(target));
        QVERIFY(!QFileInfo(target).isFile());
    }
}

void TestDisplayViewer::wrongUsageExitsWithTwo()
{
    QCOMPARE(view({}), 2);
    QVERIFY(!m_messages.isEmpty());
    QCOMPARE(view({QStringLiteral("export"), QStringLiteral("--unknown")}), 2);
    QVERIFY(m_messages.contains(QLatin1String("unknown")));
}

void TestDisplayViewer::helpGoesToTheStandardOutput()
{
    QCOMPARE(view({QStringLiteral("--help")}), 0);
    QVERIFY(m_output.contains(QLatin1String("Usage: meridane-viewer [options] FOLDER")));
    QVERIFY(m_output.contains(QLatin1String("--grab")));
}

void TestDisplayViewer::importPathsAreSearched()
{
    QVERIFY(QDir(m_folder->path()).mkpath(QStringLiteral("modules/Sample")));
    write(QStringLiteral("modules/Sample/qmldir"), "module Sample\nDot 1.0 Dot.qml\n");
    write(QStringLiteral("modules/Sample/Dot.qml"),
          "import Meridane.Display\nRectangle2 { width: 200; height: 120 }\n");
    write(QStringLiteral("export/screens/main.qml"), "import Meridane.Display\nimport Sample\nScreen { Dot { } }\n");
    QCOMPARE(view({QStringLiteral("export"), QStringLiteral("--import"), QStringLiteral("modules"),
                   QStringLiteral("--grab"), picture()}),
             0);
    QCOMPARE(QImage(picture()).pixelColor(150, 100), QColor(248, 151, 29));
}

QTEST_GUILESS_MAIN(TestDisplayViewer)
#include "tst_DisplayViewer.moc"
