#include "host/common/PaintHelper.h"
#include "host/common/Picture.h"
#include "host/common/PictureCache.h"

#include "tests/support/SamplePictures.h"

#include <QBuffer>
#include <QMovie>
#include <QPainter>
#include <QSignalSpy>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <rapidcheck.h>

#include <dirent.h>

using namespace Korvex::Meridane::Common;
using SamplePictures::quarters;

namespace {
constexpr QSize Size(40, 30);

QList<QColor> someColors()
{
    return {Qt::red, Qt::green, Qt::blue};
}

/** What @p picture paints in a content of @p size on white paper, @p scale pixels a unit. */
QImage painted(const Picture& picture, const QSizeF& size, double scale = 1)
{
    QImage paper((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    painter.scale(scale, scale);
    picture.paint(size, &painter);
    return paper;
}

int openFiles()
{
    int count = 0;
    DIR* folder = opendir("/proc/self/fd");
    while (readdir(folder))
        ++count;
    closedir(folder);
    return count;
}
} // namespace

class TestPictureCache : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picturesOfOneFileShareTheirPixels();
    void drawingsOfOneFileAreReadOnce();
    void whatCannotBeReadIsLookedAtOnce();
    void aChangedFileIsReadAnew();
    void whatIsShownIsSharedHoweverLongAgo();
    void scaledPicturesAreKeptForEachSize();
    void severalThreadsReadTheSame();
    void aPictureIsStretchedOverItsContent_data();
    void aPictureIsStretchedOverItsContent();
    void finePatternsAreAveraged();
    void aDrawingIsSharpAtEveryScale();
    void thePainterComesBackAsItCame();
    void nothingIsPaintedWithoutAPicture();
    void anAnimationStandsUntilItIsStarted();
    void stoppingGoesBackToTheFirstFrame();
    void pausingKeepsTheFrame();
    void freezingKeepsTheFrameForGood();
    void anAnimationEndsAfterItsLastLoop();
    void aFrameLooksAsAPictureOfIts();
    void standingAnimationsNeedNeitherFilesNorTimers();
    void anotherFileReplacesTheAnimation();

private:
    QString file(const char* name, const QByteArray& content) const
    {
        QString path = m_folder.filePath(QString::fromLatin1(QTest::currentTestFunction()) + QLatin1Char('/')
                                         + QLatin1String(name));
        SamplePictures::write(path, content);
        return path;
    }

    QTemporaryDir m_folder;
};

void TestPictureCache::picturesOfOneFileShareTheirPixels()
{
    const QString path = file("a.png", quarters(Size, "png"));
    const auto first = PictureCache::content(path);
    QCOMPARE(PictureCache::content(path), first);
    QCOMPARE(PictureCache::still(path).cacheKey(), first->pixels.cacheKey());
    QCOMPARE(PictureCache::still(path).constBits(), first->pixels.constBits());
}

void TestPictureCache::drawingsOfOneFileAreReadOnce()
{
    const QString path = file("a.svg", SamplePictures::drawnQuarters(Size));
    const auto first = PictureCache::content(path);
    QVERIFY(first->drawing);
    QCOMPARE(PictureCache::content(path)->drawing, first->drawing);
    const auto other = PictureCache::content(file("b.svg", SamplePictures::drawnQuarters(Size)));
    QVERIFY(other->drawingId != first->drawingId);
    // Under another name it is shown only where the program says what it is.
    const QString unnamed = file("c", SamplePictures::drawnQuarters(Size));
    QCOMPARE(PictureCache::content(unnamed)->info.kind, PictureKind::Unreadable);
    QCOMPARE(PictureCache::drawing(unnamed)->info.kind, PictureKind::Drawing);
}

void TestPictureCache::whatCannotBeReadIsLookedAtOnce()
{
    const QString path = file("a.png", "no picture");
    const auto first = PictureCache::content(path);
    QCOMPARE(first->info.kind, PictureKind::Unreadable);
    QCOMPARE(PictureCache::content(path), first);
    QVERIFY(PictureCache::still(path).isNull());
    QCOMPARE(PictureCache::content(m_folder.filePath(QStringLiteral("missing.png")))->reason,
             QStringLiteral("the file is missing"));
}

void TestPictureCache::aChangedFileIsReadAnew()
{
    const QString path = file("a.png", quarters(Size, "png"));
    QVERIFY(SamplePictures::isQuarters(PictureCache::still(path)));
    QImage blue(Size, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    file("a.png", SamplePictures::encoded(blue, "png"));
    // Of the same size, and within the same tick of the file system's clock.
    QCOMPARE(PictureCache::still(path).pixelColor(1, 1), QColor(Qt::blue));
    // Swapped for something else of the same size and date.
    const QByteArray png = SamplePictures::encoded(blue, "png");
    const QDateTime date = QFileInfo(path).lastModified();
    file("a.png", QByteArray(png.size(), 'x'));
    QFile swapped(path);
    QVERIFY(swapped.open(QIODevice::ReadWrite));
    QVERIFY(swapped.setFileTime(date, QFileDevice::FileModificationTime));
    swapped.close();
    QCOMPARE(PictureCache::content(path)->info.kind, PictureKind::Unreadable);
    QVERIFY(QFile::remove(path));
    QCOMPARE(PictureCache::content(path)->info.kind, PictureKind::Unreadable);
    file("a.png", png);
    QCOMPARE(PictureCache::content(path)->info.kind, PictureKind::Still);
}

void TestPictureCache::whatIsShownIsSharedHoweverLongAgo()
{
    const QString path = file("a.png", quarters(Size, "png"));
    const auto shown = PictureCache::content(path);
    // Far more than is kept of what nobody shows.
    for (int i = 0; i < 5; ++i) {
        const QByteArray name = "large" + QByteArray::number(i) + ".png";
        QVERIFY(!PictureCache::still(file(name.constData(), SamplePictures::greyPng(QSize(4000, 4000)))).isNull());
    }
    QCOMPARE(PictureCache::content(path), shown);
}

void TestPictureCache::scaledPicturesAreKeptForEachSize()
{
    const QImage picture = quarters(QSize(400, 300));
    const QImage small = PictureCache::scaled(picture, Size);
    QCOMPARE(small.size(), Size);
    QVERIFY(SamplePictures::isQuarters(small));
    QCOMPARE(PictureCache::scaled(picture, Size).cacheKey(), small.cacheKey());
    const QImage other = PictureCache::scaled(picture, QSize(80, 30));
    QCOMPARE(other.size(), QSize(80, 30));
    QCOMPARE(PictureCache::scaled(picture, Size).cacheKey(), small.cacheKey());
    QCOMPARE(PictureCache::scaled(picture, picture.size()).cacheKey(), picture.cacheKey());
    QVERIFY(PictureCache::scaled(QImage(), Size).isNull());
    QCOMPARE(PictureCache::scaled(picture, QSize(0, 5)).cacheKey(), picture.cacheKey());

    const auto content = PictureCache::content(file("a.svg", SamplePictures::drawnQuarters(Size)));
    const QImage drawn = PictureCache::painted(content->drawing.get(), content->drawingId, QSize(200, 150));
    QVERIFY(SamplePictures::isQuarters(drawn));
    QCOMPARE(PictureCache::painted(content->drawing.get(), content->drawingId, QSize(200, 150)).cacheKey(),
             drawn.cacheKey());
    QVERIFY(PictureCache::painted(content->drawing.get(), content->drawingId, QSize(0, 0)).isNull());
}

void TestPictureCache::severalThreadsReadTheSame()
{
    const QString picture = file("a.png", quarters(Size, "png"));
    const QString drawing = file("a.svg", SamplePictures::drawnQuarters(Size));
    std::vector<std::unique_ptr<QThread>> threads;
    std::atomic<int> right = 0;
    for (int thread = 0; thread < 8; ++thread) {
        threads.emplace_back(QThread::create([&, thread] {
            for (int i = 1; i <= 50; ++i) {
                const auto content = PictureCache::content(drawing);
                const QSize size(10 + i, 10 + thread);
                right += SamplePictures::isQuarters(PictureCache::still(picture))
                         && PictureCache::painted(content->drawing.get(), content->drawingId, size).size() == size;
            }
        }));
        threads.back()->start();
    }
    for (const auto& thread : threads)
        thread->wait();
    QCOMPARE(right.load(), 8 * 50);
    QCOMPARE(PictureCache::content(picture), PictureCache::content(picture));
}

void TestPictureCache::aPictureIsStretchedOverItsContent_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("png") << QStringLiteral("a.png") << quarters(Size, "png");
    QTest::newRow("bmp") << QStringLiteral("a.bmp") << quarters(Size, "bmp");
    QTest::newRow("gif") << QStringLiteral("a.gif") << SamplePictures::gifQuarters(Size);
    QTest::newRow("svg") << QStringLiteral("a.svg") << SamplePictures::drawnQuarters(Size);
    QTest::newRow("large png") << QStringLiteral("b.png") << quarters(QSize(1000, 800), "png");
}

void TestPictureCache::aPictureIsStretchedOverItsContent()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    const QString path = file(name.toLatin1(), content);
    QVERIFY(rc::check("at every size and scale", [&path] {
        Picture picture;
        picture.setFile(path);
        const QSizeF size(*rc::gen::inRange(16, 300), *rc::gen::inRange(16, 300));
        const double scale = *rc::gen::element(0.5, 1.0, 2.0, 3.3);
        const QImage paper = painted(picture, size, scale);
        RC_ASSERT(SamplePictures::isQuarters(paper, 4));
        // Nothing of the paper is left on whole pixels, whatever the proportions.
        RC_ASSERT(paper.pixelColor(0, 0) == QColor(Qt::red));
        const QColor last = paper.pixelColor(int(size.width() * scale) - 1, int(size.height() * scale) - 1);
        RC_ASSERT(last.red() > 200 && last.green() > 200 && last.blue() < 150);
    }));
}

