#include "host/core/commands/RemoveObject.h"
#include "host/core/commands/RenameObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectFolder.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/project/SaveTransaction.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"
#include "tests/project/ProjectTestSupport.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <sys/resource.h>
#include <unistd.h>
#endif

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

#ifdef Q_OS_UNIX
namespace {

/// While it lives, the superuser, whom no permission binds, acts as a user who owns everything below a folder.
class CommonUser
{
public:
    explicit CommonUser(const QString& folder)
    {
        if (!m_isSuperuser)
            return;
        give(folder);
        QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext())
            give(entries.next());
        m_changed = ::setresuid(Nobody, Nobody, 0) == 0;
    }
    ~CommonUser()
    {
        if (m_changed && ::setresuid(0, 0, 0) != 0)
            qFatal("the superuser does not come back");
    }
    Q_DISABLE_COPY_MOVE(CommonUser)

private:
    static constexpr uid_t Nobody = 65534;

    static void give(const QString& path)
    {
        if (::chown(QFile::encodeName(path).constData(), Nobody, gid_t(-1)) != 0)
            qFatal("%s cannot be given away", qUtf8Printable(path));
    }

    const bool m_isSuperuser = ::geteuid() == 0;
    bool m_changed = false;
};

} // namespace
#endif

class tst_ProjectSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aNewProjectLivesInATemporaryFolder();
    void filesAreWrittenInOneForm();
    void onlyChangedScreensAreWritten();
    void anUnchangedProjectIsNotWrittenAtAll();
    void theHandOfAnotherWriterIsRespected();
    void anUnreadScreenIsCopiedAsItStands();
    void aRenamedScreenTakesItsFileAlong();
    void screensCanSwapTheirNames();
    void aRemovedScreenComesBackAfterASave();
    void aRemovedUnreadableScreenComesBackAfterASave();
    void valuesThatDoNotConvertSurvive();
    void unknownContentSurvives();
    void aChangeByAnotherProgramIsNotOverwritten();
    void aFileThatWasSavedSinceTheChangeWasPlannedIsNotOverwritten();
    void aScreenThatWasNotChangedHereNeedsNoPeaceWithOthers();
    void anotherProjectIsNotOverwritten();
    void aLostFileIsWrittenAgain();
    void targetsThatCannotBeWrittenAreNamed();
    void writeProtectedFilesAreNotReplaced();
    void aFileSizeLimitLeavesTheOldProject();
    void groupsNestedTooDeeplyAreRefused();
    void aProjectWithoutFolderCanBeSaved();

private:
    void openFixture();
    Screen* screen(const char* id) const { return m_project->screen(QString::fromUtf8(id)); }
    bool save() { return ProjectStore::save(m_project.get(), m_fixture->folder(), &m_message); }

    AllTypesFactory m_factory;
    std::unique_ptr<ProjectFixture> m_fixture;
    std::unique_ptr<Project> m_project;
    QString m_message;
};

/// A project of two screens in the form in which the program writes it.
void tst_ProjectSaving::init()
{
    m_project.reset();
    m_fixture = std::make_unique<ProjectFixture>();
    const auto project = ProjectStore::create(QStringLiteral("Test"), QSizeF(200, 100));
    addElement(project.get(), project->screens().first(), "lamp");
    auto second = std::make_unique<Screen>();
    QVERIFY(second->initialize() && second->setIdName(QStringLiteral("other")));
    QVERIFY(project->addListItem(project->childList(), second.get(), -1));
    addElement(project.get(), second.release(), "knob");
    QVERIFY2(ProjectStore::save(project.get(), m_fixture->folder(), &m_message), qUtf8Printable(m_message));
    openFixture();
}

void tst_ProjectSaving::openFixture()
{
    QList<Problem> problems;
    m_project = load(m_fixture->folder(), &problems);
    QCOMPARE(textOf(problems), QString());
}

