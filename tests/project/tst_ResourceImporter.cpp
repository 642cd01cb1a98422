#include "host/core/project/ImageNames.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/project/ResourceImporter.h"
#include "tests/project/ProjectTestSupport.h"
#include "tests/support/TestPictures.h"

#include <QDir>
#include <QImageReader>
#include <QSignalSpy>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Which pictures come into a project, and under which names.
class tst_ResourceImporter : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_project.reset(); }

    void everyFormatIsTaken_data();
    void everyFormatIsTaken();
    void theEndingFollowsTheContent_data();
    void theEndingFollowsTheContent();
    void theNameIsMadePlainAndFree_data();
    void theNameIsMadePlainAndFree();
    void whatCannotBeShownIsRefused_data();
    void whatCannotBeShownIsRefused();
    void anImportIsAnUnsavedChange();
    void anImportThatIsNotSavedIsTakenBack();
    void anImportThatAScreenNamesMeanwhileStays();
    void anImportBringsBackAMissingPicture();
    void nothingIsWrittenThroughALink();
    void aFailingCopyLeavesNothing();
    void aPictureOfNoFileIsWrittenAsPng();
    void aPictureThatIsThereIsFoundByItsBytes();

private:
    QString file(const char* name, const QByteArray& bytes) const
    {
        const QString path = m_fixture->path(name);
        writeFile(path, bytes);
        return path;
    }
    QString import(const QString& path) { return ResourceImporter::importImage(m_project.get(), path, &m_message); }
    QStringList images() const
    {
        return QDir(m_fixture->folder() + QStringLiteral("/images")).entryList(QDir::Files | QDir::Hidden);
    }

    AllTypesFactory m_factory;
    std::unique_ptr<ProjectFixture> m_fixture;
    std::unique_ptr<Project> m_project;
    QString m_message;
};

void tst_ResourceImporter::init()
{
    m_message.clear();
    m_fixture = std::make_unique<ProjectFixture>();
    m_fixture->writeProject({QStringLiteral("main")});
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "lamp"})");
    m_project = load(m_fixture->folder());
    QVERIFY(m_project);
}

void tst_ResourceImporter::everyFormatIsTaken_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("png") << "a.png" << pictureBytes(Qt::red);
    QTest::newRow("jpg") << "a.jpg" << pictureBytes(Qt::red, {8, 8}, "JPEG");
    QTest::newRow("jpeg") << "a.jpeg" << pictureBytes(Qt::red, {8, 8}, "JPEG");
    QTest::newRow("bmp") << "a.bmp" << pictureBytes(Qt::red, {8, 8}, "BMP");
    QTest::newRow("gif") << "a.gif" << animationBytes();
    QTest::newRow("svg") << "a.svg" << drawingBytes(Qt::red);
    if (QImageReader::supportedImageFormats().contains("webp"))
        QTest::newRow("webp") << "a.webp" << webPBytes();
    QTest::newRow("a format that displays may not know, told by its name")
        << "a.ppm" << pictureBytes(Qt::red, {8, 8}, "PPM");
}

void tst_ResourceImporter::everyFormatIsTaken()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    const QString source = file(qPrintable(name), bytes);
    QCOMPARE(import(source), name);
    QVERIFY(m_message.isEmpty());
    QCOMPARE(m_project->imageResources(), QStringList{name});
    QCOMPARE(readFile(m_project->imagesPath() + QLatin1Char('/') + name), bytes);
}

void tst_ResourceImporter::theEndingFollowsTheContent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("id");
    QTest::newRow("a picture called a drawing") << "x.svg" << pictureBytes(Qt::red) << "x.png";
    QTest::newRow("a drawing called a picture") << "x.png" << drawingBytes(Qt::red) << "x.svg";
    QTest::newRow("an animation called a picture") << "x.png" << animationBytes() << "x.gif";
    QTest::newRow("a photo called a picture") << "x.png" << pictureBytes(Qt::red, {8, 8}, "JPEG") << "x.jpg";
    QTest::newRow("no ending") << "x" << pictureBytes(Qt::red) << "x.png";
    QTest::newRow("a strange ending") << "x.dat" << pictureBytes(Qt::red) << "x.png";
    QTest::newRow("capitals") << "X.PNG" << pictureBytes(Qt::red) << "X.png";
    QTest::newRow("two endings") << "x.svg.png" << pictureBytes(Qt::red) << "x.svg.png";
}