void TestPictureCache::finePatternsAreAveraged()
{
    // Columns of one pixel in black and white: points picked from it would be either.
    QImage columns(QSize(800, 20), QImage::Format_RGB32);
    columns.fill(Qt::white);
    for (int x = 0; x < columns.width(); x += 2) {
        for (int y = 0; y < columns.height(); ++y)
            columns.setPixelColor(x, y, Qt::black);
    }
    Picture picture;
    picture.setFile(file("a.png", SamplePictures::encoded(columns, "png")));
    const QImage paper = painted(picture, QSizeF(60, 20));
    for (int x = 1; x < paper.width() - 1; ++x)
        QVERIFY(qAbs(paper.pixelColor(x, 10).red() - 128) < 30);
}

void TestPictureCache::aDrawingIsSharpAtEveryScale()
{
    Picture picture;
    picture.setFile(file("a.svg", SamplePictures::drawing(QSize(10, 10), "<rect width=\"5\" height=\"10\"/>")));
    QVERIFY(picture.holdsDrawing());
    const QImage paper = painted(picture, QSizeF(100, 100), 4);
    QCOMPARE(paper.pixelColor(198, 200), QColor(Qt::black));
    QCOMPARE(paper.pixelColor(202, 200), QColor(Qt::white)); // transparent
}

