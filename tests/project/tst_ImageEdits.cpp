#include "tests/project/ImageEditFixture.h"

#include "host/core/project/ImageEdits.h"

#include <QSignalSpy>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

/// Images are renamed, replaced and removed as steps of the history.
class tst_ImageEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_edit = std::make_unique<ImageEditFixture>(); }
    void cleanup() { m_edit.reset(); }

    void aRenamedImageTakesItsLinksAlong();
    void undoingARenameGivesTheSameBytes();
    void aSavedRenameKeepsOnlyTheNewFile();
    void aRenameThatIsNotSavedLeavesTheFolderAsItWas();
    void anUndoneRenameIsForgottenByTheNextSave();
    void aSpareImageStaysSpareUnderItsNewName();
    void aRenameAddsTheEndingThatIsLeftOut();
    void namesThatCannotBeUsedAreRefused_data();
    void namesThatCannotBeUsedAreRefused();
    void theSameNameIsNoStep();
    void capitalsAloneCanChange();
    void aNameThatOnlyTheHistoryKnowsCanBeUsedAgain();
    void aMissingImageCanBeRenamed();
    void whatAnotherProgramDidGoesAlongWithAnUndoneRename();
    void aFailingRenameChangesNothing();

    void aReplacedImageKeepsItsName();
    void aPictureOfAnotherFormatChangesTheEnding();
    void theSamePictureIsNoStep();
    void whatIsNoPictureReplacesNothing();
    void aReplacementThatIsNotSavedIsTakenBack();
    void aReplacementThatSomebodyElseHasOverwrittenIsLeft();
    void savingElsewhereTakesTheReplacementAlongAndLeavesTheOldFolderAsItWas();
    void aReplacedFileIsNewerHoweverQuick();

    void anImageInUseIsNotRemovedAndThePlacesAreNamed();
    void anImageThatAnUnknownElementNamesIsNotRemoved();
    void anImageIsNotRemovedWhileAScreenCannotBeRead();
    void aRemovedImageGoesWithTheSaveAndComesBackByUndo();
    void anImageOfTheUsersIsHandedOverByAnEdit();
    void anEditOfNoImageIsRefused();
    void imagesThatTheNextSaveDropsAreTold();

private:
    EditResult rename(const char* image, const char* name, QString* id = nullptr) const
    {
        return m_edit->session->renameImage(QString::fromUtf8(image), QString::fromUtf8(name), id);
    }
    EditResult remove(const char* image) const { return m_edit->session->removeImage(QString::fromUtf8(image)); }

    std::unique_ptr<ImageEditFixture> m_edit;
};

void tst_ImageEdits::aRenamedImageTakesItsLinksAlong()
{
    QVERIFY(!m_edit->project()->screen(QStringLiteral("other"))->isContentRead());
    QString id;
    const EditResult result = rename("a.png", "logo.png", &id);
    QVERIFY2(result.accepted && result.changed, qUtf8Printable(result.message));
    QCOMPARE(id, QStringLiteral("logo.png"));
    QCOMPARE(m_edit->images().join(QLatin1Char(' ')), QStringLiteral("logo.png b.png spare.png"));
    QCOMPARE(m_edit->links().join(QLatin1Char(' ')), QStringLiteral("logo.png b.png logo.png logo.png"));
    QCOMPARE(m_edit->content(id), pictureBytes(Qt::red));
    QCOMPARE(m_edit->stack()->count(), 1);
    QCOMPARE(m_edit->stack()->undoText(), QStringLiteral("Rename a.png"));
    m_edit->session->undo();
    QCOMPARE(m_edit->images().join(QLatin1Char(' ')), QStringLiteral("a.png b.png spare.png"));
    QCOMPARE(m_edit->links().join(QLatin1Char(' ')), QStringLiteral("a.png b.png a.png a.png"));
    m_edit->session->redo();
    QCOMPARE(m_edit->images().first(), id);
    QCOMPARE(m_edit->link("other/knob"), id);
}