void tst_ProjectSaving::aNewProjectLivesInATemporaryFolder()
{
    auto project = ProjectStore::create(QStringLiteral("New"), QSizeF(320, 240));
    QVERIFY(!project->isModified());
    QCOMPARE(project->name(), QStringLiteral("New"));
    QCOMPARE(project->screens().size(), 1);
    QCOMPARE(project->screens().first()->getIdName(), QStringLiteral("main"));
    QCOMPARE(project->screens().first()->size(), QSizeF(320, 240));
    const QString temporary = project->folder();
    QVERIFY(QFileInfo(project->imagesPath()).isDir());
    QVERIFY(ProjectStore::save(project.get(), m_fixture->path("new"), &m_message));
    QCOMPARE(project->folder(), m_fixture->path("new"));
    QVERIFY(!QFileInfo::exists(temporary));
    QCOMPARE(filesOf(m_fixture->path("new")).keys(),
             (QStringList{QStringLiteral("project.json"), QStringLiteral("screens/main.json")}));

    project = ProjectStore::create(QStringLiteral("New"), QSizeF(320, 240));
    const QString second = project->folder();
    project.reset();
    QVERIFY(!QFileInfo::exists(second));
}

void tst_ProjectSaving::filesAreWrittenInOneForm()
{
    QCOMPARE(m_fixture->read("project.json"), QByteArray(R"({
    "displaySize": "200,100",
    "fonts": [
    ],
    "formatVersion": 1,
    "images": [
    ],
    "name": "Test",
    "screens": [
        "main",
        "other"
    ]
}
)"));
    const QByteArray screen = m_fixture->read("screens/main.json");
    QVERIFY(screen.startsWith("{\n    \"class\": \"Screen\",\n    \"elements\": [\n        {\n            \"class\": "
                              "\"AllTypes\",\n            \"editor\": {\n                \"keepRatio\": \"0\"\n"));
    QVERIFY(screen.endsWith("\n}\n"));
}

void tst_ProjectSaving::onlyChangedScreensAreWritten()
{
    const auto before = filesOf(m_fixture->folder());
    setValue(screen("other")->element(QStringLiteral("knob")), "number", QStringLiteral("9"));
    FaultyOperations operations(0);
    QVERIFY(save());
    const QStringList renames = operations.log().filter(QRegularExpression(QStringLiteral("^rename")));
    QCOMPARE(renames.size(), 1);
    QVERIFY(renames.first().endsWith(QLatin1String("screens/other.json")));
    auto after = filesOf(m_fixture->folder());
    QVERIFY(after.value(QStringLiteral("screens/other.json")).contains("\"number\": \"9\""));
    after.insert(QStringLiteral("screens/other.json"), before.value(QStringLiteral("screens/other.json")));
    QCOMPARE(after, before);
    QVERIFY(!m_project->isModified());
}

void tst_ProjectSaving::anUnchangedProjectIsNotWrittenAtAll()
{
    setValue(screen("other")->element(QStringLiteral("knob")), "number", QStringLiteral("9"));
    m_project->undoStack()->undo();
    FaultyOperations operations(0);
    QVERIFY(save());
    QCOMPARE(operations.log(), QStringList());
}

void tst_ProjectSaving::theHandOfAnotherWriterIsRespected()
{
    m_fixture->writeScreen("main", R"({"id": "lamp", "class": "AllTypes", "properties": {"text": "by \u0068and"}})");
    const QByteArray byHand = m_fixture->read("screens/main.json");
    openFixture();
    setValue(screen("other")->element(QStringLiteral("knob")), "number", QStringLiteral("9"));
    QVERIFY(save());
    QCOMPARE(m_fixture->read("screens/main.json"), byHand);
    setValue(screen("main")->element(QStringLiteral("lamp")), "number", QStringLiteral("9"));
    QVERIFY(save());
    QVERIFY(m_fixture->read("screens/main.json").contains("\"text\": \"by hand\""));
}

void tst_ProjectSaving::anUnreadScreenIsCopiedAsItStands()
{
    m_fixture->writeScreen("main", R"({"class":"AllTypes","id":"lamp"})");
    auto loaded = ProjectStore::load(m_fixture->folder());
    QVERIFY(ProjectStore::save(loaded.project.get(), m_fixture->path("copy"), &m_message));
    QVERIFY(!loaded.project->screens().first()->isContentRead());
    QCOMPARE(filesOf(m_fixture->path("copy")), filesOf(m_fixture->folder()));
    // From now on it is read from its new place.
    QVERIFY(QDir(m_fixture->folder()).removeRecursively());
    QVERIFY(loaded.project->screens().first()->element(QStringLiteral("lamp")));
}

