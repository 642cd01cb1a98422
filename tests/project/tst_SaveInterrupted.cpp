#include "host/core/commands/RemoveObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/ObjectListProperty.h"
#include "tests/project/ProjectTestSupport.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QtTest>

#ifdef Q_OS_UNIX
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#endif

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

enum Change
{
    OneScreen, ///< a single file is replaced
    Several, ///< two screens changed, one added, one removed, the project renamed
    Elsewhere ///< everything is written into a folder that does not exist yet
};

/// Loads the project in \a folder and changes it.
std::unique_ptr<Project> changed(const QString& folder, Change change)
{
    auto project = load(folder);
    Screen* main = project->screen(QStringLiteral("main"));
    setValue(main->element(QStringLiteral("lamp")), "text", QString(5000, QLatin1Char('B')));
    if (change == Several) {
        setValue(project->screen(QStringLiteral("other"))->element(QStringLiteral("knob")), "number",
                 QStringLiteral("9"));
        project->execute(std::make_unique<RemoveObject>(project->screen(QStringLiteral("third")), nullptr));
        auto screen = std::make_unique<Screen>();
        screen->initialize();
        screen->setIdName(QStringLiteral("fresh"));
        project->addListItem(project->childList(), screen.get(), -1);
        screen.release();
        setValue(project.get(), "name", QStringLiteral("Renamed"));
    }
    return project;
}

void writeOldProject(const QString& folder)
{
    const auto project = ProjectStore::create(QStringLiteral("Old"), QSizeF(100, 50));
    for (const char* id : {"other", "third"}) {
        auto screen = std::make_unique<Screen>();
        screen->initialize();
        screen->setIdName(QString::fromUtf8(id));
        project->addListItem(project->childList(), screen.get(), -1);
        screen.release();
    }
    addElement(project.get(), project->screen(QStringLiteral("main")), "lamp");
    addElement(project.get(), project->screen(QStringLiteral("other")), "knob");
    setValue(project->screen(QStringLiteral("main"))->element(QStringLiteral("lamp")), "text",
             QString(5000, QLatin1Char('A')));
    QString message;
    if (!ProjectStore::save(project.get(), folder, &message))
        qFatal("%s", qUtf8Printable(message));
}

QString targetOf(const QString& folder, Change change)
{
    return change == Elsewhere ? folder + QStringLiteral("-copy/deep") : folder;
}

/// The part of the child process: saves and is killed at operation \a moment.
int saveAndDie(const QString& folder, Change change, int moment, bool tears)
{
    AllTypesFactory factory;
    const auto project = changed(folder, change);
    FaultyOperations operations(moment, false, [] {
#ifdef Q_OS_UNIX
        ::kill(::getpid(), SIGKILL);
#endif
        std::abort();
    });
    operations.setTearsFiles(tears);
    QString message;
    return ProjectStore::save(project.get(), targetOf(folder, change), &message) ? 0 : 1;
}

} // namespace

class tst_SaveInterrupted : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void aKillLeavesTheOldProjectOrTheNewOne_data();
    void aKillLeavesTheOldProjectOrTheNewOne();
    void aFailureLeavesTheOldProject_data();
    void aFailureLeavesTheOldProject();
    void takingBackCanBeInterruptedItself();
    void whatWasChangedSinceIsLeftAlone();
    void aRestoredFileIsNotRemovedLater();
    void aJournalThatCannotBeUnderstoodIsRefused_data();
    void aJournalThatCannotBeUnderstoodIsRefused();
    void twoProgramsDoNotSaveAtATime();

private:
    /// The folder with the old project and what a save of \a change makes of it.
    void prepare(Change change);

    AllTypesFactory m_factory;
    std::unique_ptr<ProjectFixture> m_fixture;
    QMap<QString, QByteArray> m_old;
    QMap<QString, QByteArray> m_new;
};

void tst_SaveInterrupted::init()
{
    m_fixture = std::make_unique<ProjectFixture>();
}

void tst_SaveInterrupted::prepare(Change change)
{
    const QString folder = m_fixture->folder();
    writeOldProject(folder);
    m_old = change == Elsewhere ? QMap<QString, QByteArray>() : filesOf(folder);
    QString message;
    QVERIFY2(ProjectStore::save(changed(folder, change).get(), targetOf(folder, change), &message),
             qUtf8Printable(message));
    m_new = filesOf(targetOf(folder, change));
    QVERIFY(m_new != m_old);
}

static void addChanges()
{
    QTest::addColumn<int>("change");
    QTest::newRow("one screen") << int(OneScreen);
    QTest::newRow("several files") << int(Several);
    QTest::newRow("another folder") << int(Elsewhere);
}

void tst_SaveInterrupted::aKillLeavesTheOldProjectOrTheNewOne_data()
{
    addChanges();
}