void TestPictureCache::thePainterComesBackAsItCame()
{
    for (const QString& path :
         {file("a.png", quarters(Size, "png")), file("a.svg", SamplePictures::drawnQuarters(Size))}) {
        Picture picture;
        picture.setFile(path);
        for (const bool smooth : {false, true}) {
            QImage paper(Size, QImage::Format_ARGB32_Premultiplied);
            QPainter painter(&paper);
            painter.setRenderHint(QPainter::SmoothPixmapTransform, smooth);
            painter.setPen(Qt::red);
            painter.setOpacity(0.5);
            const QPainter::RenderHints hints = painter.renderHints();
            picture.paint(QSizeF(100, 10), &painter);
            QCOMPARE(painter.renderHints(), hints);
            QCOMPARE(painter.pen(), QPen(Qt::red));
            QCOMPARE(painter.opacity(), 0.5);
            QVERIFY(painter.transform().isIdentity());
        }
    }
}

void TestPictureCache::nothingIsPaintedWithoutAPicture()
{
    Picture picture;
    QVERIFY(picture.isNull());
    QImage white(Size, QImage::Format_ARGB32_Premultiplied);
    white.fill(Qt::white);
    QCOMPARE(painted(picture, Size), white);
    picture.setFile(file("a.png", "no picture"));
    QVERIFY(picture.isNull());
    QCOMPARE(painted(picture, Size), white);
    picture.setFile(file("b.png", quarters(Size, "png")));
    QVERIFY(!picture.isNull());
    picture.setFile({});
    QVERIFY(picture.isNull());
    picture.setFile(file("b.png", quarters(Size, "png")));
    QImage paper = white;
    QPainter painter(&paper);
    picture.paint(QSizeF(0, 10), &painter);
    picture.paint(QSizeF(-5, 10), &painter);
    picture.paint(QSizeF(qQNaN(), 10), &painter);
    painter.end();
    QCOMPARE(paper, white);
}