void tst_ProjectSaving::aRenamedScreenTakesItsFileAlong()
{
    auto loaded = ProjectStore::load(m_fixture->folder());
    Project* project = loaded.project.get();
    const QByteArray content = m_fixture->read("screens/other.json");
    project->execute(std::make_unique<RenameObject>(project->screens().last(), QStringLiteral("second"), nullptr));
    QVERIFY2(ProjectStore::save(project, m_fixture->folder(), &m_message), qUtf8Printable(m_message));
    QVERIFY(!QFile::exists(m_fixture->folder() + QStringLiteral("/screens/other.json")));
    QCOMPARE(m_fixture->read("screens/second.json"),
             QByteArray(content).replace("\"id\": \"other\"", "\"id\": \"second\""));
    project->undoStack()->undo();
    QVERIFY2(ProjectStore::save(project, m_fixture->folder(), &m_message), qUtf8Printable(m_message));
    QCOMPARE(m_fixture->read("screens/other.json"), content);
    QVERIFY(!QFile::exists(m_fixture->folder() + QStringLiteral("/screens/second.json")));
}

void tst_ProjectSaving::screensCanSwapTheirNames()
{
    auto loaded = ProjectStore::load(m_fixture->folder());
    Screen* main = loaded.project->screens().first();
    Screen* other = loaded.project->screens().last();
    QVERIFY(main->setIdName(QStringLiteral("third")) && other->setIdName(QStringLiteral("main"))
            && main->setIdName(QStringLiteral("other")));
    QVERIFY2(ProjectStore::save(loaded.project.get(), m_fixture->folder(), &m_message), qUtf8Printable(m_message));
    openFixture();
    QVERIFY(screen("main")->element(QStringLiteral("knob")));
    QVERIFY(screen("other")->element(QStringLiteral("lamp")));
    QCOMPARE(m_project->screens().first()->getIdName(), QStringLiteral("other"));
}

void tst_ProjectSaving::aRemovedScreenComesBackAfterASave()
{
    auto loaded = ProjectStore::load(m_fixture->folder()); // no screen is read
    Project* project = loaded.project.get();
    const auto before = filesOf(m_fixture->folder());
    project->execute(std::make_unique<RemoveObject>(project->screens().last(), nullptr));
    QVERIFY(ProjectStore::save(project, m_fixture->folder(), &m_message));
    QVERIFY(!QFile::exists(m_fixture->folder() + QStringLiteral("/screens/other.json")));
    project->undoStack()->undo();
    QVERIFY(ProjectStore::save(project, m_fixture->folder(), &m_message));
    QCOMPARE(filesOf(m_fixture->folder()), before);
    // And once more, with a history that has forgotten it.
    project->execute(std::make_unique<RemoveObject>(project->screens().last(), nullptr));
    project->undoStack()->clear();
    project->setModifiedOutsideHistory();
    QVERIFY(ProjectStore::save(project, m_fixture->folder(), &m_message));
    QVERIFY(!QFile::exists(m_fixture->folder() + QStringLiteral("/screens/other.json")));
}

void tst_ProjectSaving::aRemovedUnreadableScreenComesBackAfterASave()
{
    m_fixture->write("screens/other.json", "{ precious, but broken");
    auto loaded = ProjectStore::load(m_fixture->folder());
    Project* project = loaded.project.get();
    project->execute(std::make_unique<RemoveObject>(project->screens().last(), nullptr));
    QVERIFY2(ProjectStore::save(project, m_fixture->folder(), &m_message), qUtf8Printable(m_message));
    QVERIFY(!QFile::exists(m_fixture->folder() + QStringLiteral("/screens/other.json")));
    project->undoStack()->undo();
    QVERIFY2(ProjectStore::save(project, m_fixture->folder(), &m_message), qUtf8Printable(m_message));
    QCOMPARE(m_fixture->read("screens/other.json"), QByteArray("{ precious, but broken"));

    QVERIFY(project->screens().last()->setIdName(QStringLiteral("renamed")));
    QVERIFY(!ProjectStore::save(project, m_fixture->folder(), &m_message));
    QVERIFY2(m_message.contains(QLatin1String("cannot be renamed to \"renamed\"")), qUtf8Printable(m_message));
}