void tst_ResourceImporter::theEndingFollowsTheContent()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, id);
    QCOMPARE(import(file(qPrintable(name), bytes)), id);
    QCOMPARE(images(), QStringList{id});
}

void tst_ResourceImporter::theNameIsMadePlainAndFree_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("id");
    QTest::newRow("taken") << "taken.png"
                           << "taken-2.png";
    QTest::newRow("taken but for capitals") << "TAKEN.png"
                                            << "TAKEN-2.png";
    QTest::newRow("in the folder, not in the list") << "notes.png"
                                                    << "notes-2.png";
    QTest::newRow("blanks and signs") << "a b#c%d.png"
                                      << "a_b_c_d.png";
    QTest::newRow("letters of other scripts") << "Größe Ω.png"
                                              << "Größe_Ω.png";
    QTest::newRow("dots") << "a..b...c.png"
                          << "a.b.c.png";
    QTest::newRow("a dot in front") << ".hidden.png"
                                    << "image.hidden.png";
    QTest::newRow("nothing but dots") << "...png"
                                      << "image.png";
    QTest::newRow("long") << QString(200, QLatin1Char('n')) + QStringLiteral(".png")
                          << QString(80, QLatin1Char('n')) + QStringLiteral(".png");
}

void tst_ResourceImporter::theNameIsMadePlainAndFree()
{
    QFETCH(QString, name);
    QFETCH(QString, id);
    m_fixture->write("images/taken.png", pictureBytes(Qt::red));
    m_project = load(m_fixture->folder());
    m_fixture->write("images/notes.png", "written by somebody after the project was opened");
    QCOMPARE(import(file(qUtf8Printable(name), pictureBytes(Qt::red))), id);
    QVERIFY2(ImageNames::fault(*m_project, QStringLiteral("other.png"), id).contains(id), "a name that could be typed");
}

void tst_ResourceImporter::whatCannotBeShownIsRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QString>("reason");
    const auto drawing = [](const char* content) {
        return QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\">") + content + "</svg>";
    };
    QTest::newRow("text") << "a.png" << QByteArray("no picture") << "Use PNG, JPEG";
    QTest::newRow("empty") << "a.png" << QByteArray() << "Use PNG, JPEG";
    QTest::newRow("text that is called a picture of any kind") << "a.tga" << QByteArray(64, 'x') << "a.tga";
    QTest::newRow("damaged") << "a.png" << pictureBytes(Qt::red, {64, 64}).first(60) << "cannot be used";
    QTest::newRow("a bomb") << "a.png" << bombBytes({60000, 60000}) << "too large";
    QTest::newRow("a bomb called a drawing") << "a.svg" << bombBytes({60000, 60000}) << "too large";
    QTest::newRow("a packed drawing") << "a.svgz" << QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\3", 10) << "packed";
    QTest::newRow("a packed drawing called a picture")
        << "a.png" << QByteArray("\x1f\x8b\x08\0\0\0\0\0\0\3", 10) << "packed";
    QTest::newRow("a drawing that refers to itself")
        << "a.svg" << drawing("<g id='a'><use href='#a'/></g>") << "refers to itself";
    QTest::newRow("a drawing that names other files") << "a.svg" << drawing("<image href='/etc/passwd'/>") << "file";
    QTest::newRow("half a drawing") << "a.svg" << QByteArray("<svg xmlns=\"http://www.w3.org/2000/svg\"><g>")
                                    << "cannot be used";
}

void tst_ResourceImporter::whatCannotBeShownIsRefused()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, bytes);
    QFETCH(QString, reason);
    const QString source = file(qPrintable(name), bytes);
    QCOMPARE(import(source), QString());
    QVERIFY2(m_message.startsWith(source + QStringLiteral(": ")), qUtf8Printable(m_message));
    QVERIFY2(m_message.contains(reason), qUtf8Printable(m_message));
    QCOMPARE(m_project->imageResources(), QStringList());
    QCOMPARE(images(), QStringList());
    QVERIFY(!m_project->isModified());
}