void tst_ImageEdits::undoingARenameGivesTheSameBytes()
{
    const auto before = filesOf(m_edit->files.folder());
    QVERIFY(rename("a.png", "logo.png").changed);
    QVERIFY(m_edit->save());
    QVERIFY(filesOf(m_edit->files.folder()) != before);
    m_edit->session->undo();
    QVERIFY(m_edit->save());
    m_edit->close();
    QCOMPARE(filesOf(m_edit->files.folder()), before);
}

void tst_ImageEdits::aSavedRenameKeepsOnlyTheNewFile()
{
    rename("a.png", "logo.png");
    rename("logo.png", "mark.png");
    QVERIFY(m_edit->save());
    // The history may ask for the others.
    QCOMPARE(m_edit->folder().size(), 5);
    m_edit->close();
    QCOMPARE(m_edit->folder().join(QLatin1Char(' ')), QStringLiteral("b.png mark.png spare.png"));
    QList<Problem> problems;
    const std::unique_ptr<Project> project = load(m_edit->files.folder(), &problems);
    QCOMPARE(textOf(problems), QString());
    QCOMPARE(project->imageResources().join(QLatin1Char(' ')), QStringLiteral("mark.png b.png spare.png"));
}

void tst_ImageEdits::aRenameThatIsNotSavedLeavesTheFolderAsItWas()
{
    const auto before = filesOf(m_edit->files.folder());
    rename("a.png", "logo.png");
    QVERIFY(m_edit->folder().contains(QStringLiteral("logo.png")));
    m_edit->close();
    QCOMPARE(filesOf(m_edit->files.folder()), before);
}

void tst_ImageEdits::anUndoneRenameIsForgottenByTheNextSave()
{
    const auto before = filesOf(m_edit->files.folder());
    rename("a.png", "logo.png");
    m_edit->session->undo();
    QVERIFY(m_edit->save());
    m_edit->close();
    QCOMPARE(filesOf(m_edit->files.folder()), before);
}

void tst_ImageEdits::aSpareImageStaysSpareUnderItsNewName()
{
    rename("spare.png", "later.png");
    QVERIFY(m_edit->save());
    m_edit->open();
    m_edit->set("main/lamp", "number", QStringLiteral("5"));
    QVERIFY(m_edit->save());
    m_edit->close();
    QCOMPARE(m_edit->folder().join(QLatin1Char(' ')), QStringLiteral("a.png b.png later.png"));
}

void tst_ImageEdits::aRenameAddsTheEndingThatIsLeftOut()
{
    QString id;
    QVERIFY(rename("a.png", "logo", &id).accepted);
    QCOMPARE(id, QStringLiteral("logo.png"));
    QVERIFY(rename("logo.png", "version 1.5", &id).accepted);
    QCOMPARE(id, QStringLiteral("version 1.5.png"));
    QVERIFY(rename("version 1.5.png", "photo.PNG", &id).accepted);
    QCOMPARE(id, QStringLiteral("photo.PNG"));
}

void tst_ImageEdits::namesThatCannotBeUsedAreRefused_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("empty") << ""
                           << "needs a name";
    QTest::newRow("slash") << "x/y.png"
                           << "plain file name";
    QTest::newRow("backslash") << "x\\y.png"
                               << "plain file name";
    QTest::newRow("colon") << "c:x.png"
                           << "plain file name";
    QTest::newRow("folder above") << ".."
                                  << "plain file name";
    QTest::newRow("two dots") << "x..png"
                              << "plain file name";
    QTest::newRow("out of the folder") << "../x.png"
                                       << "plain file name";
    QTest::newRow("hidden") << ".x.png"
                            << "plain file name";
    QTest::newRow("control character") << QStringLiteral("x\ty.png") << "plain file name";
    QTest::newRow("blank in front") << " x.png"
                                    << "plain file name";
    QTest::newRow("blank at the end") << "x.png "
                                      << "plain file name";
    QTest::newRow("half a character") << QString(QChar(0xd800)) + QStringLiteral(".png") << "plain file name";
    QTest::newRow("too long") << QString(300, QLatin1Char('x')) + QStringLiteral(".png") << "too long";
    QTest::newRow("taken") << "b.png"
                           << "already an image \"b.png\"";
    QTest::newRow("taken but for capitals") << "B.png"
                                            << "differ only in capitals";
    QTest::newRow("a file of the user's") << "notes.png"
                                          << "already a file \"notes.png\"";
    QTest::newRow("a file of the user's but for capitals") << "Notes.png"
                                                           << "already a file \"notes.png\"";
    QTest::newRow("another kind") << "a.svg"
                                  << "must go on ending in \".png\"";
    QTest::newRow("another format") << "a.jpg"
                                    << "must go on ending in \".png\"";
}