void tst_SaveInterrupted::aKillLeavesTheOldProjectOrTheNewOne()
{
    QFETCH(int, change);
    prepare(Change(change));
    const QString folder = m_fixture->folder();
    const QString target = targetOf(folder, Change(change));
    int moments = 0;
    int oldOnes = 0;
    for (int moment = 1;; ++moment) {
        const bool tears = moment % 2 == 0;
        QDir(folder).removeRecursively();
        QDir(folder + QStringLiteral("-copy")).removeRecursively();
        writeOldProject(folder);
        QProcess child;
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--save-and-die"), folder, QString::number(change), QString::number(moment),
                     QString::number(tears)});
        QVERIFY(child.waitForFinished(60000));
        const bool killed = child.exitStatus() == QProcess::CrashExit;

        // Opening brings the folder in order; where nothing has been announced yet there may be no project at all.
        auto loaded = ProjectStore::load(target);
        loaded.project.reset();
        auto files = filesOf(target);
        if (files.keys().size() == 0 || !files.contains(QStringLiteral("project.json")))
            QCOMPARE(change, int(Elsewhere));
        const bool isOld = files == m_old;
        const bool isNew = files == m_new;
        QVERIFY2(isOld || isNew,
                 qPrintable(QStringLiteral("killed at %1: %2").arg(moment).arg(QStringList(files.keys()).join(u' '))));
        QCOMPARE(QDir(target).entryList({QStringLiteral(".meridane*")}, QDir::AllEntries | QDir::Hidden),
                 QStringList());
        if (!killed) {
            QCOMPARE(child.exitCode(), 0);
            QVERIFY(isNew);
            break;
        }
        ++moments;
        oldOnes += isOld ? 1 : 0;
    }
    qInfo("%d moments, %d of them leave the old project", moments, oldOnes);
    QVERIFY(moments > 3 && oldOnes > 0 && oldOnes < moments);
}

void tst_SaveInterrupted::aFailureLeavesTheOldProject_data()
{
    addChanges();
}

void tst_SaveInterrupted::aFailureLeavesTheOldProject()
{
    QFETCH(int, change);
    prepare(Change(change));
    const QString folder = m_fixture->folder();
    const QString target = targetOf(folder, Change(change));
    for (const bool persistent : {false, true}) {
        bool faulted = true;
        for (int moment = 1; faulted; ++moment) {
            QDir(folder).removeRecursively();
            QDir(folder + QStringLiteral("-copy")).removeRecursively();
            writeOldProject(folder);
            auto project = changed(folder, Change(change));
            QString message;
            bool saved = false;
            {
                FaultyOperations operations(moment, persistent);
                saved = ProjectStore::save(project.get(), target, &message);
                faulted = operations.count() >= moment;
            }
            if (!saved) {
                QVERIFY2(message.contains(QLatin1String("fault of a test")), qUtf8Printable(message));
                QVERIFY(project->isModified());
                QCOMPARE(project->folder(), folder);
                if (!persistent)
                    QCOMPARE(filesOf(target), m_old); // at once, without opening it again
            } else {
                QVERIFY(!project->isModified());
            }
            project.reset();
            ProjectStore::load(target).project.reset();
            // Of a disk that takes nothing more, not even what stood there before, no more can be asked than the truth.
            const bool uncertain = persistent && message.contains(QLatin1String("it is not certain"));
            QCOMPARE(filesOf(target), saved || uncertain ? m_new : m_old);
        }
    }
}

void tst_SaveInterrupted::takingBackCanBeInterruptedItself()
{
    prepare(Several);
    const QString folder = m_fixture->folder();
    // A save that is stopped for good while it moves files into place ...
    const auto interrupt = [this, &folder] {
        QDir(folder).removeRecursively();
        writeOldProject(folder);
        auto project = changed(folder, Several);
        QString message;
        int moment = 0;
        {
            FaultyOperations operations(0);
            // Found by name, so that the test does not depend on the number of operations before it.
            QVERIFY(ProjectStore::save(project.get(), folder, &message));
            const QStringList log = operations.log();
            moment = int(log.indexOf(QRegularExpression(QStringLiteral("^rename .*screens/other.json$")))) + 1;
            QVERIFY(moment > 1);
        }
        QDir(folder).removeRecursively();
        writeOldProject(folder);
        project = changed(folder, Several);
        FaultyOperations operations(moment, true);
        QVERIFY(!ProjectStore::save(project.get(), folder, &message));
        QVERIFY2(message.contains(QLatin1String("is put back when the project is next opened")),
                 qUtf8Printable(message));
    };
    // ... and every opening after it, but for the last one.
    bool faulted = true;
    for (int moment = 1; faulted; ++moment) {
        interrupt();
        QVERIFY(filesOf(folder) != m_old);
        {
            FaultyOperations operations(moment, true);
            const auto loaded = ProjectStore::load(folder);
            faulted = operations.count() >= moment;
            QVERIFY(faulted == (loaded.project == nullptr));
        }
        QVERIFY(ProjectStore::load(folder).project);
        QCOMPARE(filesOf(folder), m_old);
    }
}

