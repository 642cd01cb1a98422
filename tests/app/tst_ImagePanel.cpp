#include "tests/app/ImageWindow.h"

#include "app/ProjectTree.h"

#include "host/core/plugins/DesignerFactory.h"

#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QStandardPaths>
#include <QToolButton>

using namespace Korvex::Meridane::Designer;
using Test::ImageWindow;
using Test::pictureBytes;

/// The list of the project's images, and what can be done with them there.
class tst_ImagePanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }
    void init() { m_window = std::make_unique<ImageWindow>(); }
    void cleanup() { m_window.reset(); }

    void anEmptyListTellsWhatToDo();
    void imagesChosenInADialogAreImportedAndShown();
    void rowsShowWhatTheImageIs();
    void rowsAreSortedAsPeopleCount();
    void whatCannotBeShownIsMarked();
    void usesAreCounted();
    void usesOfScreensThatAreNotReadYetAreNotGuessed();
    void f2RenamesAndTheLinksFollow();
    void whatIsTypedStaysWhenTheRowChangesMeanwhile();
    void escapeLeavesTheNameAlone();
    void aNameThatIsRefusedIsExplained();
    void aRenamedRowStaysSelectedAlsoByUndo();
    void theKeysOfTheListAreNotThoseOfTheCanvas();
    void deleteRemovesAnUnusedImage();
    void anImageInUseIsNotRemovedAndThePlacesAreNamed();
    void aReplacedFileIsShownEverywhereAtOnce();
    void aReplacementOfAnotherFormatTellsTheNewName();
    void enterPutsTheImageIntoTheView();
    void showUsesSelectsTheElementsScreenByScreen();
    void theMenuLeadsToEachElement();
    void aFileThatChangesOnDiskIsShownAsItIs();
    void aFileThatChangesAfterSaveAsIsShownAsItIs();
    void everythingHasANameForScreenReaders();
    void closingTheProjectWhilePicturesLoadIsSafe();

private:
    void select(const char* image) const
    {
        m_window->showPanel();
        m_window->list()->selectImages({QString::fromUtf8(image)});
        m_window->list()->setFocus();
    }
    QLineEdit* nameEditor() const { return m_window->list()->findChild<QLineEdit*>(); }
    /// The colour in the middle of the thumbnail of \a image.
    QColor thumbnailColor(const char* image) const
    {
        const auto picture = m_window->row(image).data(ImageListModel::ThumbnailRole).value<QImage>();
        return picture.isNull() ? QColor() : picture.pixelColor(picture.width() / 2, picture.height() / 2);
    }

    std::unique_ptr<ImageWindow> m_window;
};

void tst_ImagePanel::anEmptyListTellsWhatToDo()
{
    m_window->showPanel();
    QVERIFY(!m_window->list()->isVisible());
    const QList<QLabel*> labels = m_window->panel()->findChildren<QLabel*>();
    QVERIFY(std::any_of(labels.cbegin(), labels.cend(), [](const QLabel* label) {
        return label->isVisible() && label->text().contains(QLatin1String("Drop image files here"));
    }));
    m_window->prompts.images = {m_window->picture("logo.png", Qt::red)};
    QTest::mouseClick(m_window->panel()->findChild<QPushButton*>(), Qt::LeftButton);
    QCOMPARE(m_window->prompts.asked, QStringList{QStringLiteral("images")});
    QVERIFY(m_window->list()->isVisible());
    m_window->list()->setFocus();
    QTest::keyClick(m_window->list(), Qt::Key_Delete);
    QVERIFY(!m_window->list()->isVisible());
}

void tst_ImagePanel::imagesChosenInADialogAreImportedAndShown()
{
    m_window->prompts.images = {m_window->picture("a.png", Qt::red), m_window->file("text.png", "no picture"),
                                m_window->picture("b.png", Qt::green)};
    QVERIFY(!m_window->isPanelSeen());
    QAction* import = nullptr;
    const QList<QAction*> actions = m_window->window->findChildren<QAction*>();
    for (QAction* action : actions) {
        if (action->text().remove(QLatin1Char('&')) == QStringLiteral("Import Images…"))
            import = action;
    }
    QVERIFY(import);
    import->trigger();
    QCOMPARE(m_window->images().size(), 2);
    QTRY_VERIFY(m_window->isPanelSeen());
    QCOMPARE(m_window->list()->selectedImages().size(), 2);
    QVERIFY2(m_window->message().contains(QLatin1String("text.png")), qUtf8Printable(m_window->message()));
    m_window->prompts.images.clear(); // the dialog is left
    import->trigger();
    QCOMPARE(m_window->images().size(), 2);
}