void tst_ImageEdits::namesThatCannotBeUsedAreRefused()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    m_edit->files.write("images/notes.png", "not the program's");
    const auto before = filesOf(m_edit->files.folder());
    QSignalSpy refused(m_edit->session.get(), &EditSession::editRefused);
    const EditResult result = m_edit->session->renameImage(QStringLiteral("a.png"), name);
    QVERIFY(!result.accepted);
    QVERIFY2(result.message.contains(reason), qUtf8Printable(result.message));
    QCOMPARE(refused.size(), 1);
    QCOMPARE(m_edit->stack()->count(), 0);
    QVERIFY(!m_edit->project()->isModified());
    QCOMPARE(filesOf(m_edit->files.folder()), before);
}

void tst_ImageEdits::theSameNameIsNoStep()
{
    for (const char* name : {"a.png", "a"}) {
        const EditResult result = rename("a.png", name);
        QVERIFY(result.accepted);
        QVERIFY(!result.changed);
    }
    QCOMPARE(m_edit->stack()->count(), 0);
}

void tst_ImageEdits::capitalsAloneCanChange()
{
    QVERIFY(rename("a.png", "A.png").changed);
    QVERIFY(m_edit->save());
    m_edit->close();
    QCOMPARE(m_edit->folder().join(QLatin1Char(' ')), QStringLiteral("A.png b.png spare.png"));
}

void tst_ImageEdits::aNameThatOnlyTheHistoryKnowsCanBeUsedAgain()
{
    rename("a.png", "logo.png");
    rename("logo.png", "mark.png");
    QVERIFY(rename("b.png", "logo.png").changed); // the file of the first step stands there
    QCOMPARE(m_edit->content(QStringLiteral("logo.png")), pictureBytes(Qt::green));
    m_edit->session->undo();
    m_edit->session->undo();
    QCOMPARE(m_edit->link("main/lamp"), QStringLiteral("logo.png"));
    QCOMPARE(m_edit->content(QStringLiteral("logo.png")), pictureBytes(Qt::red));
    m_edit->session->redo();
    m_edit->session->redo();
    QCOMPARE(m_edit->link("main/light"), QStringLiteral("logo.png"));
    QCOMPARE(m_edit->content(QStringLiteral("logo.png")), pictureBytes(Qt::green));
    QCOMPARE(m_edit->content(QStringLiteral("mark.png")), pictureBytes(Qt::red));
}

void tst_ImageEdits::aMissingImageCanBeRenamed()
{
    QFile::remove(m_edit->project()->imagesPath() + QStringLiteral("/a.png"));
    QVERIFY(rename("a.png", "logo.png").changed);
    QCOMPARE(m_edit->link("other/dial"), QStringLiteral("logo.png"));
    QVERIFY(!m_edit->folder().contains(QStringLiteral("logo.png")));
    m_edit->session->undo();
    QCOMPARE(m_edit->link("other/dial"), QStringLiteral("a.png"));
}

void tst_ImageEdits::whatAnotherProgramDidGoesAlongWithAnUndoneRename()
{
    rename("a.png", "logo.png");
    m_edit->files.write("images/logo.png", pictureBytes(Qt::yellow));
    m_edit->session->undo();
    QCOMPARE(m_edit->content(QStringLiteral("a.png")), pictureBytes(Qt::yellow));
    m_edit->session->redo();
    QCOMPARE(m_edit->content(QStringLiteral("logo.png")), pictureBytes(Qt::yellow));
}

