#include "images/ImageUpdater.h"

#include "host/common/Picture.h"

#include "tests/support/SamplePictures.h"

#include <QGraphicsRectItem>
#include <QGraphicsScene>
#include <QMetaMethod>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Korvex::Meridane::Common::Picture;

namespace {

constexpr QSize Size(40, 30);

QImage painted(const ImageUpdater& updater, const QSize& size = Size)
{
    QImage paper(size, QImage::Format_ARGB32_Premultiplied);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    updater.paint(size, &painter);
    return paper;
}

} // namespace

/// The updater with an item of the test's own on a scene.
class tst_ImageUpdater : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_scene = std::make_unique<QGraphicsScene>();
        m_item = m_scene->addRect(0, 0, Size.width(), Size.height());
        m_updater = std::make_unique<ImageUpdater>(m_item);
        QCoreApplication::processEvents();
    }
    void cleanup()
    {
        m_updater.reset();
        m_scene.reset();
    }

    void itsSlotsCanBeCalledByName_data()
    {
        QTest::addColumn<QByteArray>("signature");
        QTest::addColumn<QByteArray>("parameter");
        QTest::newRow("setImageFile") << QByteArray("setImageFile(QString)") << QByteArray("path");
        QTest::newRow("startAnimation") << QByteArray("startAnimation()") << QByteArray();
        QTest::newRow("stopAnimation") << QByteArray("stopAnimation()") << QByteArray();
        QTest::newRow("pauseAnimation") << QByteArray("pauseAnimation()") << QByteArray();
        QTest::newRow("resumeAnimation") << QByteArray("resumeAnimation()") << QByteArray();
        QTest::newRow("unload") << QByteArray("unload()") << QByteArray();
        QTest::newRow("onFrameChanged") << QByteArray("onFrameChanged(int)") << QByteArray("frameNumber");
    }

    void itsSlotsCanBeCalledByName()
    {
        QFETCH(QByteArray, signature);
        QFETCH(QByteArray, parameter);
        const QMetaObject* meta = m_updater->metaObject();
        const int index = meta->indexOfSlot(signature.constData());
        QVERIFY(index >= 0);
        QCOMPARE(meta->method(index).parameterNames().value(0), parameter);
    }

    void withoutAFileThePlaceholderIsShown()
    {
        m_updater->setImageFile({});
        QVERIFY(m_updater->showsPlaceholder());
        QVERIFY(m_updater->picture().holdsDrawing());
        Picture placeholder;
        placeholder.setDrawing(QStringLiteral(":/images/defaultImage"));
        QImage paper(Size, QImage::Format_ARGB32_Premultiplied);
        paper.fill(Qt::white);
        QPainter painter(&paper);
        placeholder.paint(Size, &painter);
        painter.end();
        QCOMPARE(painted(*m_updater), paper);
        QVERIFY(paper.pixelColor(Size.width() / 2, Size.height() / 2) != QColor(Qt::white));
    }

    void whatCannotBeShownIsThePlaceholder_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("a broken drawing") << QStringLiteral("a.svg") << QByteArray("<svg><g></svg>");
        QTest::newRow("a harmful drawing")
            << QStringLiteral("b.svg") << SamplePictures::drawing(Size, "<g id='a'><use href='#a'/></g>");
        QTest::newRow("a missing picture") << QStringLiteral("c.png") << QByteArray();
        QTest::newRow("a broken picture") << QStringLiteral("d.png") << QByteArray("hello");
        QTest::newRow("a cut off picture")
            << QStringLiteral("e.png") << SamplePictures::quarters({300, 300}, "png").first(100);
        QTest::newRow("a broken animation") << QStringLiteral("f.gif") << QByteArray("GIF89a");
        QTest::newRow("a bomb") << QStringLiteral("g.png") << SamplePictures::greyPng({60000, 60000});
    }

    void whatCannotBeShownIsThePlaceholder()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        m_updater->setImageFile({});
        const QImage placeholder = painted(*m_updater);
        m_updater->setImageFile(file("good.png", SamplePictures::quarters(Size, "png")));
        QVERIFY(!m_updater->showsPlaceholder());
        m_updater->setImageFile(content.isEmpty() ? m_folder.filePath(name) : file(name.toLatin1(), content));
        QVERIFY(m_updater->showsPlaceholder());
        QCOMPARE(painted(*m_updater), placeholder);
        m_updater->startAnimation();
        m_updater->stopAnimation();
        m_updater->unload();
        QCOMPARE(painted(*m_updater), placeholder);
    }

    void everyKindOfPictureIsShown_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("png") << QStringLiteral("a.png") << SamplePictures::quarters(Size, "png");
        QTest::newRow("PNG") << QStringLiteral("A.PNG") << SamplePictures::quarters(Size, "png");
        QTest::newRow("jpg") << QStringLiteral("a.jpg") << SamplePictures::quarters(Size, "jpg");
        QTest::newRow("webp") << QStringLiteral("a.webp") << SamplePictures::quarters(Size, "webp");
        QTest::newRow("bmp") << QStringLiteral("a.bmp") << SamplePictures::quarters(Size, "bmp");
        QTest::newRow("gif") << QStringLiteral("a.gif") << SamplePictures::gifQuarters(Size);
        QTest::newRow("svg") << QStringLiteral("a.svg") << SamplePictures::drawnQuarters(Size);
        QTest::newRow("SVG") << QStringLiteral("A.SVG") << SamplePictures::drawnQuarters(Size);
    }

    void everyKindOfPictureIsShown()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        m_updater->setImageFile(file(name.toLatin1(), content));
        QVERIFY(!m_updater->showsPlaceholder());
        QCOMPARE(m_updater->picture().holdsDrawing(), name.toLower().endsWith(QLatin1String(".svg")));
        QVERIFY(!m_updater->picture().holdsMovie());
        QVERIFY(SamplePictures::isQuarters(painted(*m_updater), 3));
        QVERIFY(SamplePictures::isQuarters(painted(*m_updater, {120, 20}), 3));
    }

    void anAnimationPlaysFromStartToStop()
    {
        m_updater->setImageFile(animation("A.GIF"));
        QVERIFY(m_updater->picture().holdsMovie());
        QVERIFY(!m_updater->picture().isRunning());
        QCOMPARE(shown(), QColor(Qt::red));
        m_updater->startAnimation();
        QVERIFY(m_updater->picture().isRunning());
        QTRY_COMPARE(shown(), QColor(Qt::green));
        m_updater->startAnimation(); // goes on
        QCOMPARE(shown(), QColor(Qt::green));
        QTRY_COMPARE(shown(), QColor(Qt::blue));
        m_updater->stopAnimation();
        QVERIFY(!m_updater->picture().isRunning());
        QCOMPARE(shown(), QColor(Qt::red));
    }

    void eachFrameRepaintsTheItem()
    {
        m_updater->setImageFile(animation("a.gif"));
        QTRY_COMPARE(pendingChanges(), 0);
        const QSignalSpy changes(m_scene.get(), &QGraphicsScene::changed);
        m_updater->startAnimation();
        QTRY_VERIFY(changes.count() >= 4);
        m_updater->stopAnimation();
        QTRY_COMPARE(pendingChanges(), 0);
        const int count = int(changes.count());
        QVERIFY(!QTest::qWaitFor([&] { return changes.count() > count; }, 150));
        m_updater->startAnimation();
        QTRY_VERIFY(changes.count() > count);
    }

    void everyCallThatChangesThePictureRepaintsTheItem()
    {
        const QString png = file("a.png", SamplePictures::quarters(Size, "png"));
        const QString gif = animation("a.gif");
        QTRY_COMPARE(pendingChanges(), 0);
        const auto repaints = [this](const std::function<void()>& call) {
            while (pendingChanges() > 0) {
            }
            const QSignalSpy changes(m_scene.get(), &QGraphicsScene::changed);
            call();
            QCoreApplication::processEvents();
            return !changes.isEmpty();
        };
        QVERIFY(repaints([&] { m_updater->setImageFile(png); }));
        QVERIFY(!repaints([&] { m_updater->startAnimation(); }));
        QVERIFY(!repaints([&] { m_updater->unload(); }));
        QVERIFY(repaints([&] { m_updater->setImageFile(gif); }));
        QVERIFY(repaints([&] { m_updater->startAnimation(); }));
        QVERIFY(repaints([&] { m_updater->stopAnimation(); }));
        QVERIFY(repaints([&] { m_updater->unload(); }));
        QVERIFY(repaints([&] { m_updater->setImageFile({}); }));
        QVERIFY(repaints([&] { QMetaObject::invokeMethod(m_updater.get(), "onFrameChanged", Q_ARG(int, 1)); }));
    }

    void pausingKeepsTheFrameUntilItGoesOn()
    {
        m_updater->setImageFile(animation("a.gif"));
        m_updater->startAnimation();
        QTRY_COMPARE(shown(), QColor(Qt::green));
        m_updater->pauseAnimation();
        QVERIFY(!m_updater->picture().isRunning());
        const QColor frame = shown();
        QVERIFY(!QTest::qWaitFor([&] { return shown() != frame; }, 150));
        m_updater->resumeAnimation();
        QTRY_VERIFY(shown() != frame);
    }

    void unloadingKeepsTheFrameForGood()
    {
        m_updater->setImageFile(animation("a.gif"));
        m_updater->startAnimation();
        QTRY_COMPARE(shown(), QColor(Qt::green));
        m_updater->unload();
        QVERIFY(!m_updater->picture().holdsMovie());
        QCOMPARE(shown(), QColor(Qt::green));
        m_updater->startAnimation();
        m_updater->stopAnimation();
        QCOMPARE(shown(), QColor(Qt::green));
    }

    void anAnimationOfOneFrameKeepsNoMovie()
    {
        m_updater->setImageFile(file("a.gif", SamplePictures::gif(Size, {Qt::blue})));
        QVERIFY(!m_updater->picture().holdsMovie());
        QVERIFY(!m_updater->showsPlaceholder());
        m_updater->startAnimation();
        QVERIFY(!m_updater->picture().isRunning());
        QCOMPARE(shown(), QColor(Qt::blue));
    }

    void anotherFileReplacesARunningAnimation()
    {
        m_updater->setImageFile(animation("a.gif"));
        m_updater->startAnimation();
        m_updater->setImageFile(file("a.png", SamplePictures::quarters(Size, "png")));
        QVERIFY(!m_updater->picture().holdsMovie());
        QVERIFY(SamplePictures::isQuarters(painted(*m_updater)));
        m_updater->setImageFile(animation("a.gif"));
        QVERIFY(!m_updater->picture().isRunning()); // a new file does not start by itself
        QCOMPARE(shown(), QColor(Qt::red));
    }

    void theSameFileIsReadAgain()
    {
        const QString path = file("a.png", SamplePictures::quarters(Size, "png"));
        m_updater->setImageFile(path);
        QVERIFY(SamplePictures::isQuarters(painted(*m_updater)));
        file("a.png", SamplePictures::gif(Size, {Qt::blue})); // whatever the name says
        m_updater->setImageFile(path);
        QCOMPARE(shown(), QColor(Qt::blue));
        QVERIFY(QFile::remove(path));
        QCOMPARE(shown(), QColor(Qt::blue));
        m_updater->setImageFile(path);
        QVERIFY(m_updater->showsPlaceholder());
    }

    void itGoesWhileTheAnimationRuns()
    {
        m_updater->setImageFile(animation("a.gif"));
        m_updater->startAnimation();
        QTRY_COMPARE(shown(), QColor(Qt::green));
        m_updater.reset();
        QTRY_COMPARE(pendingChanges(), 0); // nothing is played any more
    }

private:
    QString file(const QByteArray& name, const QByteArray& content) const
    {
        QString path = m_folder.filePath(QString::fromLatin1(QTest::currentTestFunction()) + QLatin1Char('/')
                                         + QString::fromLatin1(name));
        SamplePictures::write(path, content);
        return path;
    }
    QString animation(const char* name) const
    {
        return file(name, SamplePictures::gif(Size, {Qt::red, Qt::green, Qt::blue}, 4));
    }
    [[nodiscard]] QColor shown() const { return painted(*m_updater).pixelColor(Size.width() / 2, Size.height() / 2); }
    /// How many changes the scene announces when nothing happens any more.
    [[nodiscard]] int pendingChanges() const
    {
        const QSignalSpy changes(m_scene.get(), &QGraphicsScene::changed);
        QCoreApplication::processEvents();
        return int(changes.count());
    }

    QTemporaryDir m_folder;
    std::unique_ptr<QGraphicsScene> m_scene;
    QGraphicsItem* m_item = nullptr;
    std::unique_ptr<ImageUpdater> m_updater;
};

QTEST_MAIN(tst_ImageUpdater)
#include "tst_ImageUpdater.moc"