void TestPictureCache::anAnimationStandsUntilItIsStarted()
{
    Picture picture;
    picture.setFile(file("a.gif", SamplePictures::gif(Size, someColors())));
    const QSignalSpy changes(&picture, &Picture::changed);
    QVERIFY(picture.holdsMovie());
    QVERIFY(!picture.isRunning());
    QCOMPARE(picture.frame(), 0);
    QCOMPARE(painted(picture, Size).pixelColor(5, 5), QColor(Qt::red));
    picture.start();
    QVERIFY(picture.isRunning());
    for (int frame = 1; frame < 6; ++frame) {
        QTRY_COMPARE(picture.frame(), frame % 3);
        QCOMPARE(painted(picture, Size).pixelColor(5, 5), someColors().at(frame % 3));
    }
    QVERIFY(changes.count() >= 5);
    picture.start(); // does not begin anew
    QCOMPARE(picture.frame(), 2);
}

void TestPictureCache::stoppingGoesBackToTheFirstFrame()
{
    Picture picture;
    picture.setFile(file("a.gif", SamplePictures::gif(Size, someColors())));
    picture.start();
    QTRY_COMPARE(picture.frame(), 1);
    const QSignalSpy changes(&picture, &Picture::changed);
    picture.stop();
    QCOMPARE(changes.count(), 1);
    QVERIFY(!picture.isRunning());
    QVERIFY(picture.holdsMovie());
    QCOMPARE(picture.frame(), 0);
    QCOMPARE(painted(picture, Size).pixelColor(5, 5), QColor(Qt::red));
    picture.stop();
    QCOMPARE(changes.count(), 1);
    picture.start();
    QTRY_COMPARE(picture.frame(), 2);
}

void TestPictureCache::pausingKeepsTheFrame()
{
    Picture picture;
    picture.pause();
    picture.resume();
    picture.setFile(file("a.gif", SamplePictures::gif(Size, someColors(), 1)));
    picture.resume();
    QVERIFY(!picture.isRunning());
    picture.start();
    QTRY_COMPARE(picture.frame(), 1);
    picture.pause();
    QVERIFY(!picture.isRunning());
    const int frame = picture.frame();
    const QSignalSpy changes(&picture, &Picture::changed);
    QVERIFY(!QTest::qWaitFor([&changes] { return !changes.isEmpty(); }, 100));
    QCOMPARE(picture.frame(), frame);
    QCOMPARE(painted(picture, Size).pixelColor(5, 5), someColors().at(frame));
    picture.resume();
    QVERIFY(picture.isRunning());
    QTRY_VERIFY(!changes.isEmpty());
    picture.pause();
    picture.start(); // goes on
    QVERIFY(picture.isRunning());
}

