#include "tests/app/ImageWindow.h"

#include "host/core/canvas/ImagePlacement.h"
#include "host/core/plugins/DesignerFactory.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>
#include <QStandardPaths>

using namespace Korvex::Meridane::Designer;
using Test::ImageWindow;
using Test::pictureBytes;

/// Images come into the project by drag and drop and by the clipboard.
class tst_ImageDrops : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }
    void init() { m_window = std::make_unique<ImageWindow>(); }
    void cleanup()
    {
        m_window.reset();
        QGuiApplication::clipboard()->clear();
    }

    void aFileDroppedOnTheScreenIsShownThere();
    void severalFilesAreOneStep();
    void aPictureLargerThanTheScreenIsReduced();
    void whatIsNoPictureIsRefusedAndTheOthersAreTaken();
    void filesOfOtherKindsAreNotAccepted();
    void aPictureThatIsInNoFileIsTaken();
    void anImageOfTheListIsDroppedWithoutAnImport();
    void elementsOfThePaletteAreDroppedAsBefore();
    void nothingIsAcceptedWhileTheMouseDrags();
    void filesDroppedOnTheListAreImportedOnly();
    void theSamePictureIsNotTakenTwice();
    void aCopiedPictureIsPastedIntoTheView();
    void copiedFilesArePasted();
    void pastingIntoTheListImportsOnly();
    void copiedElementsArePastedWithTheirRenamedImage();
    void pasteIsOfferedForWhatCanBePasted();

private:
    static std::unique_ptr<QMimeData> filesData(const QStringList& files)
    {
        auto data = std::make_unique<QMimeData>();
        QList<QUrl> urls;
        for (const QString& file : files)
            urls.append(QUrl::fromLocalFile(file));
        data->setUrls(urls);
        return data;
    }

    /// Drags \a data over \a target to \a place and drops it there as a file manager that proposes to move does; whether
    /// it was accepted as a copy.
    static bool drop(QWidget* target, const QPoint& place, const QMimeData* data)
    {
        const Qt::DropActions possible = Qt::CopyAction | Qt::MoveAction;
        QDragEnterEvent enter(place, possible, data, Qt::LeftButton, Qt::NoModifier);
        enter.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(target, &enter);
        if (!enter.isAccepted())
            return false;
        QDragMoveEvent move(place, possible, data, Qt::LeftButton, Qt::NoModifier);
        move.setDropAction(Qt::MoveAction);
        move.setAccepted(true);
        QApplication::sendEvent(target, &move);
        if (!move.isAccepted())
            return false;
        QDropEvent event(place, possible, data, Qt::LeftButton, Qt::NoModifier);
        event.setDropAction(Qt::MoveAction);
        QApplication::sendEvent(target, &event);
        return event.isAccepted() && event.dropAction() == Qt::CopyAction;
    }
    bool dropOnScreen(double x, double y, const QMimeData* data) const
    {
        return drop(m_window->canvas()->viewport(), m_window->viewPoint(x, y), data);
    }
    bool dropOnScreen(double x, double y, const QStringList& files) const
    {
        return dropOnScreen(x, y, filesData(files).get());
    }
    void paste(QWidget* target) const
    {
        target->setFocus();
        QTest::keyClick(target, Qt::Key_V, Qt::ControlModifier);
    }

    std::unique_ptr<ImageWindow> m_window;
};

void tst_ImageDrops::aFileDroppedOnTheScreenIsShownThere()
{
    QVERIFY(dropOnScreen(200, 100, {m_window->picture("logo.png", Qt::red)}));
    QCOMPARE(m_window->images(), QStringList{QStringLiteral("logo.png")});
    QCOMPARE(m_window->elements().size(), 1);
    DesignerObject* element = m_window->elements().first();
    QCOMPARE(element->className(), QStringLiteral("Image"));
    QCOMPARE(ImageWindow::value(element, "source"), QStringLiteral("logo.png"));
    QCOMPARE(ImageWindow::value(element, "size"), QStringLiteral("60,40"));
    const QPointF corner = ValueConversion::toPoint(ImageWindow::value(element, "position"));
    QVERIFY(qAbs(corner.x() - 200) <= 2 && qAbs(corner.y() - 100) <= 2);
    QCOMPARE(corner, QPointF(corner.toPoint()));
    QCOMPARE(m_window->stack()->count(), 1);
    QCOMPARE(m_window->session()->selection(), QList<DesignerObject*>{element});
    QCOMPARE(m_window->pixel(corner.x() + 30, corner.y() + 20), QColor(Qt::red));
    QVERIFY(m_window->canvas()->hasFocus());
    m_window->session()->undo();
    QVERIFY(m_window->elements().isEmpty());
    QCOMPARE(m_window->images().size(), 1);
}

