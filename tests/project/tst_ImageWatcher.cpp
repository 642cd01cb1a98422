#include "tests/project/ImageEditFixture.h"

#include "host/core/project/ImageWatcher.h"

#include <QSaveFile>
#include <QSignalSpy>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Changes that other programs make to image files are noticed, once each.
class tst_ImageWatcher : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_edit = std::make_unique<ImageEditFixture>();
        // Times of files are compared: those of the fixture shall not be of this moment.
        for (const QString& image : m_edit->images())
            setTime(path(image), QDateTime::currentDateTime().addSecs(-60));
        watch();
    }
    void cleanup()
    {
        m_changed.reset();
        m_watcher.reset();
        m_edit.reset();
    }

    void aFileThatIsWrittenInPlaceIsNoticed();
    void aFileThatIsReplacedByRenamingIsNoticedAgainAndAgain();
    void aFileThatGoesAndComesBackIsNoticed();
    void aLargeFileIsNotLookedAtForEveryPart();
    void otherFilesOfTheFolderDoNotMatter();
    void whatTheProgramWritesIsAnnouncedOnce();
    void anImportedImageIsWatched();
    void aFolderThatDidNotExistIsWatchedFromTheFirstImport();
    void aRenamedImageIsWatchedUnderItsNewName();
    void theFilesOfTheNewFolderAreWatchedAfterSavingElsewhere();

private:
    void watch()
    {
        m_watcher = std::make_unique<ImageWatcher>(m_edit->project());
        m_changed = std::make_unique<QSignalSpy>(m_edit->project(), &Project::imageFileChanged);
    }
    QString path(const QString& image) const { return m_edit->project()->imagesPath() + QLatin1Char('/') + image; }
    static void setTime(const QString& file, const QDateTime& time)
    {
        QFile touched(file);
        QVERIFY(touched.open(QIODevice::Append));
        QVERIFY(touched.setFileTime(time, QFileDevice::FileModificationTime));
    }
    QStringList changed() const
    {
        QStringList names;
        for (const QList<QVariant>& change : *m_changed)
            names.append(change.first().toString());
        return names;
    }
    /// Waits long enough for anything that is under way to be reported.
    void settle() const { QTest::qWait(3 * ImageWatcher::Delay); }

    std::unique_ptr<ImageEditFixture> m_edit;
    std::unique_ptr<ImageWatcher> m_watcher;
    std::unique_ptr<QSignalSpy> m_changed;
};

void tst_ImageWatcher::aFileThatIsWrittenInPlaceIsNoticed()
{
    writeFile(path(QStringLiteral("a.png")), pictureBytes(Qt::yellow));
    QTRY_COMPARE(changed(), QStringList{QStringLiteral("a.png")});
    settle();
    QCOMPARE(m_changed->size(), 1);
}