void tst_ImageEdits::aFailingRenameChangesNothing()
{
    const auto before = filesOf(m_edit->files.folder());
    {
        FaultyOperations faulty(1, true);
        const EditResult result = rename("a.png", "logo.png");
        QVERIFY(!result.accepted);
        QVERIFY2(result.message.contains(QLatin1String("fault of a test")), qUtf8Printable(result.message));
    }
    QCOMPARE(m_edit->stack()->count(), 0);
    QCOMPARE(m_edit->links().join(QLatin1Char(' ')), QStringLiteral("a.png b.png a.png a.png"));
    QCOMPARE(m_edit->images().first(), QStringLiteral("a.png"));
    QCOMPARE(filesOf(m_edit->files.folder()), before);
}

void tst_ImageEdits::aReplacedImageKeepsItsName()
{
    const QString file = m_edit->outside("new.png", pictureBytes(Qt::yellow));
    QSignalSpy changed(m_edit->project(), &Project::imageFileChanged);
    QString id;
    const EditResult result = m_edit->session->replaceImage(QStringLiteral("a.png"), file, &id);
    QVERIFY2(result.accepted && result.changed, qUtf8Printable(result.message));
    QCOMPARE(id, QStringLiteral("a.png"));
    QCOMPARE(m_edit->content(id), pictureBytes(Qt::yellow));
    QCOMPARE(m_edit->links().join(QLatin1Char(' ')), QStringLiteral("a.png b.png a.png a.png"));
    QCOMPARE(m_edit->stack()->undoText(), QStringLiteral("Replace a.png"));
    QCOMPARE(changed.size(), 1);
    QCOMPARE(changed.first().first().toString(), id);
    m_edit->session->undo();
    QCOMPARE(m_edit->content(id), pictureBytes(Qt::red));
    QCOMPARE(changed.size(), 2);
    m_edit->session->redo();
    QCOMPARE(m_edit->content(id), pictureBytes(Qt::yellow));
    QVERIFY(m_edit->save());
    m_edit->close();
    QCOMPARE(m_edit->files.read("images/a.png"), pictureBytes(Qt::yellow));
}

void tst_ImageEdits::aPictureOfAnotherFormatChangesTheEnding()
{
    const QString file = m_edit->outside("new.svg", drawingBytes(Qt::yellow));
    QString id;
    QVERIFY(m_edit->session->replaceImage(QStringLiteral("a.png"), file, &id).changed);
    QCOMPARE(id, QStringLiteral("a.svg"));
    QCOMPARE(m_edit->links().join(QLatin1Char(' ')), QStringLiteral("a.svg b.png a.svg a.svg"));
    QCOMPARE(m_edit->stack()->count(), 1);
    m_edit->session->undo();
    QCOMPARE(m_edit->link("main/lamp"), QStringLiteral("a.png"));
    QCOMPARE(m_edit->content(QStringLiteral("a.png")), pictureBytes(Qt::red));
    m_edit->session->redo();
    QVERIFY(m_edit->save());
    m_edit->close();
    QCOMPARE(m_edit->folder().join(QLatin1Char(' ')), QStringLiteral("a.svg b.png spare.png"));
}

void tst_ImageEdits::theSamePictureIsNoStep()
{
    const QString file = m_edit->outside("new.png", pictureBytes(Qt::red));
    const EditResult result = m_edit->session->replaceImage(QStringLiteral("a.png"), file);
    QVERIFY(result.accepted);
    QVERIFY(!result.changed);
    QVERIFY(!m_edit->project()->isModified());
}

void tst_ImageEdits::whatIsNoPictureReplacesNothing()
{
    const QString file = m_edit->outside("new.png", "no picture");
    const EditResult result = m_edit->session->replaceImage(QStringLiteral("a.png"), file);
    QVERIFY(!result.accepted);
    QVERIFY2(result.message.startsWith(file), qUtf8Printable(result.message));
    QCOMPARE(m_edit->content(QStringLiteral("a.png")), pictureBytes(Qt::red));
}

