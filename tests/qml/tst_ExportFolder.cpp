#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/qml/QmlExporter.h"
#include "tests/project/ProjectTestSupport.h"

#include <QDir>
#include <QFile>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Where an export may go, and that it never takes anything away but an older one of its own.
class tst_ExportFolder : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void anEmptyFolderIsFilled();
    void missingFoldersAreMade();
    void anOlderExportGivesWay();
    void filesOfOthersAreNeverReplaced_data();
    void filesOfOthersAreNeverReplaced();
    void aLinkToTheFolderIsFollowed();
    void theProjectItselfIsNoTarget();
    void targetsThatCannotBeWrittenAreNamed();
    void aFailureLeavesTheOldExport();
    void withoutAnExchangeTheFolderIsRenamed();

private:
    QString target() const { return m_fixture->path("export"); }
    QString exported(const QString& folder) { return textOf(QmlExporter::exportProject(m_project.get(), folder)); }
    QString exported() { return exported(target()); }
    QStringList beside() const
    {
        return QDir(m_fixture->path(".")).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    AllTypesFactory m_factory;
    std::unique_ptr<ProjectFixture> m_fixture;
    std::unique_ptr<Project> m_project;
};

void tst_ExportFolder::init()
{
    m_fixture = std::make_unique<ProjectFixture>();
    m_project = ProjectStore::create(QStringLiteral("Test"), QSizeF(100, 100));
    auto second = std::make_unique<Screen>();
    QVERIFY(second->initialize() && second->setIdName(QStringLiteral("other")));
    QVERIFY(m_project->addListItem(m_project->childList(), second.release(), -1));
}

void tst_ExportFolder::anEmptyFolderIsFilled()
{
    QVERIFY(QDir().mkpath(target()));
    QVERIFY(QFile::setPermissions(target(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner));
    const auto permissions = QFile::permissions(target());
    QCOMPARE(exported(), QString());
    QCOMPARE(filesOf(target()).size(), 4);
    QCOMPARE(QFile::permissions(target()), permissions);
    QCOMPARE(beside(), (QStringList{QStringLiteral("export"), QStringLiteral("project")}));
}

void tst_ExportFolder::missingFoldersAreMade()
{
    QCOMPARE(exported(m_fixture->path("a/b/c/")), QString());
    QVERIFY(QFile::exists(m_fixture->path("a/b/c/Main.qml")));
}

void tst_ExportFolder::anOlderExportGivesWay()
{
    QCOMPARE(exported(), QString());
    DesignerObject* second = m_project->screens().last();
    QVERIFY(m_project->removeListItem(m_project->childList(), second));
    delete second;
    QVERIFY(QFile::remove(target() + QStringLiteral("/screens/main.qml"))); // is written again
    QCOMPARE(exported(), QString());
    QVERIFY(QFile::exists(target() + QStringLiteral("/screens/main.qml")));
    QVERIFY(!QFile::exists(target() + QStringLiteral("/screens/other.qml")));
    QCOMPARE(beside(), (QStringList{QStringLiteral("export"), QStringLiteral("project")}));
}

void tst_ExportFolder::filesOfOthersAreNeverReplaced_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("message");
    QTest::newRow("file in a folder that is no export") << "plain/notes.txt"
                                                        << "holds files that no export wrote";
    QTest::newRow("file beside an export") << "export/notes.txt"
                                           << "notes.txt: No export wrote this file.";
    QTest::newRow("hidden file") << "export/.git/config"
                                 << "config: No export wrote this file.";
    QTest::newRow("file between screens") << "export/screens/mine.qml"
                                          << "mine.qml: No export wrote this file.";
    QTest::newRow("exported file that was changed") << "export/screens/main.qml"
                                                    << "main.qml: The file was changed after";
    QTest::newRow("list that was emptied") << "export/.meridane-export"
                                           << "holds files that no export wrote";
}

void tst_ExportFolder::filesOfOthersAreNeverReplaced()
{
    QFETCH(QString, file);
    QFETCH(QString, message);
    QCOMPARE(exported(), QString());
    writeFile(m_fixture->path(".") + QLatin1Char('/') + file, "mine\n");
    const QString folder = m_fixture->path(".") + QLatin1Char('/') + file.section(QLatin1Char('/'), 0, 0);
    const auto before = filesOf(folder);
    const QString text = exported(folder);
    QVERIFY2(text.contains(message), qUtf8Printable(text));
    QCOMPARE(filesOf(folder), before);
}