void tst_ImageDrops::severalFilesAreOneStep()
{
    QVERIFY(dropOnScreen(50, 60,
                         {m_window->picture("a.png", Qt::red), m_window->picture("b.png", Qt::green),
                          m_window->file("c.svg", Test::drawingBytes(Qt::blue))}));
    QCOMPARE(m_window->elements().size(), 3);
    QCOMPARE(m_window->stack()->count(), 1);
    QCOMPARE(m_window->stack()->undoText(), QStringLiteral("Add 3 Images"));
    QCOMPARE(m_window->session()->selection().size(), 3);
    QSet<QString> places;
    for (const DesignerObject* element : m_window->elements())
        places.insert(ImageWindow::value(element, "position"));
    QCOMPARE(places.size(), 3);
    m_window->session()->undo();
    QVERIFY(m_window->elements().isEmpty());
}

void tst_ImageDrops::aPictureLargerThanTheScreenIsReduced()
{
    QVERIFY(dropOnScreen(0, 0, {m_window->picture("photo.png", Qt::red, {1600, 1200})}));
    QCOMPARE(ImageWindow::value(m_window->elements().first(), "size"), QStringLiteral("640,480"));
}

void tst_ImageDrops::whatIsNoPictureIsRefusedAndTheOthersAreTaken()
{
    const QString text = m_window->file("text.png", "no picture");
    QVERIFY(dropOnScreen(10, 10, {text, m_window->picture("a.png", Qt::red)}));
    QCOMPARE(m_window->images(), QStringList{QStringLiteral("a.png")});
    QCOMPARE(m_window->elements().size(), 1);
    QVERIFY2(m_window->message().startsWith(text), qUtf8Printable(m_window->message()));
    QVERIFY(dropOnScreen(10, 10, {text, m_window->file("bomb.png", Test::bombBytes({50000, 50000}))}));
    QCOMPARE(m_window->elements().size(), 1);
    QVERIFY2(m_window->message().contains(QLatin1String("And 1 more")), qUtf8Printable(m_window->message()));
}

void tst_ImageDrops::filesOfOtherKindsAreNotAccepted()
{
    QVERIFY(!dropOnScreen(10, 10, {m_window->file("notes.txt", "hello")}));
    QMimeData text;
    text.setText(QStringLiteral("hello"));
    QVERIFY(!dropOnScreen(10, 10, &text));
    QMimeData remote;
    remote.setUrls({QUrl(QStringLiteral("https://example.invalid/logo.png"))});
    QVERIFY(!dropOnScreen(10, 10, &remote));
    QVERIFY(!drop(m_window->panel(), QPoint(20, 80), &remote));
    QVERIFY(m_window->images().isEmpty());
}

void tst_ImageDrops::aPictureThatIsInNoFileIsTaken()
{
    QImage picture(30, 20, QImage::Format_RGB32);
    picture.fill(Qt::cyan);
    QMimeData data;
    data.setImageData(picture);
    data.setUrls({QUrl(QStringLiteral("https://example.invalid/logo.png"))}); // as a browser does
    QVERIFY(dropOnScreen(100, 100, &data));
    QCOMPARE(m_window->images(), QStringList{QStringLiteral("pasted.png")});
    QCOMPARE(ImageWindow::value(m_window->elements().first(), "size"), QStringLiteral("30,20"));
}

void tst_ImageDrops::anImageOfTheListIsDroppedWithoutAnImport()
{
    m_window->import(m_window->picture("logo.png", Qt::red));
    const std::unique_ptr<QMimeData> data(m_window->panel()->model()->mimeData({m_window->row("logo.png")}));
    QVERIFY(data->hasFormat(ImagePlacement::mimeType()));
    QCOMPARE(data->urls().first().toLocalFile(),
             m_window->session()->project()->imagesPath() + QStringLiteral("/logo.png"));
    QVERIFY(dropOnScreen(100, 100, data.get()));
    QCOMPARE(m_window->images().size(), 1);
    QCOMPARE(ImageWindow::value(m_window->elements().first(), "source"), QStringLiteral("logo.png"));
    // On the list itself it means nothing.
    QVERIFY(!drop(m_window->panel(), QPoint(20, 80), data.get()));
}