void tst_ImagePanel::rowsShowWhatTheImageIs()
{
    m_window->import(m_window->picture("wide.png", Qt::red, {120, 40}));
    m_window->import(m_window->file("icon.svg", Test::drawingBytes(Qt::blue)));
    m_window->import(m_window->file("moving.gif", Test::animationBytes()));
    m_window->showPanel();
    QTRY_COMPARE(thumbnailColor("wide.png"), QColor(Qt::red));
    QTRY_COMPARE(thumbnailColor("icon.svg"), QColor(Qt::blue));
    QTRY_COMPARE(m_window->text("wide.png", ImageListModel::DetailRole), QStringLiteral("120 × 40 · PNG"));
    QTRY_COMPARE(m_window->text("icon.svg", ImageListModel::DetailRole), QStringLiteral("24 × 16 · SVG"));
    QTRY_COMPARE(m_window->text("moving.gif", ImageListModel::DetailRole), QStringLiteral("1 × 1 · GIF, 2 frames"));
    QVERIFY(m_window->text("wide.png", Qt::ToolTipRole).contains(QLatin1String("wide.png")));
}

void tst_ImagePanel::rowsAreSortedAsPeopleCount()
{
    for (const char* name : {"b10.png", "B9.png", "a.png", "b1.png"})
        m_window->import(m_window->picture(name, Qt::red));
    QStringList names;
    for (int row = 0; row < m_window->panel()->model()->rowCount(); ++row)
        names.append(m_window->panel()->model()->index(row, 0).data().toString());
    QCOMPARE(names.join(QLatin1Char(' ')), QStringLiteral("a.png b1.png B9.png b10.png"));
}

void tst_ImagePanel::whatCannotBeShownIsMarked()
{
    const QString images = m_window->session()->project()->imagesPath();
    m_window->import(m_window->picture("gone.png", Qt::red));
    QFile::remove(images + QStringLiteral("/gone.png"));
    m_window->import(m_window->picture("bad.png", Qt::red));
    QFile bad(images + QStringLiteral("/bad.png"));
    QVERIFY(bad.open(QIODevice::WriteOnly));
    bad.close();
    m_window->showPanel();
    QTRY_COMPARE(m_window->text("gone.png", ImageListModel::DetailRole), QStringLiteral("the file is missing"));
    QTRY_COMPARE(m_window->text("bad.png", ImageListModel::DetailRole), QStringLiteral("cannot be shown"));
    QVERIFY(m_window->row("bad.png").data(ImageListModel::FaultRole).toBool());
}

void tst_ImagePanel::usesAreCounted()
{
    const QString logo = m_window->import(m_window->picture("logo.png", Qt::red));
    QCOMPARE(m_window->text("logo.png", ImageListModel::UsesRole), QStringLiteral("not used"));
    DesignerObject* first = m_window->addImage(logo);
    QCOMPARE(m_window->text("logo.png", ImageListModel::UsesRole), QStringLiteral("1 use"));
    m_window->addImage(logo);
    QCOMPARE(m_window->text("logo.png", ImageListModel::UsesRole), QStringLiteral("2 uses"));
    m_window->session()->setProperty(first, QStringLiteral("source"), {});
    QCOMPARE(m_window->text("logo.png", ImageListModel::UsesRole), QStringLiteral("1 use"));
    m_window->session()->undo();
    QCOMPARE(m_window->text("logo.png", ImageListModel::UsesRole), QStringLiteral("2 uses"));
    m_window->session()->removeElements({first});
    QCOMPARE(m_window->text("logo.png", ImageListModel::UsesRole), QStringLiteral("1 use"));
}

