#include "host/core/properties/ObjectListProperty.h"

#include "tests/images/ImageCanvas.h"

#include <QGraphicsScene>
#include <QSignalSpy>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

constexpr QRect Place(100, 100, 80, 60); // of an image that is added

} // namespace

/// Images on the canvas: what they show, and when they move.
class tst_GraphicsImage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_canvas = std::make_unique<ImageCanvas>(); }
    void cleanup() { m_canvas.reset(); }

    void itSaysWhatItIsAndWhatCanBeDoneWithIt()
    {
        const DesignerObject* image = m_canvas->addImage({});
        const GraphicsImage* item = ImageCanvas::item(image);
        QCOMPARE(item->className(), QStringLiteral("GraphicsImage"));
        QCOMPARE(item->classNames().constLast(), QStringLiteral("GraphicsImage"));
        QVERIFY(item->flags().testFlag(QGraphicsItem::ItemIsSelectable));
        QVERIFY(item->flags().testFlag(QGraphicsItem::ItemIsMovable));
        QVERIFY(item->isResizable());
        QVERIFY(item->isRotatable());
        QCOMPARE(item->boundingRect(), QRectF(0, 0, 80, 60));
        m_canvas->picture();
        QCOMPARE(item->toolTip(), QStringLiteral("Image: image1"));
    }

    void everyKindOfPictureFillsItsContent_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        const QSize size(30, 20);
        QTest::newRow("png") << QStringLiteral("a.png") << SamplePictures::quarters(size, "png");
        QTest::newRow("jpg") << QStringLiteral("a.jpg") << SamplePictures::quarters(size, "jpg");
        QTest::newRow("webp") << QStringLiteral("a.webp") << SamplePictures::quarters(size, "webp");
        QTest::newRow("bmp") << QStringLiteral("a.bmp") << SamplePictures::quarters(size, "bmp");
        QTest::newRow("gif") << QStringLiteral("a.gif") << SamplePictures::gifQuarters(size);
        QTest::newRow("svg") << QStringLiteral("a.svg") << SamplePictures::drawnQuarters(size);
        QTest::newRow("large png") << QStringLiteral("b.png") << SamplePictures::quarters({900, 600}, "png");
    }

    void everyKindOfPictureFillsItsContent()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        m_canvas->addImage(m_canvas->files.add(name.toUtf8().constData(), content));
        const QImage whole = m_canvas->picture();
        QVERIFY(SamplePictures::isQuarters(whole.copy(Place), 3));
        const QColor ground = whole.pixelColor(10, 10);
        for (const QPoint& outside : {QPoint(99, 130), QPoint(180, 130), QPoint(140, 99), QPoint(140, 160)})
            QCOMPARE(whole.pixelColor(outside), ground);
        for (const QPoint& inside : {QPoint(100, 130), QPoint(179, 130), QPoint(140, 100), QPoint(140, 159)})
            QVERIFY(whole.pixelColor(inside) != ground);
    }

    void aTurnedPictureTurnsAboutItsCentre()
    {
        DesignerObject* image = m_canvas->addImage(m_canvas->files.addPng("a.png", {30, 20}));
        m_canvas->set(image, "rotation", QStringLiteral("angle: 180; fixedPoint: Center;"));
        QVERIFY(SamplePictures::isQuarters(m_canvas->picture(Place).mirrored(true, true)));
    }

    void whatCannotBeShownIsThePlaceholder_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("missing") << QStringLiteral("a.png") << QByteArray();
        QTest::newRow("broken drawing") << QStringLiteral("a.svg") << QByteArray("<svg><g></svg>");
        QTest::newRow("broken picture") << QStringLiteral("b.png") << QByteArray("hello");
        QTest::newRow("bomb") << QStringLiteral("c.png") << SamplePictures::greyPng({60000, 60000});
    }

    void whatCannotBeShownIsThePlaceholder()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        DesignerObject* image = m_canvas->addImage({});
        const QImage placeholder = m_canvas->picture();
        QVERIFY(ImageCanvas::updater(image).showsPlaceholder());
        QVERIFY(placeholder.pixelColor(Place.center()) != placeholder.pixelColor(10, 10));
        m_canvas->setSource(image, m_canvas->files.addPng("good.png", {30, 20}));
        QVERIFY(m_canvas->picture() != placeholder);
        if (content.isEmpty())
            m_canvas->files.offer(name);
        else
            m_canvas->files.add(name.toUtf8().constData(), content);
        m_canvas->setSource(image, name);
        QVERIFY(ImageCanvas::updater(image).showsPlaceholder());
        QCOMPARE(m_canvas->picture(), placeholder);
        m_canvas->setSource(image, QStringLiteral("good.png"));
        m_canvas->setSource(image, {});
        QCOMPARE(m_canvas->picture(), placeholder);
    }

    void aLinkOutOfTheProjectIsNotLoaded()
    {
        const QString secret = m_canvas->files.outside(QStringLiteral("secret.png"));
        SamplePictures::write(secret, SamplePictures::quarters({30, 20}, "png"));
        QVERIFY(QDir().mkpath(QFileInfo(m_canvas->files.path(QStringLiteral("a"))).path()));
        QVERIFY(QFile::link(secret, m_canvas->files.path(QStringLiteral("link.png"))));
        DesignerObject* image = m_canvas->addImage({});
        const QImage placeholder = m_canvas->picture();
        const auto source = image->getProperty(QStringLiteral("source"));
        const QString above = QStringLiteral("../") + QFileInfo(secret).fileName();
        for (const QString& name : {QStringLiteral("link.png"), secret, above}) {
            m_canvas->files.offer(name);
            source->fill(name); // as a project made by hand says
            image->graphicsItem()->updateGraphicsItem(source);
            QVERIFY(ImageCanvas::updater(image).showsPlaceholder());
            QCOMPARE(m_canvas->picture(), placeholder);
        }
    }

    void anAnimationPlaysWhileItIsSelected()
    {
        DesignerObject* image = m_canvas->addImage(m_canvas->files.addAnimation("A.GIF"));
        QVERIFY(ImageCanvas::updater(image).picture().holdsMovie());
        QVERIFY(!ImageCanvas::plays(image));
        QCOMPARE(shown(), QColor(Qt::red));
        m_canvas->click({140, 130});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{image});
        QVERIFY(ImageCanvas::plays(image));
        QTRY_COMPARE(shown(), QColor(Qt::green));
        QTRY_COMPARE(shown(), QColor(Qt::blue));
        QTRY_COMPARE(shown(), QColor(Qt::red));
        QTRY_COMPARE(ImageCanvas::frame(image), 1);
        m_canvas->click({20, 20});
        QVERIFY(m_canvas->selected().isEmpty());
        QVERIFY(!ImageCanvas::plays(image));
        QCOMPARE(ImageCanvas::frame(image), 0);
        QCOMPARE(shown(), QColor(Qt::red));
    }

    void onlyTheSelectedOnesPlay()
    {
        const QString animation = m_canvas->files.addAnimation("a.gif");
        QList<DesignerObject*> images;
        for (int i = 0; i < 4; ++i)
            images.append(m_canvas->addImage(animation, {80, 60}, {100. + 100 * i, 100}));
        const auto playing = [&images] {
            QList<DesignerObject*> list = images;
            list.removeIf([](const DesignerObject* image) { return !ImageCanvas::plays(image); });
            return list;
        };
        QVERIFY(playing().isEmpty());
        m_canvas->select({images.at(1), images.at(3)});
        QCOMPARE(playing(), (QList<DesignerObject*>{images.at(1), images.at(3)}));
        m_canvas->select({images.at(3), images.at(0)});
        QCOMPARE(playing(), (QList<DesignerObject*>{images.at(0), images.at(3)}));
        QCOMPARE(ImageCanvas::frame(images.at(1)), 0);
        m_canvas->select({});
        QVERIFY(playing().isEmpty());
    }

    void imagesOfASelectedGroupPlay()
    {
        DesignerObject* image = m_canvas->addImage(m_canvas->files.addAnimation("a.gif"));
        DesignerObject* other = m_canvas->addRectangle(QRectF(200, 100, 50, 50));
        DesignerObject* group = m_canvas->addGroup({50, 50}, {image, other});
        QVERIFY(!ImageCanvas::plays(image));
        m_canvas->click({140, 130});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{group});
        QVERIFY(ImageCanvas::plays(image));
        QTRY_COMPARE(ImageCanvas::frame(image), 1);
        // A new picture plays at once, for the group is selected.
        m_canvas->setSource(image, m_canvas->files.addAnimation("b.gif"));
        QVERIFY(ImageCanvas::plays(image));
        m_canvas->select({});
        QVERIFY(!ImageCanvas::plays(image));
        QCOMPARE(ImageCanvas::frame(image), 0);
    }

    void aNewSourceOfASelectedImagePlays()
    {
        DesignerObject* image = m_canvas->addImage({});
        m_canvas->select({image});
        m_canvas->setSource(image, m_canvas->files.addAnimation("a.gif"));
        QVERIFY(ImageCanvas::plays(image));
        m_canvas->setSource(image, m_canvas->files.addPng("b.png", {30, 20}));
        QVERIFY(!ImageCanvas::plays(image));
        m_canvas->select({});
        m_canvas->setSource(image, QStringLiteral("a.gif"));
        QVERIFY(!ImageCanvas::plays(image));
    }

    void anAnimationOfOneFrameKeepsNoMovie()
    {
        const QString one = m_canvas->files.add("a.gif", SamplePictures::gif({40, 30}, {Qt::blue}));
        DesignerObject* image = m_canvas->addImage(one);
        m_canvas->select({image});
        QVERIFY(!ImageCanvas::updater(image).picture().holdsMovie());
        QVERIFY(!ImageCanvas::updater(image).showsPlaceholder());
        QCOMPARE(shown(), QColor(Qt::blue));
    }

    void disablingFreezesTheFrameAndEnablingPlaysAgain()
    {
        DesignerObject* image = m_canvas->addImage(m_canvas->files.addAnimation("a.gif"));
        DesignerObject* group = m_canvas->addGroup({50, 50}, {image});
        m_canvas->select({group});
        QTRY_COMPARE(ImageCanvas::frame(image), 1);
        ImageCanvas::item(image)->setEnabled(false);
        QVERIFY(!ImageCanvas::plays(image));
        QVERIFY(!ImageCanvas::updater(image).picture().holdsMovie());
        QCOMPARE(shown(), QColor(Qt::green));
        m_canvas->select({});
        QCOMPARE(shown(), QColor(Qt::green));
        ImageCanvas::item(image)->setEnabled(true);
        QVERIFY(!ImageCanvas::plays(image));
        QCOMPARE(shown(), QColor(Qt::red));
        m_canvas->select({group});
        QVERIFY(ImageCanvas::plays(image));
        QTRY_COMPARE(ImageCanvas::frame(image), 1);
        // Enabled while its group is selected it plays at once.
        ImageCanvas::item(image)->setEnabled(false);
        QVERIFY(!ImageCanvas::plays(image));
        ImageCanvas::item(image)->setEnabled(true);
        QVERIFY(ImageCanvas::plays(image));
        // A selected item is deselected when it is disabled, and so goes back to its first frame.
        m_canvas->select({image});
        QTRY_COMPARE(ImageCanvas::frame(image), 1);
        ImageCanvas::item(image)->setEnabled(false);
        QVERIFY(m_canvas->selected().isEmpty());
        QCOMPARE(shown(), QColor(Qt::red));
    }

    void aChangedFileIsShownAtOnce()
    {
        DesignerObject* image =
            m_canvas->addImage(m_canvas->files.add("a.gif", SamplePictures::gif({4, 3}, {Qt::blue})));
        DesignerObject* other = m_canvas->addImage({}, {80, 60}, {300, 100});
        m_canvas->select({image});
        QCOMPARE(shown(), QColor(Qt::blue));
        m_canvas->files.addAnimation("a.gif");
        const QSignalSpy changes(m_canvas->scene(), &QGraphicsScene::changed);
        Q_EMIT m_canvas->project->imageFileChanged(QStringLiteral("b.gif"));
        QVERIFY(!ImageCanvas::plays(image));
        Q_EMIT m_canvas->project->imageFileChanged(QStringLiteral("a.gif"));
        QVERIFY(ImageCanvas::plays(image));
        QTRY_VERIFY(!changes.isEmpty());
        QVERIFY(ImageCanvas::updater(other).showsPlaceholder());
        QVERIFY(QFile::remove(m_canvas->files.path(QStringLiteral("a.gif"))));
        Q_EMIT m_canvas->project->imageFileChanged(QStringLiteral("a.gif"));
        QVERIFY(ImageCanvas::updater(image).showsPlaceholder());
        m_canvas->files.addAnimation("a.gif");
        Q_EMIT m_canvas->project->imageFileChanged(QStringLiteral("a.gif"));
        QVERIFY(ImageCanvas::plays(image));
    }

    void aPlayingImageCanBeRemovedAndComesBackPlaying()
    {
        DesignerObject* image = m_canvas->addImage(m_canvas->files.addAnimation("a.gif"));
        m_canvas->select({image});
        QTRY_COMPARE(ImageCanvas::frame(image), 1);
        m_canvas->key(Qt::Key_Delete);
        QVERIFY(m_canvas->screen->childList()->items().isEmpty());
        QCoreApplication::processEvents();
        QVERIFY(m_canvas->session->undo().accepted);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{image});
        QTRY_COMPARE(ImageCanvas::frame(image), 1);
        m_canvas->key(Qt::Key_Delete);
        m_canvas.reset(); // with an image that its history holds
    }

    void manyAnimationsCostNothingWhileNoneIsSelected()
    {
        const QString animation = m_canvas->files.addAnimation("a.gif", 1);
        QList<DesignerObject*> images;
        for (int i = 0; i < 200; ++i)
            images.append(m_canvas->addImage(animation, {30, 20}, QPoint(35 * (i % 20), 25 * (i / 20))));
        for (const DesignerObject* image : std::as_const(images))
            QVERIFY(!ImageCanvas::plays(image));
        settle();
        const QSignalSpy changes(m_canvas->scene(), &QGraphicsScene::changed);
        PaintCounter paints(m_canvas->view->viewport());
        QVERIFY(!QTest::qWaitFor([&] { return !changes.isEmpty() || paints.count() > 0; }, 300));
        // One that is selected repaints its own place alone.
        m_canvas->select({images.at(7)});
        settle();
        const QSignalSpy one(m_canvas->scene(), &QGraphicsScene::changed);
        QTRY_VERIFY(one.count() >= 3);
        const QRectF place = CanvasFixture::graphic(images.at(7))->sceneBoundingRect().adjusted(-2, -2, 2, 2);
        for (const QList<QVariant>& change : one) {
            for (const QRectF& rect : change.constFirst().value<QList<QRectF>>())
                QVERIFY(place.contains(rect));
        }
    }

    void imagesOfOneFileShareWhatIsDecoded()
    {
        // 200 pictures of 12 MB would take 2.4 GB.
        const QString large = m_canvas->files.add("a.png", SamplePictures::greyPng({2000, 1500}));
        const qint64 before = residentBytes();
        for (int i = 0; i < 200; ++i)
            m_canvas->addImage(large, {30, 20}, QPoint(35 * (i % 20), 25 * (i / 20)));
        m_canvas->picture();
        QVERIFY(residentBytes() - before < 500 * 1024 * 1024);
    }

    void sizesBelowOneAreIgnored()
    {
        DesignerObject* image = m_canvas->addImage({});
        for (const char* size : {"0.5,10", "10,0.5", "0,0", "-3,20"}) {
            m_canvas->set(image, "size", QString::fromLatin1(size));
            QCOMPARE(ImageCanvas::item(image)->boundingRect(), QRectF(0, 0, 80, 60));
        }
        m_canvas->set(image, "size", QStringLiteral("1,1"));
        QCOMPARE(ImageCanvas::item(image)->boundingRect(), QRectF(0, 0, 1, 1));
    }

private:
    /// Counts the repaints of a widget.
    class PaintCounter : public QObject
    {
    public:
        explicit PaintCounter(QWidget* widget) { widget->installEventFilter(this); }
        [[nodiscard]] int count() const { return m_count; }
        bool eventFilter(QObject*, QEvent* event) override
        {
            m_count += event->type() == QEvent::Paint;
            return false;
        }

    private:
        int m_count = 0;
    };

    [[nodiscard]] QColor shown() const { return m_canvas->picture().pixelColor(Place.center()); }

    /// Lets the canvas paint what has happened so far.
    void settle() const
    {
        m_canvas->view->viewport()->repaint();
        QCoreApplication::processEvents();
        m_canvas->view->viewport()->repaint();
        QCoreApplication::processEvents();
    }

    static qint64 residentBytes()
    {
        QFile file(QStringLiteral("/proc/self/statm"));
        if (!file.open(QIODevice::ReadOnly))
            return 0;
        return file.readAll().split(' ').at(1).toLongLong() * 4096;
    }

    std::unique_ptr<ImageCanvas> m_canvas;
};

QTEST_MAIN(tst_GraphicsImage)
#include "tst_GraphicsImage.moc"