void tst_ExportFolder::aLinkToTheFolderIsFollowed()
{
#ifdef Q_OS_UNIX
    QVERIFY(QDir().mkpath(m_fixture->path("real")));
    QVERIFY(QFile::link(m_fixture->path("real"), target()));
    QCOMPARE(exported(), QString());
    QCOMPARE(exported(), QString());
    QVERIFY(QFileInfo(target()).isSymLink());
    QVERIFY(QFile::exists(m_fixture->path("real/Main.qml")));
    // What a link in an export leads to is not the export's.
    QVERIFY(QFile::remove(m_fixture->path("real/Main.qml")));
    writeFile(m_fixture->path("elsewhere"), "x");
    QVERIFY(QFile::link(m_fixture->path("elsewhere"), m_fixture->path("real/Main.qml")));
    QVERIFY(exported().contains(QLatin1String("No export wrote this file.")));
#endif
}

void tst_ExportFolder::theProjectItselfIsNoTarget()
{
    for (const char* part : {"", "/images", "/fonts"}) {
        const QString folder = m_project->folder() + QString::fromUtf8(part);
        QVERIFY2(exported(folder).contains(QLatin1String("This folder belongs to the project itself.")), part);
    }
}

void tst_ExportFolder::targetsThatCannotBeWrittenAreNamed()
{
    writeFile(m_fixture->path("plain"), "x");
    QString text = exported(m_fixture->path("plain"));
    QVERIFY2(text.contains(QLatin1String("plain: This is not a folder.")), qUtf8Printable(text));
    text = exported(m_fixture->path("plain/below/it"));
    QVERIFY2(text.contains(QLatin1String("plain: Not a directory")), qUtf8Printable(text));
    text = exported(QStringLiteral("/proc/meridane"));
    QVERIFY2(text.contains(QLatin1String("/proc/")), qUtf8Printable(text));
    QCOMPARE(readFile(m_fixture->path("plain")), QByteArray("x"));
}

void tst_ExportFolder::aFailureLeavesTheOldExport()
{
    QCOMPARE(exported(), QString());
    const auto before = filesOf(target());
    setValue(m_project.get(), "displaySize", QStringLiteral("50,50"));
    for (const bool exists : {true, false}) {
        const QString folder = exists ? target() : m_fixture->path("made/export");
        bool refused = true;
        for (int moment = 1; refused; ++moment) {
            {
                // What follows the staging does not make it fail: there is another way, or it is no more than tidying.
                FaultyOperations operations(moment);
                refused = !exported(folder).isEmpty();
            }
            if (refused) {
                QCOMPARE(filesOf(folder), exists ? before : (QMap<QString, QByteArray>()));
                QVERIFY(!QFile::exists(m_fixture->path("made")));
                QCOMPARE(beside(), (QStringList{QStringLiteral("export"), QStringLiteral("project")}));
            }
            QVERIFY(moment < 100);
        }
        QVERIFY(filesOf(folder) != before);
        QVERIFY(readFile(folder + QStringLiteral("/Main.qml")).contains("width: 50"));
    }
}

void tst_ExportFolder::withoutAnExchangeTheFolderIsRenamed()
{
    /// A file system on which two folders cannot change places.
    class WithoutExchange : public FaultyOperations
    {
    public:
        using FaultyOperations::FaultyOperations;
        bool exchange(const QString&, const QString&, QString*) override { return false; }
    };
    QCOMPARE(exported(), QString());
    const auto before = filesOf(target());
    setValue(m_project.get(), "displaySize", QStringLiteral("50,50"));
    bool refused = true;
    for (int moment = 1; refused; ++moment) {
        {
            WithoutExchange operations(moment);
            refused = !exported().isEmpty();
        }
        QCOMPARE(filesOf(target()) == before, refused);
        if (refused)
            QCOMPARE(beside(), (QStringList{QStringLiteral("export"), QStringLiteral("project")}));
    }
    QVERIFY(readFile(target() + QStringLiteral("/Main.qml")).contains("width: 50"));
}

QTEST_MAIN(tst_ExportFolder)
#include "tst_ExportFolder.moc"