void tst_ImagePanel::usesOfScreensThatAreNotReadYetAreNotGuessed()
{
    const QString logo = m_window->import(m_window->picture("logo.png", Qt::red));
    Screen* other = nullptr;
    m_window->session()->addScreen(QStringLiteral("other"), {}, &other);
    m_window->addImage(logo, other);
    QString message;
    const QString folder = m_window->folder.filePath(QStringLiteral("saved"));
    QVERIFY2(m_window->document()->saveAs(folder, &message), qUtf8Printable(message));
    QVERIFY(m_window->window->openProject(folder));
    // They are read soon, by whoever needs them first.
    QVERIFY(m_window->text("logo.png", ImageListModel::UsesRole) != QStringLiteral("not used"));
    QTRY_COMPARE(m_window->text("logo.png", ImageListModel::UsesRole), QStringLiteral("1 use"));
}

void tst_ImagePanel::f2RenamesAndTheLinksFollow()
{
    DesignerObject* element = m_window->addImage(m_window->import(m_window->picture("logo.png", Qt::red)));
    const int steps = m_window->stack()->count();
    select("logo.png");
    QTest::keyClick(m_window->list(), Qt::Key_F2);
    QVERIFY(nameEditor());
    QTRY_COMPARE(nameEditor()->selectedText(), QStringLiteral("logo"));
    QTest::keyClicks(nameEditor(), QStringLiteral("brand"));
    QTest::keyClick(nameEditor(), Qt::Key_Return);
    QTRY_COMPARE(m_window->images(), QStringList{QStringLiteral("brand.png")});
    QCOMPARE(ImageWindow::value(element, "source"), QStringLiteral("brand.png"));
    QCOMPARE(m_window->stack()->count(), steps + 1);
    QCOMPARE(m_window->text("brand.png", Qt::DisplayRole), QStringLiteral("brand.png"));
    m_window->session()->undo();
    QCOMPARE(ImageWindow::value(element, "source"), QStringLiteral("logo.png"));
    QVERIFY(m_window->row("logo.png").isValid());
    QVERIFY(!m_window->row("brand.png").isValid());
}

void tst_ImagePanel::whatIsTypedStaysWhenTheRowChangesMeanwhile()
{
    const QString logo = m_window->import(m_window->picture("logo.png", Qt::red));
    select("logo.png");
    QTest::keyClick(m_window->list(), Qt::Key_F2);
    nameEditor()->selectAll();
    QTest::keyClicks(nameEditor(), QStringLiteral("bra"));
    m_window->addImage(logo); // another use
    QTRY_COMPARE(thumbnailColor("logo.png"), QColor(Qt::red));
    QTest::qWait(50);
    QTest::keyClicks(nameEditor(), QStringLiteral("nd"));
    QTest::keyClick(nameEditor(), Qt::Key_Return);
    QTRY_COMPARE(m_window->images(), QStringList{QStringLiteral("brand.png")});
}

void tst_ImagePanel::escapeLeavesTheNameAlone()
{
    m_window->import(m_window->picture("logo.png", Qt::red));
    select("logo.png");
    QTest::keyClick(m_window->list(), Qt::Key_F2);
    QTest::keyClicks(nameEditor(), QStringLiteral("other"));
    QTest::keyClick(nameEditor(), Qt::Key_Escape);
    QTest::qWait(50);
    QCOMPARE(m_window->images(), QStringList{QStringLiteral("logo.png")});
    QCOMPARE(m_window->stack()->count(), 0);
}

void tst_ImagePanel::aNameThatIsRefusedIsExplained()
{
    m_window->import(m_window->picture("logo.png", Qt::red));
    m_window->import(m_window->picture("other.png", Qt::green));
    select("logo.png");
    QTest::keyClick(m_window->list(), Qt::Key_F2);
    nameEditor()->selectAll();
    QTest::keyClicks(nameEditor(), QStringLiteral("Other"));
    QTest::keyClick(nameEditor(), Qt::Key_Return);
    QTRY_VERIFY2(m_window->message().contains(QLatin1String("capitals")), qUtf8Printable(m_window->message()));
    QCOMPARE(m_window->images().first(), QStringLiteral("logo.png"));
    QCOMPARE(m_window->stack()->count(), 0);
}