void tst_ImageWatcher::aFileThatIsReplacedByRenamingIsNoticedAgainAndAgain()
{
    for (int round = 1; round <= 3; ++round) {
        QSaveFile file(path(QStringLiteral("a.png")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(pictureBytes(Qt::yellow, QSize(round, 4)));
        QVERIFY(file.commit());
        QTRY_COMPARE(m_changed->size(), 2 * round - 1);
        // The file that stands there now is watched, too.
        writeFile(path(QStringLiteral("a.png")), pictureBytes(Qt::cyan, QSize(30 * round, 4)));
        QTRY_COMPARE(m_changed->size(), 2 * round);
    }
    QCOMPARE(changed().count(QStringLiteral("a.png")), 6);
}

void tst_ImageWatcher::aFileThatGoesAndComesBackIsNoticed()
{
    QVERIFY(QFile::remove(path(QStringLiteral("b.png"))));
    QTRY_COMPARE(changed(), QStringList{QStringLiteral("b.png")});
    writeFile(path(QStringLiteral("b.png")), pictureBytes(Qt::green));
    QTRY_COMPARE(m_changed->size(), 2);
}

void tst_ImageWatcher::aLargeFileIsNotLookedAtForEveryPart()
{
    QFile file(path(QStringLiteral("a.png")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    for (int part = 0; part < 12; ++part) {
        file.write(QByteArray(1000, 'x'));
        file.flush();
        QTest::qWait(ImageWatcher::Delay / 5);
    }
    file.close();
    QTRY_VERIFY(m_changed->size() > 0);
    settle();
    QVERIFY2(m_changed->size() <= 3, qPrintable(QString::number(m_changed->size())));
}

void tst_ImageWatcher::otherFilesOfTheFolderDoNotMatter()
{
    writeFile(path(QStringLiteral("notes.txt")), "anything");
    writeFile(path(QStringLiteral("new.png")), pictureBytes(Qt::yellow));
    settle();
    QCOMPARE(m_changed->size(), 0);
}

void tst_ImageWatcher::whatTheProgramWritesIsAnnouncedOnce()
{
    m_edit->session->replaceImage(QStringLiteral("a.png"), m_edit->outside("1.png", pictureBytes(Qt::yellow)));
    QCOMPARE(m_changed->size(), 1);
    settle();
    QCOMPARE(m_changed->size(), 1);
    writeFile(path(QStringLiteral("a.png")), pictureBytes(Qt::cyan, QSize(40, 40)));
    QTRY_COMPARE(m_changed->size(), 2);
}

void tst_ImageWatcher::anImportedImageIsWatched()
{
    m_edit->session->importImage(m_edit->outside("more.png", pictureBytes(Qt::yellow)), nullptr);
    settle();
    m_changed->clear();
    writeFile(path(QStringLiteral("more.png")), pictureBytes(Qt::cyan, QSize(40, 40)));
    QTRY_COMPARE(changed(), QStringList{QStringLiteral("more.png")});
}

void tst_ImageWatcher::aFolderThatDidNotExistIsWatchedFromTheFirstImport()
{
    m_watcher.reset();
    m_edit->close();
    QDir(m_edit->files.folder() + QStringLiteral("/images")).removeRecursively();
    m_edit->files.writeProject({QStringLiteral("main")});
    m_edit->files.writeScreen("main");
    m_edit->open();
    watch();
    m_edit->session->importImage(m_edit->outside("more.png", pictureBytes(Qt::yellow)), nullptr);
    settle();
    m_changed->clear();
    writeFile(path(QStringLiteral("more.png")), pictureBytes(Qt::cyan, QSize(40, 40)));
    QTRY_COMPARE(changed(), QStringList{QStringLiteral("more.png")});
}

void tst_ImageWatcher::aRenamedImageIsWatchedUnderItsNewName()
{
    m_edit->session->renameImage(QStringLiteral("a.png"), QStringLiteral("logo.png"));
    settle();
    m_changed->clear();
    writeFile(path(QStringLiteral("a.png")), pictureBytes(Qt::cyan, QSize(40, 40)));
    settle();
    QCOMPARE(m_changed->size(), 0);
    writeFile(path(QStringLiteral("logo.png")), pictureBytes(Qt::cyan, QSize(40, 40)));
    QTRY_COMPARE(changed(), QStringList{QStringLiteral("logo.png")});
}

void tst_ImageWatcher::theFilesOfTheNewFolderAreWatchedAfterSavingElsewhere()
{
    const QString before = path(QStringLiteral("a.png"));
    QVERIFY(ProjectStore::save(m_edit->project(), m_edit->files.path("copy"), &m_edit->message));
    // What shows them must turn to the files there.
    QStringList announced = changed();
    announced.sort();
    QCOMPARE(announced.join(QLatin1Char(' ')), QStringLiteral("a.png b.png spare.png"));
    m_changed->clear();
    writeFile(before, pictureBytes(Qt::cyan, QSize(40, 40)));
    settle();
    QCOMPARE(m_changed->size(), 0);
    writeFile(path(QStringLiteral("a.png")), pictureBytes(Qt::cyan, QSize(40, 40)));
    QTRY_COMPARE(changed(), QStringList{QStringLiteral("a.png")});
}

QTEST_MAIN(tst_ImageWatcher)
#include "tst_ImageWatcher.moc"