void tst_ImageEdits::aReplacementThatIsNotSavedIsTakenBack()
{
    const auto before = filesOf(m_edit->files.folder());
    m_edit->session->replaceImage(QStringLiteral("a.png"), m_edit->outside("1.png", pictureBytes(Qt::yellow)));
    m_edit->session->replaceImage(QStringLiteral("a.png"), m_edit->outside("2.png", pictureBytes(Qt::cyan)));
    m_edit->session->replaceImage(QStringLiteral("b.png"), m_edit->outside("3.svg", drawingBytes(Qt::cyan)));
    m_edit->close();
    QCOMPARE(filesOf(m_edit->files.folder()), before);
}

void tst_ImageEdits::aReplacementThatSomebodyElseHasOverwrittenIsLeft()
{
    m_edit->session->replaceImage(QStringLiteral("a.png"), m_edit->outside("1.png", pictureBytes(Qt::yellow)));
    m_edit->files.write("images/a.png", pictureBytes(Qt::magenta));
    m_edit->close();
    QCOMPARE(m_edit->files.read("images/a.png"), pictureBytes(Qt::magenta));
}

void tst_ImageEdits::savingElsewhereTakesTheReplacementAlongAndLeavesTheOldFolderAsItWas()
{
    const auto before = filesOf(m_edit->files.folder());
    m_edit->session->replaceImage(QStringLiteral("a.png"), m_edit->outside("1.png", pictureBytes(Qt::yellow)));
    m_edit->session->importImage(m_edit->outside("more.png", pictureBytes(Qt::cyan)), nullptr);
    rename("b.png", "bee.png");
    const QString copy = m_edit->files.path("copy");
    QVERIFY2(ProjectStore::save(m_edit->project(), copy, &m_edit->message), qUtf8Printable(m_edit->message));
    QCOMPARE(filesOf(m_edit->files.folder()), before);
    QCOMPARE(m_edit->content(QStringLiteral("a.png")), pictureBytes(Qt::yellow));
    m_edit->session->undo();
    m_edit->session->undo();
    QCOMPARE(m_edit->content(QStringLiteral("a.png")), pictureBytes(Qt::red));
    QCOMPARE(m_edit->content(m_edit->link("main/light")), pictureBytes(Qt::green));
    m_edit->close();
    QCOMPARE(readFile(copy + QStringLiteral("/images/a.png")), pictureBytes(Qt::yellow));
    QCOMPARE(QDir(copy + QStringLiteral("/images")).entryList(QDir::Files).join(QLatin1Char(' ')),
             QStringLiteral("a.png bee.png more.png spare.png"));
}

void tst_ImageEdits::aReplacedFileIsNewerHoweverQuick()
{
    const QString path = m_edit->project()->imagesPath() + QStringLiteral("/a.png");
    QDateTime last = QFileInfo(path).lastModified();
    const QString file = m_edit->outside("1.png", pictureBytes(Qt::yellow));
    m_edit->session->replaceImage(QStringLiteral("a.png"), file);
    for (int i = 0; i < 20; ++i) {
        const QDateTime now = QFileInfo(path).lastModified();
        QVERIFY(now > last);
        last = now;
        i % 2 == 0 ? m_edit->session->undo() : m_edit->session->redo();
    }
}

void tst_ImageEdits::anImageInUseIsNotRemovedAndThePlacesAreNamed()
{
    const EditResult result = remove("a.png");
    QVERIFY(!result.accepted);
    for (const char* place : {"main/lamp", "other/dial", "other/knob"})
        QVERIFY2(result.message.contains(QLatin1String(place)), qUtf8Printable(result.message));
    QVERIFY(!result.message.contains(QLatin1String("light")));
    QVERIFY(m_edit->images().contains(QStringLiteral("a.png")));
    for (int i = 0; i < 10; ++i)
        setValue(addElement(m_edit->project(), m_edit->project()->screens().first()), "image", QStringLiteral("b.png"));
    QVERIFY(remove("b.png").message.contains(QLatin1String("allTypes4 and 6 more")));
}