void tst_ProjectSaving::valuesThatDoNotConvertSurvive()
{
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "lamp", "properties": {"size": "wide", "color": "",
        "border": "width: x;", "number": "1e9", "real": "nan", "font": "family: X;", "point": " 1,2",
        "points": "1,2 3", "style": "Wavy", "image": "../x", "position": "left", "rotation": "angle: 5;"},
        "editor": {"keepRatio": "1:2"}})");
    openFixture();
    DesignerObject* lamp = screen("main")->element(QStringLiteral("lamp"));
    for (const char* id : {"size", "color", "border", "number", "real", "font", "point", "points", "style", "image",
                           "position", "rotation", "keepRatio"})
        QVERIFY2(!lamp->getProperty(QString::fromUtf8(id))->isConverted(), id);
    setValue(lamp, "text", QStringLiteral("changed"));
    QVERIFY(save());
    openFixture();
    lamp = screen("main")->element(QStringLiteral("lamp"));
    QCOMPARE(valueOf(lamp, "text"), QStringLiteral("changed"));
    QCOMPARE(valueOf(lamp, "size"), QStringLiteral("wide"));
    QCOMPARE(valueOf(lamp, "color"), QString());
    QCOMPARE(valueOf(lamp, "border"), QStringLiteral("width: x;"));
    QCOMPARE(valueOf(lamp, "real"), QStringLiteral("nan"));
    QCOMPARE(valueOf(lamp, "point"), QStringLiteral(" 1,2"));
    QCOMPARE(valueOf(lamp, "image"), QStringLiteral("../x"));
    QCOMPARE(valueOf(lamp, "keepRatio"), QStringLiteral("1:2"));
}

void tst_ProjectSaving::unknownContentSurvives()
{
    m_fixture->writeProject({QStringLiteral("main"), QStringLiteral("other")}, R"(, "author": {"name": "me"})");
    m_fixture->writeScreen("main", R"({"class": "AllTypes", "id": "lamp", "layer": 3, "properties": {"glow": "1"}},
        {"class": "Hologram", "id": "ghost", "depth": [1, 2.5, "x"], "elements": [{"anything": null}]})");
    QList<Problem> problems;
    m_project = load(m_fixture->folder(), &problems);
    setValue(screen("main")->element(QStringLiteral("lamp")), "number", QStringLiteral("9"));
    setValue(m_project.get(), "name", QStringLiteral("Renamed"));
    QVERIFY(save());
    QVERIFY(m_fixture->read("project.json").contains("\"author\": {\n        \"name\": \"me\"\n    }"));
    QList<Problem> again;
    const auto project = load(m_fixture->folder(), &again);
    QCOMPARE(textOf(again), textOf(problems));
    QCOMPARE(project->screen(QStringLiteral("main"))->element(QStringLiteral("lamp"))->unknownKeys(),
             screen("main")->element(QStringLiteral("lamp"))->unknownKeys());
    QVERIFY(m_fixture->read("screens/main.json").contains("\"depth\": [\n                1,\n                2.5,"));
}

void tst_ProjectSaving::aChangeByAnotherProgramIsNotOverwritten()
{
    setValue(screen("main")->element(QStringLiteral("lamp")), "number", QStringLiteral("9"));
    const QByteArray theirs = m_fixture->read("screens/main.json").replace("\"text\": \"\"", "\"text\": \"theirs\"");
    m_fixture->write("screens/main.json", theirs);
    QVERIFY(!save());
    QVERIFY2(m_message.contains(QLatin1String("screens/main.json: The file was changed by another program")),
             qUtf8Printable(m_message));
    QCOMPARE(m_fixture->read("screens/main.json"), theirs);
    QVERIFY(m_project->isModified());
    QVERIFY2(ProjectStore::save(m_project.get(), m_fixture->path("mine"), &m_message), qUtf8Printable(m_message));
    QVERIFY(readFile(m_fixture->path("mine/screens/main.json")).contains("\"number\": \"9\""));
}