void tst_ImagePanel::aRenamedRowStaysSelectedAlsoByUndo()
{
    m_window->import(m_window->picture("a.png", Qt::red));
    m_window->import(m_window->picture("m.png", Qt::green));
    m_window->import(m_window->picture("t.png", Qt::blue));
    select("a.png");
    QTRY_COMPARE(thumbnailColor("a.png"), QColor(Qt::red));
    m_window->session()->renameImage(QStringLiteral("a.png"), QStringLiteral("z.png"));
    QCOMPARE(m_window->list()->selectedImages(), QStringList{QStringLiteral("z.png")});
    QCOMPARE(m_window->row("z.png").row(), 2);
    QCOMPARE(thumbnailColor("z.png"), QColor(Qt::red)); // there was no moment without a picture
    m_window->session()->undo();
    QCOMPARE(m_window->list()->selectedImages(), QStringList{QStringLiteral("a.png")});
    QCOMPARE(m_window->row("a.png").row(), 0);
}

void tst_ImagePanel::theKeysOfTheListAreNotThoseOfTheCanvas()
{
    DesignerObject* element = m_window->addImage(m_window->import(m_window->picture("logo.png", Qt::red)));
    m_window->import(m_window->picture("spare.png", Qt::green));
    m_window->session()->setSelection({element});
    select("spare.png");
    QTest::keyClick(m_window->list(), Qt::Key_A, Qt::ControlModifier);
    QCOMPARE(m_window->list()->selectedImages().size(), 2);
    QCOMPARE(m_window->session()->selection(), QList<DesignerObject*>{element});
    select("spare.png");
    QTest::keyClick(m_window->list(), Qt::Key_Delete);
    QCOMPARE(m_window->elements().size(), 1);
    QCOMPARE(m_window->images(), QStringList{QStringLiteral("logo.png")});
    // On the canvas F2 goes to the tree, which stands behind the images.
    m_window->canvas()->setFocus();
    QTest::keyClick(m_window->canvas(), Qt::Key_F2);
    QTRY_VERIFY(!m_window->isPanelSeen());
    QTRY_VERIFY(m_window->window->workspace()->tree()->findChild<QLineEdit*>());
}

void tst_ImagePanel::deleteRemovesAnUnusedImage()
{
    m_window->import(m_window->picture("a.png", Qt::red));
    m_window->import(m_window->picture("b.png", Qt::green));
    m_window->import(m_window->picture("c.png", Qt::blue));
    select("b.png");
    QTest::keyClick(m_window->list(), Qt::Key_Delete);
    QCOMPARE(m_window->images(), (QStringList{QStringLiteral("a.png"), QStringLiteral("c.png")}));
    QCOMPARE(m_window->list()->selectedImages(), QStringList{QStringLiteral("c.png")});
    QCOMPARE(m_window->stack()->undoText(), QStringLiteral("Remove b.png"));
    m_window->session()->undo();
    QCOMPARE(m_window->row("b.png").row(), 1);
    QTRY_COMPARE(thumbnailColor("b.png"), QColor(Qt::green));
}

void tst_ImagePanel::anImageInUseIsNotRemovedAndThePlacesAreNamed()
{
    DesignerObject* element = m_window->addImage(m_window->import(m_window->picture("logo.png", Qt::red)));
    select("logo.png");
    QTest::keyClick(m_window->list(), Qt::Key_Delete);
    QCOMPARE(m_window->images().size(), 1);
    QVERIFY2(m_window->message().contains(QStringLiteral("main/") + element->getIdName()),
             qUtf8Printable(m_window->message()));
    m_window->session()->setSelection({});
    auto* show = m_window->window->messageBar()->findChild<QPushButton*>();
    QVERIFY(show->isVisible());
    QTest::mouseClick(show, Qt::LeftButton);
    QCOMPARE(m_window->session()->selection(), QList<DesignerObject*>{element});
}

void tst_ImagePanel::aReplacedFileIsShownEverywhereAtOnce()
{
    const QString logo = m_window->import(m_window->picture("logo.png", Qt::red));
    for (const char* place : {"100,100", "300,200"}) {
        m_window->session()->setProperty(m_window->addImage(logo), QStringLiteral("position"),
                                         QString::fromLatin1(place));
    }
    m_window->session()->setSelection({});
    select("logo.png");
    QTRY_COMPARE(thumbnailColor("logo.png"), QColor(Qt::red));
    QCOMPARE(m_window->pixel(150, 150), QColor(Qt::red));
    m_window->prompts.replacement = m_window->picture("new.png", Qt::blue);
    m_window->panel()->replaceAction()->trigger();
    QCOMPARE(m_window->prompts.asked.last(), QStringLiteral("replace logo.png"));
    QCOMPARE(m_window->pixel(150, 150), QColor(Qt::blue));
    QCOMPARE(m_window->pixel(350, 250), QColor(Qt::blue));
    QTRY_COMPARE(thumbnailColor("logo.png"), QColor(Qt::blue));
    m_window->session()->undo();
    QCOMPARE(m_window->pixel(150, 150), QColor(Qt::red));
    QTRY_COMPARE(thumbnailColor("logo.png"), QColor(Qt::red));
    m_window->session()->redo();
    QCOMPARE(m_window->pixel(350, 250), QColor(Qt::blue));
}