void TestPictureCache::freezingKeepsTheFrameForGood()
{
    Picture picture;
    const QString path = file("a.gif", SamplePictures::gif(Size, someColors()));
    picture.setFile(path);
    picture.start();
    QTRY_COMPARE(picture.frame(), 1);
    const QSignalSpy changes(&picture, &Picture::changed);
    picture.freeze();
    QCOMPARE(changes.count(), 1);
    QVERIFY(!picture.holdsMovie());
    QVERIFY(!picture.isRunning());
    QVERIFY(!picture.isNull());
    QCOMPARE(painted(picture, Size).pixelColor(5, 5), QColor(Qt::green));
    picture.start();
    picture.stop();
    QVERIFY(!picture.isRunning());
    QCOMPARE(painted(picture, Size).pixelColor(5, 5), QColor(Qt::green));
    // One that was never started stays at its beginning.
    picture.setFile(path);
    picture.freeze();
    QVERIFY(!picture.holdsMovie());
    QCOMPARE(painted(picture, Size).pixelColor(5, 5), QColor(Qt::red));
    // A still picture has nothing to give up.
    picture.setFile(file("b.png", quarters(Size, "png")));
    picture.freeze();
    QVERIFY(SamplePictures::isQuarters(painted(picture, Size)));
}

void TestPictureCache::anAnimationEndsAfterItsLastLoop()
{
    Picture picture;
    picture.setFile(file("a.gif", SamplePictures::gif(Size, someColors(), 1, 1)));
    picture.start();
    QTRY_VERIFY(!picture.isRunning());
    QCOMPARE(picture.frame(), 2);
    QCOMPARE(painted(picture, Size).pixelColor(5, 5), QColor(Qt::blue));
    picture.start();
    QVERIFY(picture.isRunning());
    QTRY_COMPARE(picture.frame(), 1);
}

void TestPictureCache::aFrameLooksAsAPictureOfIts()
{
    // The first frame, which stands still on the canvas and is the first one of many on the display.
    Picture picture;
    const QByteArray quarter = SamplePictures::gifQuarters({400, 300});
    const QByteArray frame =
        quarter.sliced(quarter.indexOf("\x21\xf9"), quarter.size() - quarter.indexOf("\x21\xf9") - 1);
    picture.setFile(file("a.gif", quarter.chopped(1) + frame + ';'));
    for (const QSizeF& size : {QSizeF(400, 300), QSizeF(37, 50), QSizeF(501, 20), QSizeF(1000, 800)}) {
        const QImage standing = painted(picture, size);
        picture.start();
        QCOMPARE(picture.frame(), 0);
        QCOMPARE(painted(picture, size), standing);
        picture.stop();
    }
}

void TestPictureCache::standingAnimationsNeedNeitherFilesNorTimers()
{
    const QString path = file("a.gif", SamplePictures::gif(Size, someColors()));
    std::vector<std::unique_ptr<Picture>> pictures;
    const int before = openFiles();
    for (int i = 0; i < 2000; ++i) {
        pictures.push_back(std::make_unique<Picture>());
        pictures.back()->setFile(path);
        QVERIFY(pictures.back()->holdsMovie());
        QVERIFY(pictures.back()->findChildren<QTimer*>().isEmpty());
    }
    QCOMPARE(openFiles(), before);
    pictures.front()->start();
    QTRY_COMPARE(pictures.front()->frame(), 1);
    QCOMPARE(openFiles(), before);
    QCOMPARE(pictures.back()->frame(), 0);
}

void TestPictureCache::anotherFileReplacesTheAnimation()
{
    Picture picture;
    picture.setFile(file("a.gif", SamplePictures::gif(Size, someColors(), 1)));
    picture.start();
    QTRY_COMPARE(picture.frame(), 1);
    picture.setFile(file("b.png", quarters(Size, "png")));
    QVERIFY(!picture.holdsMovie());
    QVERIFY(!picture.isRunning());
    const QSignalSpy changes(&picture, &Picture::changed);
    QVERIFY(!QTest::qWaitFor([&changes] { return !changes.isEmpty(); }, 100));
    QVERIFY(SamplePictures::isQuarters(painted(picture, Size)));
}

QTEST_MAIN(TestPictureCache)
#include "tst_PictureCache.moc"