void tst_ProjectSaving::aFileThatWasSavedSinceTheChangeWasPlannedIsNotOverwritten()
{
    const ProjectFolder folder(m_fixture->folder());
    const QByteArray theirs = m_fixture->read("screens/main.json");
    SaveTransaction late(folder);
    late.write(QStringLiteral("screens/main.json"), "mine", "what stood there");
    QVERIFY(!late.commit(&m_message));
    QVERIFY2(m_message.contains(SaveTransaction::changedElsewhere()), qUtf8Printable(m_message));
    SaveTransaction unexpected(folder);
    unexpected.write(QStringLiteral("screens/main.json"), "mine", {});
    QVERIFY(!unexpected.commit(&m_message));
    QCOMPARE(m_fixture->read("screens/main.json"), theirs);
    SaveTransaction timely(folder);
    timely.write(QStringLiteral("screens/main.json"), "mine", theirs);
    QVERIFY2(timely.commit(&m_message), qUtf8Printable(m_message));
    QCOMPARE(m_fixture->read("screens/main.json"), QByteArray("mine"));
}

void tst_ProjectSaving::aScreenThatWasNotChangedHereNeedsNoPeaceWithOthers()
{
    setValue(screen("main")->element(QStringLiteral("lamp")), "number", QStringLiteral("9"));
    const QByteArray theirs = m_fixture->read("screens/other.json").replace("\"text\": \"\"", "\"text\": \"theirs\"");
    m_fixture->write("screens/other.json", theirs);
    QVERIFY2(save(), qUtf8Printable(m_message));
    QCOMPARE(m_fixture->read("screens/other.json"), theirs);
}

void tst_ProjectSaving::anotherProjectIsNotOverwritten()
{
    const auto fresh = ProjectStore::create(QStringLiteral("Fresh"), QSizeF(10, 10));
    const auto before = filesOf(m_fixture->folder());
    QVERIFY(!ProjectStore::save(fresh.get(), m_fixture->folder(), &m_message));
    QVERIFY2(m_message.contains(QLatin1String("There is already a file of this name")), qUtf8Printable(m_message));
    QCOMPARE(filesOf(m_fixture->folder()), before);
    // Beside files of others there is room.
    writeFile(m_fixture->path("shared/README"), "hello");
    QVERIFY2(ProjectStore::save(fresh.get(), m_fixture->path("shared"), &m_message), qUtf8Printable(m_message));
    QCOMPARE(readFile(m_fixture->path("shared/README")), QByteArray("hello"));
}

void tst_ProjectSaving::aLostFileIsWrittenAgain()
{
    const auto before = filesOf(m_fixture->folder());
    QVERIFY(QFile::remove(m_fixture->folder() + QStringLiteral("/screens/main.json")));
    QVERIFY(QFile::remove(m_fixture->folder() + QStringLiteral("/project.json")));
    QVERIFY(save());
    QCOMPARE(filesOf(m_fixture->folder()), before);
}

void tst_ProjectSaving::targetsThatCannotBeWrittenAreNamed()
{
    writeFile(m_fixture->path("plain"), "x");
    QVERIFY(!ProjectStore::save(m_project.get(), m_fixture->path("plain/below/project"), &m_message));
    QVERIFY2(m_message.contains(QLatin1String("plain")) && m_message.contains(QLatin1String("Not a directory")),
             qUtf8Printable(m_message));
    QVERIFY(!ProjectStore::save(m_project.get(), m_fixture->path("plain"), &m_message));
    QVERIFY2(!m_message.isEmpty(), qUtf8Printable(m_message));
    QCOMPARE(readFile(m_fixture->path("plain")), QByteArray("x"));

    QVERIFY(QDir().mkpath(m_fixture->path("taken/screens/main.json")));
    QVERIFY(!ProjectStore::save(m_project.get(), m_fixture->path("taken"), &m_message));
    QVERIFY2(m_message.contains(QLatin1String("taken/screens/main.json")), qUtf8Printable(m_message));
    QVERIFY(filesOf(m_fixture->path("taken")).isEmpty());
    QCOMPARE(m_project->folder(), m_fixture->folder());

    QVERIFY(!ProjectStore::save(m_project.get(), QStringLiteral("/proc/meridane"), &m_message));
    QVERIFY2(m_message.contains(QLatin1String("/proc/meridane")), qUtf8Printable(m_message));
}