void tst_SaveInterrupted::whatWasChangedSinceIsLeftAlone()
{
    const QString folder = m_fixture->folder();
    writeOldProject(folder);
    auto project = changed(folder, Several);
    QString message;
    {
        FaultyOperations counting(0);
        QVERIFY(ProjectStore::save(project.get(), folder, &message));
        const int moment =
            int(counting.log().indexOf(QRegularExpression(QStringLiteral("^rename .*\\.meridane-save\\.done$")))) + 1;
        QVERIFY(moment > 1);
        project.reset();
        QDir(folder).removeRecursively();
        writeOldProject(folder);
        project = changed(folder, Several);
        FaultyOperations operations(moment, true);
        QVERIFY(!ProjectStore::save(project.get(), folder, &message));
    }
    project.reset();
    // Everything is in place but not completed; the user goes on by hand.
    const QByteArray mine = m_fixture->read("screens/main.json").replace("\"number\": \"1\"", "\"number\": \"7\"");
    m_fixture->write("screens/main.json", mine);
    QVERIFY(ProjectStore::load(folder).project);
    QCOMPARE(m_fixture->read("screens/main.json"), mine);
    QVERIFY(m_fixture->read("project.json").contains("\"Old\""));
}

void tst_SaveInterrupted::aRestoredFileIsNotRemovedLater()
{
    const QString folder = m_fixture->folder();
    writeOldProject(folder);
    const auto old = filesOf(folder);
    auto project = changed(folder, Several);
    QString message;
    {
        FaultyOperations counting(0);
        QVERIFY(ProjectStore::save(project.get(), folder, &message));
        const int moment = int(counting.log().indexOf(QRegularExpression(QStringLiteral("^remove .*third.json$")))) + 1;
        QVERIFY(moment > 1);
        project.reset();
        QDir(folder).removeRecursively();
        writeOldProject(folder);
        project = changed(folder, Several);
        FaultyOperations operations(moment, true);
        QVERIFY(ProjectStore::save(project.get(), folder, &message)); // the change itself stands
    }
    project.reset();
    QVERIFY(QFile::exists(folder + QStringLiteral("/screens/third.json")));
    // Version control brings the old state back before the rest could be done.
    for (auto file = old.cbegin(); file != old.cend(); ++file)
        writeFile(folder + QLatin1Char('/') + file.key(), file.value());
    QVERIFY(QFile::remove(folder + QStringLiteral("/screens/fresh.json")));
    QVERIFY(ProjectStore::load(folder).project);
    QCOMPARE(filesOf(folder), old);
}

void tst_SaveInterrupted::aJournalThatCannotBeUnderstoodIsRefused_data()
{
    QTest::addColumn<QByteArray>("journal");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("x");
    QTest::newRow("another version") << QByteArray(R"({"version": 2})");
    QTest::newRow("a file outside") << QByteArray(R"({"version": 1, "files": [{"file": "../x", "after": "y"}]})");
    QTest::newRow("a file that is none of ours")
        << QByteArray(R"({"version": 1, "files": [], "removals": [{"file": ".git/config", "fingerprint": "y"}]})");
    QTest::newRow("a path in a name") << QByteArray(R"({"version": 1, "files": [{"file": "images/../../x"}]})");
    QTest::newRow("a folder that is none of ours") << QByteArray(R"({"version": 1, "folders": ["src"]})");
}

void tst_SaveInterrupted::aJournalThatCannotBeUnderstoodIsRefused()
{
    QFETCH(QByteArray, journal);
    const QString folder = m_fixture->folder();
    writeOldProject(folder);
    const auto project = load(folder);
    m_fixture->write(".meridane-save/journal.json", journal);
    m_fixture->write(".meridane-save/old/project.json", "precious");
    const auto before = filesOf(folder);
    const auto loaded = ProjectStore::load(folder);
    QVERIFY(!loaded.project);
    QVERIFY2(textOf(loaded.problems).contains(QLatin1String("what it left cannot be understood")),
             qUtf8Printable(textOf(loaded.problems)));
    setValue(project.get(), "name", QStringLiteral("Other"));
    QString message;
    QVERIFY(!ProjectStore::save(project.get(), folder, &message));
    QCOMPARE(filesOf(folder), before);
}

void tst_SaveInterrupted::twoProgramsDoNotSaveAtATime()
{
#ifdef Q_OS_UNIX
    const QString folder = m_fixture->folder();
    writeOldProject(folder);
    const auto project = changed(folder, OneScreen);
    const int handle = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY);
    QVERIFY(handle >= 0);
    QCOMPARE(::flock(handle, LOCK_EX), 0);
    QString message;
    QVERIFY(!ProjectStore::save(project.get(), folder, &message));
    QVERIFY2(message.contains(QLatin1String("Another program is saving this project.")), qUtf8Printable(message));
    ::close(handle);
    QVERIFY(ProjectStore::save(project.get(), folder, &message));
#endif
}

int main(int argc, char** argv)
{
    if (argc == 6 && qstrcmp(argv[1], "--save-and-die") == 0) {
        const QCoreApplication application(argc, argv);
        return saveAndDie(QString::fromLocal8Bit(argv[2]), Change(atoi(argv[3])), atoi(argv[4]), atoi(argv[5]) != 0);
    }
    QApplication application(argc, argv);
    tst_SaveInterrupted test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_SaveInterrupted.moc"