void tst_ResourceImporter::anImportIsAnUnsavedChange()
{
    QVERIFY(!m_project->isModified());
    import(file("logo.png", pictureBytes(Qt::red)));
    QVERIFY(m_project->isModified());
    QCOMPARE(m_project->undoStack()->count(), 0);
    QVERIFY(ProjectStore::save(m_project.get(), m_fixture->folder(), &m_message));
    QVERIFY(!m_project->isModified());
    QVERIFY(m_fixture->read("project.json").contains("logo.png"));
}

void tst_ResourceImporter::anImportThatIsNotSavedIsTakenBack()
{
    const auto before = filesOf(m_fixture->folder());
    import(file("logo.png", pictureBytes(Qt::red)));
    QCOMPARE(images(), QStringList{QStringLiteral("logo.png")});
    m_project.reset();
    QCOMPARE(filesOf(m_fixture->folder()), before);
    QVERIFY(!QFileInfo::exists(m_fixture->folder() + QStringLiteral("/images")));
}

void tst_ResourceImporter::anImportThatAScreenNamesMeanwhileStays()
{
    import(file("logo.png", pictureBytes(Qt::red)));
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "lamp", "properties": {"image": "logo.png"}})");
    m_project.reset();
    QCOMPARE(images(), QStringList{QStringLiteral("logo.png")});
}

void tst_ResourceImporter::anImportBringsBackAMissingPicture()
{
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "lamp", "properties": {"image": "logo.png"}})");
    m_project = load(m_fixture->folder());
    QSignalSpy changed(m_project.get(), &Project::imageFileChanged);
    QCOMPARE(import(file("logo.png", pictureBytes(Qt::red))), QStringLiteral("logo.png"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toString(), QStringLiteral("logo.png"));
}

void tst_ResourceImporter::nothingIsWrittenThroughALink()
{
    QDir().mkpath(m_fixture->path("elsewhere"));
    QVERIFY(QFile::link(m_fixture->path("elsewhere"), m_fixture->folder() + QStringLiteral("/images")));
    QCOMPARE(import(file("logo.png", pictureBytes(Qt::red))), QString());
    QVERIFY2(m_message.contains(QLatin1String("symbolic link")), qUtf8Printable(m_message));
    QVERIFY(QDir(m_fixture->path("elsewhere")).isEmpty());
}

void tst_ResourceImporter::aFailingCopyLeavesNothing()
{
    m_fixture->write("images/other.txt", "here");
    const QString source = file("logo.png", pictureBytes(Qt::red));
    int operations = 0;
    {
        FaultyOperations counted(1000);
        const std::unique_ptr<Project> project = load(m_fixture->folder());
        QVERIFY(!ResourceImporter::importImage(project.get(), source, &m_message).isEmpty());
        operations = counted.count();
    }
    QVERIFY(operations >= 2);
    for (int failing = 1; failing <= 2; ++failing) {
        m_message.clear();
        FaultyOperations faulty(failing);
        QCOMPARE(import(source), QString());
        QVERIFY(m_message.contains(QLatin1String("fault of a test")));
        QCOMPARE(images(), QStringList{QStringLiteral("other.txt")});
        QCOMPARE(m_project->imageResources(), QStringList());
    }
}

void tst_ResourceImporter::aPictureOfNoFileIsWrittenAsPng()
{
    QImage picture(20, 10, QImage::Format_ARGB32);
    picture.fill(QColor(10, 200, 30, 90));
    const QString base = QStringLiteral("pasted");
    QCOMPARE(ResourceImporter::importPicture(m_project.get(), picture, base, &m_message), QStringLiteral("pasted.png"));
    QCOMPARE(QImage(m_project->imagesPath() + QStringLiteral("/pasted.png")).convertToFormat(picture.format()),
             picture);
    QCOMPARE(ResourceImporter::importPicture(m_project.get(), QImage(), base, &m_message), QString());
    QVERIFY(!m_message.isEmpty());
    QCOMPARE(images().size(), 1);
}

void tst_ResourceImporter::aPictureThatIsThereIsFoundByItsBytes()
{
    const QByteArray red = pictureBytes(Qt::red);
    import(file("green.png", pictureBytes(Qt::green)));
    import(file("red.png", red));
    QCOMPARE(ResourceImporter::resourceHolding(m_project.get(), red), QStringLiteral("red.png"));
    QCOMPARE(ResourceImporter::resourceHolding(m_project.get(), pictureBytes(Qt::blue)), QString());
}

QTEST_MAIN(tst_ResourceImporter)
#include "tst_ResourceImporter.moc"