void tst_ImageDrops::elementsOfThePaletteAreDroppedAsBefore()
{
    QMimeData data;
    data.setData(CanvasView::elementMimeType(), "Rectangle");
    QDragEnterEvent enter(m_window->viewPoint(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window->canvas()->viewport(), &enter);
    QVERIFY(enter.isAccepted());
    QDropEvent event(m_window->viewPoint(100, 100), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(m_window->canvas()->viewport(), &event);
    QCOMPARE(m_window->elements().first()->className(), QStringLiteral("Rectangle"));
}

void tst_ImageDrops::nothingIsAcceptedWhileTheMouseDrags()
{
    QWidget* viewport = m_window->canvas()->viewport();
    QTest::mousePress(viewport, Qt::LeftButton, {}, m_window->viewPoint(10, 10));
    QTest::mouseMove(viewport, m_window->viewPoint(90, 90));
    QVERIFY(!dropOnScreen(100, 100, {m_window->picture("logo.png", Qt::red)}));
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, m_window->viewPoint(90, 90));
    QVERIFY(dropOnScreen(100, 100, {m_window->picture("logo.png", Qt::red)}));
}

void tst_ImageDrops::filesDroppedOnTheListAreImportedOnly()
{
    m_window->showPanel();
    const std::unique_ptr<QMimeData> data =
        filesData({m_window->picture("a.png", Qt::red), m_window->picture("b.png", Qt::green)});
    QVERIFY(drop(m_window->panel(), QPoint(20, 80), data.get()));
    QCOMPARE(m_window->images().size(), 2);
    QVERIFY(m_window->elements().isEmpty());
    QCOMPARE(m_window->stack()->count(), 0);
    QCOMPARE(m_window->list()->selectedImages().size(), 2);
    QVERIFY(m_window->document()->isModified());
}

void tst_ImageDrops::theSamePictureIsNotTakenTwice()
{
    const QString logo = m_window->picture("logo.png", Qt::red);
    QVERIFY(dropOnScreen(100, 100, {logo}));
    QVERIFY(dropOnScreen(200, 100, {logo}));
    // Also from the project's own folder, as it may lie open beside the window.
    QVERIFY(dropOnScreen(300, 100, {m_window->session()->project()->imagesPath() + QStringLiteral("/logo.png")}));
    QCOMPARE(m_window->images().size(), 1);
    QCOMPARE(m_window->elements().size(), 3);
    QVERIFY(dropOnScreen(300, 300, {m_window->picture("logo.png", Qt::green)}));
    QCOMPARE(m_window->images(), (QStringList{QStringLiteral("logo.png"), QStringLiteral("logo-2.png")}));
}

void tst_ImageDrops::aCopiedPictureIsPastedIntoTheView()
{
    QImage picture(100, 50, QImage::Format_RGB32);
    picture.fill(Qt::magenta);
    QGuiApplication::clipboard()->setImage(picture);
    paste(m_window->canvas());
    QCOMPARE(m_window->elements().size(), 1);
    QCOMPARE(m_window->stack()->count(), 1);
    QCOMPARE(ImageWindow::value(m_window->elements().first(), "size"), QStringLiteral("100,50"));
    const QPointF corner = ValueConversion::toPoint(ImageWindow::value(m_window->elements().first(), "position"));
    const QPointF middle =
        m_window->canvas()->mapToScene(m_window->canvas()->viewport()->rect().center()) - QPointF(50, 25);
    QVERIFY(qAbs(corner.x() - middle.x()) <= 2 && qAbs(corner.y() - middle.y()) <= 2);
    paste(m_window->canvas());
    QCOMPARE(m_window->elements().size(), 2);
    QCOMPARE(m_window->images().size(), 1);
    QVERIFY(ImageWindow::value(m_window->elements().at(0), "position")
            != ImageWindow::value(m_window->elements().at(1), "position"));
    m_window->session()->undo();
    m_window->session()->undo();
    QVERIFY(m_window->elements().isEmpty());
}

void tst_ImageDrops::copiedFilesArePasted()
{
    QGuiApplication::clipboard()->setMimeData(
        filesData({m_window->picture("a.png", Qt::red), m_window->picture("b.png", Qt::green)}).release());
    paste(m_window->canvas());
    QCOMPARE(m_window->elements().size(), 2);
    QCOMPARE(m_window->stack()->count(), 1);
}

void tst_ImageDrops::pastingIntoTheListImportsOnly()
{
    m_window->import(m_window->picture("a.png", Qt::red));
    m_window->showPanel();
    QGuiApplication::clipboard()->setMimeData(filesData({m_window->picture("b.png", Qt::green)}).release());
    paste(m_window->list());
    QCOMPARE(m_window->images().size(), 2);
    QVERIFY(m_window->elements().isEmpty());
    QCOMPARE(m_window->list()->selectedImages(), QStringList{QStringLiteral("b.png")});
}

void tst_ImageDrops::copiedElementsArePastedWithTheirRenamedImage()
{
    const QString logo = m_window->import(m_window->picture("logo.png", Qt::red));
    m_window->session()->setSelection({m_window->addImage(logo)});
    m_window->canvas()->setFocus();
    QTest::keyClick(m_window->canvas(), Qt::Key_C, Qt::ControlModifier);
    m_window->session()->renameImage(logo, QStringLiteral("brand.png"));
    paste(m_window->canvas());
    QCOMPARE(m_window->elements().size(), 2);
    const QString source = ImageWindow::value(m_window->elements().last(), "source");
    QVERIFY2(m_window->images().contains(source), qUtf8Printable(source));
}

void tst_ImageDrops::pasteIsOfferedForWhatCanBePasted()
{
    const QAction* paste = m_window->window->editActions()->pasteAction();
    QGuiApplication::clipboard()->setText(QStringLiteral("hello"));
    QTRY_VERIFY(!paste->isEnabled());
    QImage picture(10, 10, QImage::Format_RGB32);
    picture.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(picture);
    QTRY_VERIFY(paste->isEnabled());
    QGuiApplication::clipboard()->setMimeData(filesData({m_window->file("notes.txt", "hello")}).release());
    QTRY_VERIFY(!paste->isEnabled());
    QGuiApplication::clipboard()->setMimeData(filesData({m_window->picture("a.png", Qt::red)}).release());
    QTRY_VERIFY(paste->isEnabled());
}

QTEST_MAIN(tst_ImageDrops)
#include "tst_ImageDrops.moc"
