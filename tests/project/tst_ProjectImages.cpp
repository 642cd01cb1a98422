#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/project/ResourceImporter.h"
#include "tests/project/ProjectTestSupport.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

static bool makeImage(const QString& file)
{
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    return image.save(file);
}

/// Which image files a project keeps, and which ones go.
class tst_ProjectImages : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup() { m_project.reset(); }

    void anImportedImageIsListedWhenItIsUsed();
    void anImageThatNothingNamesGoesWhenTheProjectIsClosed();
    void anImageStaysWhileTheHistoryMayAskForIt();
    void anImportStaysUntilItHasBeenUsed();
    void aListedImageThatIsNotUsedYetStays();
    void filesOfTheUserAreOfferedAndNeverRemoved();
    void anImageNamedByAnUnreadScreenStays();
    void anImageStaysWhenAScreenCannotBeRead();
    void anImageNamedByAnUnknownElementStays();
    void anImageThatAnotherProgramNamesMeanwhileStays();
    void saveAsTakesTheImagesAlong();
    void anUnsavedProjectTakesItsImportsAlong();

private:
    QString import(Project* project, const char* name) const;
    DesignerObject* lamp() const { return m_project->screens().first()->element(QStringLiteral("lamp")); }
    bool save() { return ProjectStore::save(m_project.get(), m_fixture->folder(), &m_message); }
    QStringList images() const { return QDir(m_fixture->folder() + QStringLiteral("/images")).entryList(QDir::Files); }
    QByteArray listed() const;
    void close() { m_project.reset(); }

    AllTypesFactory m_factory;
    std::unique_ptr<ProjectFixture> m_fixture;
    std::unique_ptr<Project> m_project;
    QString m_message;
};

/// A project whose element "lamp" shows the image "used.png".
void tst_ProjectImages::init()
{
    m_fixture = std::make_unique<ProjectFixture>();
    m_fixture->writeProject({QStringLiteral("main")}, R"(, "images": ["used.png"])");
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "lamp", "properties": {"image": "used.png"}})");
    QDir(m_fixture->folder()).mkdir(QStringLiteral("images"));
    QVERIFY(makeImage(m_fixture->folder() + QStringLiteral("/images/used.png")));
    m_project = load(m_fixture->folder());
    QVERIFY(m_project);
}

QString tst_ProjectImages::import(Project* project, const char* name) const
{
    const QString file = m_fixture->path(name);
    if (!makeImage(file))
        return {};
    QString message;
    return ResourceImporter::importImage(project, file, &message);
}

/// The list "images" of project.json.
QByteArray tst_ProjectImages::listed() const
{
    const QByteArray json = m_fixture->read("project.json").simplified();
    const qsizetype start = json.indexOf("\"images\": [") + 11;
    return json.sliced(start, json.indexOf(']', start) - start).trimmed();
}

void tst_ProjectImages::anImportedImageIsListedWhenItIsUsed()
{
    const QString image = import(m_project.get(), "new.png");
    QCOMPARE(image, QStringLiteral("new.png"));
    setValue(lamp(), "image", image);
    QVERIFY2(save(), qUtf8Printable(m_message));
    QCOMPARE(listed(), QByteArray("\"new.png\""));
    close();
    QCOMPARE(images(), QStringList{image});
    m_project = load(m_fixture->folder());
    QCOMPARE(m_project->imageResources(), QStringList{image});
}

void tst_ProjectImages::anImageThatNothingNamesGoesWhenTheProjectIsClosed()
{
    setValue(lamp(), "image", QString());
    close();
    QCOMPARE(images(), QStringList{QStringLiteral("used.png")}); // nothing was saved
    m_project = load(m_fixture->folder());
    setValue(lamp(), "image", QString());
    QVERIFY(save());
    QCOMPARE(listed(), QByteArray());
    QCOMPARE(images(), QStringList{QStringLiteral("used.png")});
    close();
    QCOMPARE(images(), QStringList());
}

void tst_ProjectImages::anImageStaysWhileTheHistoryMayAskForIt()
{
    setValue(lamp(), "image", QString());
    QVERIFY(save());
    m_project->undoStack()->undo();
    QVERIFY(m_project->imageResources().contains(QStringLiteral("used.png")));
    QVERIFY(save());
    QCOMPARE(listed(), QByteArray("\"used.png\""));
    close();
    QCOMPARE(images(), QStringList{QStringLiteral("used.png")});
}

void tst_ProjectImages::anImportStaysUntilItHasBeenUsed()
{
    import(m_project.get(), "new.png");
    setValue(lamp(), "number", QStringLiteral("9"));
    QVERIFY(save());
    close();
    QCOMPARE(images(), (QStringList{QStringLiteral("new.png"), QStringLiteral("used.png")}));
    QCOMPARE(listed(), QByteArray("\"used.png\", \"new.png\""));
    m_project = load(m_fixture->folder());
    setValue(lamp(), "image", QStringLiteral("new.png"));
    QVERIFY(save());
    setValue(lamp(), "image", QStringLiteral("used.png"));
    QVERIFY(save());
    close();
    QCOMPARE(images(), QStringList{QStringLiteral("used.png")});
}