void tst_ImageEdits::anImageThatAnUnknownElementNamesIsNotRemoved()
{
    m_edit->files.writeScreen("other", R"({"class": "Hologram", "id": "ghost", "pictures": ["spare.png"]})");
    m_edit->open();
    const EditResult result = remove("spare.png");
    QVERIFY(!result.accepted);
    QVERIFY2(result.message.contains(QLatin1String("other/ghost")), qUtf8Printable(result.message));
}

void tst_ImageEdits::anImageIsNotRemovedWhileAScreenCannotBeRead()
{
    m_edit->files.write("screens/other.json", "{ who knows");
    m_edit->open();
    const EditResult result = remove("spare.png");
    QVERIFY(!result.accepted);
    QVERIFY2(result.message.contains(QLatin1String("\"other\" cannot be read")), qUtf8Printable(result.message));
}

void tst_ImageEdits::aRemovedImageGoesWithTheSaveAndComesBackByUndo()
{
    const auto before = filesOf(m_edit->files.folder());
    QVERIFY(remove("spare.png").changed);
    QCOMPARE(m_edit->stack()->undoText(), QStringLiteral("Remove spare.png"));
    QCOMPARE(m_edit->images().join(QLatin1Char(' ')), QStringLiteral("a.png b.png"));
    m_edit->session->undo();
    QCOMPARE(m_edit->images().join(QLatin1Char(' ')), QStringLiteral("a.png b.png spare.png"));
    QVERIFY(m_edit->save());
    m_edit->open();
    QCOMPARE(filesOf(m_edit->files.folder()), before);
    remove("spare.png");
    QVERIFY(m_edit->save());
    QVERIFY(m_edit->folder().contains(QStringLiteral("spare.png")));
    m_edit->close();
    QCOMPARE(m_edit->folder().join(QLatin1Char(' ')), QStringLiteral("a.png b.png"));
    QVERIFY(!m_edit->files.read("project.json").contains("spare"));
}

void tst_ImageEdits::anImageOfTheUsersIsHandedOverByAnEdit()
{
    m_edit->files.write("images/mine.png", pictureBytes(Qt::yellow));
    m_edit->files.write("images/yours.png", pictureBytes(Qt::yellow));
    const auto before = filesOf(m_edit->files.folder());
    m_edit->open();
    rename("mine.png", "ours.png");
    remove("yours.png");
    m_edit->session->undo();
    m_edit->session->undo();
    QVERIFY(m_edit->save());
    m_edit->close();
    QCOMPARE(filesOf(m_edit->files.folder()), before);
    m_edit->open();
    rename("mine.png", "ours.png");
    remove("yours.png");
    QVERIFY(m_edit->save());
    m_edit->close();
    QCOMPARE(m_edit->folder().join(QLatin1Char(' ')), QStringLiteral("a.png b.png ours.png spare.png"));
}

void tst_ImageEdits::anEditOfNoImageIsRefused()
{
    const QString file = m_edit->outside("new.png", pictureBytes(Qt::yellow));
    for (const EditResult& result : {rename("gone.png", "b2.png"), remove("gone.png"),
                                     m_edit->session->replaceImage(QStringLiteral("gone.png"), file)}) {
        QVERIFY(!result.accepted);
        QVERIFY2(result.message.contains(QLatin1String("no image \"gone.png\"")), qUtf8Printable(result.message));
    }
}

void tst_ImageEdits::imagesThatTheNextSaveDropsAreTold()
{
    ProjectStore::readAllScreens(m_edit->project());
    QVERIFY(ImageEdits::droppedBySave(m_edit->project()).isEmpty());
    m_edit->set("main/light", "image", QString());
    QCOMPARE(ImageEdits::droppedBySave(m_edit->project()), QSet<QString>{QStringLiteral("b.png")});
    m_edit->session->undo();
    QVERIFY(ImageEdits::droppedBySave(m_edit->project()).isEmpty());
}

QTEST_MAIN(tst_ImageEdits)
#include "tst_ImageEdits.moc"