void tst_ProjectSaving::writeProtectedFilesAreNotReplaced()
{
#ifdef Q_OS_UNIX
    const QString folder = m_fixture->folder();
    const QString file = folder + QStringLiteral("/screens/main.json");
    const CommonUser user(m_fixture->path("."));
    setValue(screen("main")->element(QStringLiteral("lamp")), "number", QStringLiteral("9"));
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner));
    QVERIFY(!save());
    QVERIFY2(m_message.contains(QLatin1String("The file is write-protected.")), qUtf8Printable(m_message));
    QVERIFY(QFile::setPermissions(file, QFile::ReadOwner | QFile::WriteOwner));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::ExeOwner));
    QVERIFY(!save());
    QVERIFY2(m_message.contains(QLatin1String("Permission denied")), qUtf8Printable(m_message));
    QVERIFY(!ProjectStore::save(m_project.get(), folder + QStringLiteral("/below"), &m_message));
    QVERIFY2(m_message.contains(QLatin1String("below: Permission denied")), qUtf8Printable(m_message));
    QVERIFY(QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    QVERIFY2(save(), qUtf8Printable(m_message));
#endif
}

void tst_ProjectSaving::aFileSizeLimitLeavesTheOldProject()
{
#ifdef Q_OS_UNIX
    const auto before = filesOf(m_fixture->folder());
    setValue(screen("main")->element(QStringLiteral("lamp")), "text", QString(100000, QLatin1Char('x')));
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit limit{};
    QCOMPARE(::getrlimit(RLIMIT_FSIZE, &limit), 0);
    rlimit small = limit;
    small.rlim_cur = 20000;
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &small), 0);
    const bool saved = save();
    QCOMPARE(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    QVERIFY(!saved);
    QVERIFY2(m_message.contains(QLatin1String("project/screens/main.json: "))
                 && m_message.contains(QLatin1String("File too large")),
             qUtf8Printable(m_message));
    QCOMPARE(filesOf(m_fixture->folder()), before);
    QVERIFY(m_project->isModified());
    QVERIFY(save());
    QVERIFY(!m_project->isModified());
#endif
}

void tst_ProjectSaving::groupsNestedTooDeeplyAreRefused()
{
    QByteArray json = R"({"class": "Group", "id": "g0", "elements": []})";
    for (int depth = 1; depth <= 400; ++depth)
        json = "{\"class\": \"Group\", \"id\": \"g" + QByteArray::number(depth) + "\", \"elements\": [" + json + "]}";
    m_fixture->writeScreen("main", json);
    m_fixture->writeScreen("other", QByteArray(json).replace("\"g", "\"h"));
    openFixture();
    // Each pile of groups fits into a file; one in the other they do not.
    DesignerObject* innermost = screen("main")->element(QStringLiteral("g0"));
    DesignerObject* pile = screen("other")->childList()->items().first();
    QVERIFY(screen("other")->removeListItem(screen("other")->childList(), pile));
    QVERIFY(innermost->addListItem(innermost->childList(), pile, -1));
    const auto files = filesOf(m_fixture->folder());
    QVERIFY(!save());
    QVERIFY2(m_message.contains(QLatin1String("nested too deeply")), qUtf8Printable(m_message));
    QCOMPARE(filesOf(m_fixture->folder()), files);
}

void tst_ProjectSaving::aProjectWithoutFolderCanBeSaved()
{
    Project project;
    QVERIFY(project.initialize());
    auto screen = std::make_unique<Screen>();
    QVERIFY(screen->initialize() && screen->setIdName(QStringLiteral("main")));
    QVERIFY(project.addListItem(project.childList(), screen.release(), -1));
    QVERIFY2(ProjectStore::save(&project, m_fixture->path("made"), &m_message), qUtf8Printable(m_message));
    QVERIFY(load(m_fixture->path("made")));
}

QTEST_MAIN(tst_ProjectSaving)
#include "tst_ProjectSaving.moc"