void tst_ImagePanel::aReplacementOfAnotherFormatTellsTheNewName()
{
    const DesignerObject* element = m_window->addImage(m_window->import(m_window->picture("logo.png", Qt::red)));
    select("logo.png");
    m_window->prompts.replacement = m_window->file("new.svg", Test::drawingBytes(Qt::blue));
    m_window->panel()->replaceAction()->trigger();
    QCOMPARE(ImageWindow::value(element, "source"), QStringLiteral("logo.svg"));
    QVERIFY2(m_window->message().contains(QLatin1String("logo.svg")), qUtf8Printable(m_window->message()));
    QCOMPARE(m_window->list()->selectedImages(), QStringList{QStringLiteral("logo.svg")});
}

void tst_ImagePanel::enterPutsTheImageIntoTheView()
{
    m_window->import(m_window->picture("logo.png", Qt::red));
    select("logo.png");
    QTest::keyClick(m_window->list(), Qt::Key_Return);
    QTest::keyClick(m_window->list(), Qt::Key_Return);
    QCOMPARE(m_window->elements().size(), 2);
    QCOMPARE(m_window->stack()->count(), 2);
    for (const DesignerObject* element : m_window->elements()) {
        QCOMPARE(ImageWindow::value(element, "source"), QStringLiteral("logo.png"));
        const QPointF corner = ValueConversion::toPoint(ImageWindow::value(element, "position"));
        QVERIFY(
            QRectF(QPointF(), m_window->session()->currentScreen()->size()).contains(QRectF(corner, QSizeF(60, 40))));
    }
    QVERIFY(ImageWindow::value(m_window->elements().at(0), "position")
            != ImageWindow::value(m_window->elements().at(1), "position"));
}

void tst_ImagePanel::showUsesSelectsTheElementsScreenByScreen()
{
    const QString logo = m_window->import(m_window->picture("logo.png", Qt::red));
    m_window->import(m_window->picture("spare.png", Qt::green));
    Screen* main = m_window->session()->currentScreen();
    DesignerObject* one = m_window->addImage(logo);
    DesignerObject* two = m_window->addImage(logo);
    Screen* other = nullptr;
    m_window->session()->addScreen(QStringLiteral("other"), {}, &other);
    DesignerObject* three = m_window->addImage(logo, other);
    m_window->session()->setCurrentScreen(main);
    m_window->session()->setSelection({});
    select("spare.png");
    QVERIFY(!m_window->panel()->showUsesAction()->isEnabled());
    select("logo.png");
    QAction* show = m_window->panel()->showUsesAction();
    QVERIFY(show->isEnabled());
    show->trigger();
    QCOMPARE(m_window->session()->selection(), (QList<DesignerObject*>{one, two}));
    show->trigger();
    QCOMPARE(m_window->session()->currentScreen(), other);
    QCOMPARE(m_window->session()->selection(), QList<DesignerObject*>{three});
    show->trigger();
    QCOMPARE(m_window->session()->currentScreen(), main);
    QCOMPARE(m_window->session()->selection().size(), 2);
    QCOMPARE(m_window->list()->selectedImages(), QStringList{logo});
}