void tst_ProjectImages::aListedImageThatIsNotUsedYetStays()
{
    close();
    m_fixture->writeProject({QStringLiteral("main")}, R"(, "images": ["used.png", "later.png"])");
    m_fixture->write("images/later.png", "kept for later");
    m_project = load(m_fixture->folder());
    setValue(lamp(), "number", QStringLiteral("9"));
    QVERIFY(save());
    setValue(m_project.get(), "name", QStringLiteral("Other"));
    QVERIFY(save());
    QCOMPARE(listed(), QByteArray("\"used.png\", \"later.png\""));
    close();
    QCOMPARE(images().size(), 2);
    // Once it has been used it is like any other.
    m_project = load(m_fixture->folder());
    setValue(lamp(), "image", QStringLiteral("later.png"));
    QVERIFY(save());
    setValue(lamp(), "image", QStringLiteral("used.png"));
    QVERIFY(save());
    close();
    QCOMPARE(images(), QStringList{QStringLiteral("used.png")});
}

void tst_ProjectImages::filesOfTheUserAreOfferedAndNeverRemoved()
{
    close();
    m_fixture->write("images/mine.png", "not listed anywhere");
    m_fixture->write("images/notes.txt", "hello");
    m_project = load(m_fixture->folder());
    QCOMPARE(m_project->imageResources(), (QStringList{QStringLiteral("used.png"), QStringLiteral("mine.png")}));
    setValue(lamp(), "image", QStringLiteral("mine.png"));
    QVERIFY(save());
    QCOMPARE(listed(), QByteArray());
    setValue(lamp(), "image", QString());
    QVERIFY(save());
    close();
    QCOMPARE(images(), (QStringList{QStringLiteral("mine.png"), QStringLiteral("notes.txt")}));
}

void tst_ProjectImages::anImageNamedByAnUnreadScreenStays()
{
    close();
    m_fixture->writeProject({QStringLiteral("main"), QStringLiteral("other")}, R"(, "images": ["used.png"])");
    m_fixture->writeScreen("other", R"({"class": "AllTypes", "id": "a", "properties": {"image": "use\u0064.png"}})");
    auto loaded = ProjectStore::load(m_fixture->folder());
    m_project = std::move(loaded.project);
    setValue(lamp(), "image", QString());
    QVERIFY(!m_project->screens().last()->isContentRead());
    QVERIFY(save());
    QVERIFY(!m_project->screens().last()->isContentRead());
    close();
    QCOMPARE(images(), QStringList{QStringLiteral("used.png")});
}

void tst_ProjectImages::anImageStaysWhenAScreenCannotBeRead()
{
    close();
    m_fixture->writeProject({QStringLiteral("main"), QStringLiteral("other")}, R"(, "images": ["used.png"])");
    m_fixture->write("screens/other.json", "{ who knows what it names");
    m_project = load(m_fixture->folder());
    setValue(lamp(), "image", QString());
    QVERIFY(save());
    close();
    QCOMPARE(images(), QStringList{QStringLiteral("used.png")});
}

void tst_ProjectImages::anImageNamedByAnUnknownElementStays()
{
    close();
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "lamp", "properties": {"image": "used.png"}},
        {"class": "Hologram", "id": "ghost", "pictures": ["used.png"]})");
    m_project = load(m_fixture->folder());
    setValue(lamp(), "image", QString());
    QVERIFY(save());
    close();
    QCOMPARE(images(), QStringList{QStringLiteral("used.png")});
}

void tst_ProjectImages::anImageThatAnotherProgramNamesMeanwhileStays()
{
    const QByteArray before = m_fixture->read("screens/main.json");
    setValue(lamp(), "image", QString());
    QVERIFY(save());
    m_fixture->write("screens/main.json", before); // somebody brings the old state back
    close();
    QCOMPARE(images(), QStringList{QStringLiteral("used.png")});
}

void tst_ProjectImages::saveAsTakesTheImagesAlong()
{
    m_fixture->write("images/mine.png", "not used");
    m_fixture->write("fonts/Some.ttf", "no font, but a file");
    m_project = load(m_fixture->folder());
    QVERIFY2(ProjectStore::save(m_project.get(), m_fixture->path("copy"), &m_message), qUtf8Printable(m_message));
    QCOMPARE(filesOf(m_fixture->path("copy")).keys(),
             (QStringList{QStringLiteral("fonts/Some.ttf"), QStringLiteral("images/used.png"),
                          QStringLiteral("project.json"), QStringLiteral("screens/main.json")}));
    QCOMPARE(m_project->imagesPath(), m_fixture->path("copy/images"));
    setValue(lamp(), "image", QString());
    QVERIFY(ProjectStore::save(m_project.get(), m_project->folder(), &m_message));
    close();
    QVERIFY(!QFile::exists(m_fixture->path("copy/images/used.png")));
    QVERIFY(images().contains(QStringLiteral("used.png"))); // the project that was left keeps its own
}

void tst_ProjectImages::anUnsavedProjectTakesItsImportsAlong()
{
    m_project = ProjectStore::create(QStringLiteral("New"), QSizeF(100, 100));
    const QString image = import(m_project.get(), "new.png");
    DesignerObject* element = addElement(m_project.get(), m_project->screens().first());
    setValue(element, "image", image);
    QVERIFY2(ProjectStore::save(m_project.get(), m_fixture->path("copy"), &m_message), qUtf8Printable(m_message));
    close();
    QVERIFY(QFile::exists(m_fixture->path("copy/images/new.png")));
}

QTEST_MAIN(tst_ProjectImages)
#include "tst_ProjectImages.moc"