void tst_ImagePanel::theMenuLeadsToEachElement()
{
    const QString logo = m_window->import(m_window->picture("logo.png", Qt::red));
    m_window->addImage(logo);
    DesignerObject* second = m_window->addImage(logo);
    m_window->session()->setSelection({});
    select("logo.png");
    QMenu menu;
    m_window->panel()->fillMenu(&menu);
    const auto* uses = menu.findChild<QMenu*>();
    QVERIFY(uses);
    QCOMPARE(uses->actions().size(), 2);
    QCOMPARE(uses->actions().last()->text(), QStringLiteral("main/") + second->getIdName());
    uses->actions().last()->trigger();
    QCOMPARE(m_window->session()->selection(), QList<DesignerObject*>{second});
    QMenu ofNothing;
    m_window->list()->clearSelection();
    m_window->panel()->fillMenu(&ofNothing);
    QCOMPARE(ofNothing.actions().size(), 1);
}

void tst_ImagePanel::aFileThatChangesOnDiskIsShownAsItIs()
{
    const QString logo = m_window->import(m_window->picture("logo.png", Qt::red));
    m_window->session()->setProperty(m_window->addImage(logo), QStringLiteral("position"), QStringLiteral("100,100"));
    m_window->session()->setSelection({});
    m_window->showPanel();
    QTRY_COMPARE(thumbnailColor("logo.png"), QColor(Qt::red));
    const int steps = m_window->stack()->count();
    const QString path = m_window->session()->project()->imagesPath() + QStringLiteral("/logo.png");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(pictureBytes(Qt::green, {61, 41}));
    file.close();
    QTRY_COMPARE(m_window->pixel(150, 150), QColor(Qt::green));
    QTRY_COMPARE(thumbnailColor("logo.png"), QColor(Qt::green));
    QTRY_COMPARE(m_window->text("logo.png", ImageListModel::DetailRole), QStringLiteral("61 × 41 · PNG"));
    QCOMPARE(m_window->stack()->count(), steps);
}

void tst_ImagePanel::aFileThatChangesAfterSaveAsIsShownAsItIs()
{
    const QString logo = m_window->import(m_window->picture("logo.png", Qt::red));
    m_window->session()->setProperty(m_window->addImage(logo), QStringLiteral("position"), QStringLiteral("100,100"));
    m_window->session()->setSelection({});
    m_window->showPanel();
    QTRY_COMPARE(thumbnailColor("logo.png"), QColor(Qt::red));
    QString message;
    const QString folder = m_window->folder.filePath(QStringLiteral("saved"));
    QVERIFY2(m_window->document()->saveAs(folder, &message), qUtf8Printable(message));
    QTRY_COMPARE(m_window->pixel(150, 150), QColor(Qt::red));
    QSaveFile file(folder + QStringLiteral("/images/logo.png"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(pictureBytes(Qt::green, {61, 41}));
    QVERIFY(file.commit());
    QTRY_COMPARE(m_window->pixel(150, 150), QColor(Qt::green));
    QTRY_COMPARE(thumbnailColor("logo.png"), QColor(Qt::green));
}

void tst_ImagePanel::everythingHasANameForScreenReaders()
{
    m_window->import(m_window->picture("logo.png", Qt::red));
    m_window->showPanel();
    QVERIFY(!m_window->list()->accessibleName().isEmpty());
    const QList<QToolButton*> buttons = m_window->panel()->findChildren<QToolButton*>();
    QVERIFY(buttons.size() >= 6);
    for (const QToolButton* button : buttons) {
        QVERIFY(!button->accessibleName().isEmpty());
        QVERIFY(!button->toolTip().isEmpty());
        QVERIFY(button->focusPolicy() & Qt::TabFocus);
    }
    QTRY_VERIFY(m_window->text("logo.png", Qt::AccessibleDescriptionRole).contains(QStringLiteral("60 × 40")));
    QVERIFY(m_window->text("logo.png", Qt::AccessibleDescriptionRole).contains(QLatin1String("not used")));
}

void tst_ImagePanel::closingTheProjectWhilePicturesLoadIsSafe()
{
    for (int i = 0; i < 20; ++i)
        m_window->import(
            m_window->picture(qPrintable(QStringLiteral("p%1.png").arg(i)), QColor(10 * i, 0, 0), {900, 900}));
    m_window->showPanel();
    m_window->panel()->grab(); // asks for the pictures
    m_window->document()->create(QStringLiteral("Next"), QSizeF(100, 100));
    QCoreApplication::processEvents();
    QVERIFY(m_window->images().isEmpty());
    QCOMPARE(m_window->panel()->model()->rowCount(), 0);
}

QTEST_MAIN(tst_ImagePanel)
#include "tst_ImagePanel.moc"
