#include "tests/images/ImageCanvas.h"

#include "host/core/values/ValueConversion.h"

#include <QTemporaryDir>
#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

constexpr QRectF Frame(100, 100, 80, 60); // of an image that is added

QPointF handlePoint(int handle, const QRectF& frame)
{
    const int row = handle / 3;
    return frame.topLeft() + QPointF(handle % 3 * frame.width() / 2, row * frame.height() / 2);
}

bool isWhole(double number)
{
    return number == std::round(number);
}

} // namespace

/// Images under the mouse and the keyboard of a user.
class tst_ImageGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_canvas = std::make_unique<ImageCanvas>(); }
    void cleanup() { m_canvas.reset(); }

    void altOTakesTheSizeOfThePicture_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        const QSize size(31, 17);
        QTest::newRow("png") << QStringLiteral("a.png") << SamplePictures::quarters(size, "png");
        QTest::newRow("jpg") << QStringLiteral("a.jpg") << SamplePictures::quarters(size, "jpg");
        QTest::newRow("webp") << QStringLiteral("a.webp") << SamplePictures::quarters(size, "webp");
        QTest::newRow("bmp") << QStringLiteral("a.bmp") << SamplePictures::quarters(size, "bmp");
        QTest::newRow("gif") << QStringLiteral("a.gif") << SamplePictures::gif(size, {Qt::red, Qt::green});
        QTest::newRow("svg") << QStringLiteral("a.svg") << SamplePictures::drawnQuarters(size);
    }

    void altOTakesTheSizeOfThePicture()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        DesignerObject* image = m_canvas->addImage(m_canvas->files.add(name.toUtf8().constData(), content));
        m_canvas->click(Frame.center());
        m_canvas->key(Qt::Key_O, Qt::AltModifier);
        QCOMPARE(value(image, "size"), QStringLiteral("31,17"));
        QCOMPARE(value(image, "boundingSize"), QStringLiteral("31,17"));
        QCOMPARE(value(image, "position"), QStringLiteral("100,100"));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Change Size"));
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{image});
        // The second time there is nothing to do.
        m_canvas->key(Qt::Key_O, Qt::AltModifier);
        QCOMPARE(m_canvas->steps(), 1);
        QVERIFY(m_canvas->session->undo().accepted);
        QCOMPARE(value(image, "size"), QStringLiteral("80,60"));
        QCOMPARE(value(image, "boundingSize"), QStringLiteral("80,60"));
    }

    void altOOfSeveralImagesIsOneStep()
    {
        DesignerObject* one = m_canvas->addImage(m_canvas->files.addPng("a.png", {30, 20}));
        DesignerObject* two = m_canvas->addImage(m_canvas->files.addPng("b.png", {50, 40}), {80, 60}, {300, 100});
        DesignerObject* none = m_canvas->addImage({}, {80, 60}, {500, 100});
        m_canvas->select({one, two, none});
        m_canvas->key(Qt::Key_O, Qt::AltModifier);
        QCOMPARE(value(one, "size"), QStringLiteral("30,20"));
        QCOMPARE(value(two, "size"), QStringLiteral("50,40"));
        QCOMPARE(value(none, "size"), QStringLiteral("80,60"));
        QCOMPARE(m_canvas->steps(), 1);
        QVERIFY(m_canvas->session->undo().accepted);
        QCOMPARE(value(one, "size"), QStringLiteral("80,60"));
        QCOMPARE(value(two, "size"), QStringLiteral("80,60"));
    }

    void altOLooksWhereTheProjectIsNow()
    {
        const QString png = m_canvas->files.addPng("a.png", {30, 20});
        DesignerObject* image = m_canvas->addImage(png);
        // The project is saved elsewhere, and what it was before is gone.
        const QTemporaryDir elsewhere;
        QVERIFY(QDir(elsewhere.path()).mkdir(QStringLiteral("images")));
        QVERIFY(QFile::rename(m_canvas->files.path(png), elsewhere.filePath(QStringLiteral("images/a.png"))));
        m_canvas->project->setFolder(elsewhere.path());
        m_canvas->select({image});
        m_canvas->key(Qt::Key_O, Qt::AltModifier);
        QCOMPARE(value(image, "size"), QStringLiteral("30,20"));
        QVERIFY(SamplePictures::isQuarters(m_canvas->picture({100, 100, 30, 20})));
        m_canvas->project->setFolder({}); // before the folder goes
    }

    void withoutAPictureAltODoesNothing_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("no link") << QString() << QByteArray();
        QTest::newRow("missing") << QStringLiteral("a.png") << QByteArray();
        QTest::newRow("broken") << QStringLiteral("b.png") << QByteArray("hello");
        QTest::newRow("bomb") << QStringLiteral("c.png") << SamplePictures::greyPng({60000, 60000});
        QTest::newRow("a drawing without size") << QStringLiteral("d.svg") << QByteArray("<svg/>");
        QTest::newRow("a drawing of any size")
            << QStringLiteral("e.svg") << SamplePictures::drawing({100000, 10}, "<rect/>");
    }

    void withoutAPictureAltODoesNothing()
    {
        QFETCH(QString, name);
        QFETCH(QByteArray, content);
        if (!content.isEmpty())
            m_canvas->files.add(name.toUtf8().constData(), content);
        else if (!name.isEmpty())
            m_canvas->files.offer(name);
        DesignerObject* image = m_canvas->addImage(name);
        m_canvas->select({image});
        const QMap<QString, QString> before = m_canvas->values();
        m_canvas->key(Qt::Key_O, Qt::AltModifier);
        QCOMPARE(m_canvas->steps(), 0);
        QCOMPARE(m_canvas->values(), before);
    }

    void otherKeysDoNothing()
    {
        DesignerObject* image = m_canvas->addImage(m_canvas->files.addPng("a.png", {30, 20}));
        m_canvas->select({image});
        const auto before = m_canvas->values();
        const QList<std::pair<int, Qt::KeyboardModifiers>> keys{
            {Qt::Key_O, Qt::NoModifier},
            {Qt::Key_O, Qt::ControlModifier},
            {Qt::Key_O, Qt::AltModifier | Qt::ShiftModifier},
            {Qt::Key_O, Qt::AltModifier | Qt::ControlModifier},
            {Qt::Key_B, Qt::AltModifier},
            {Qt::Key_0, Qt::AltModifier},
        };
        for (const auto& [key, modifiers] : keys) {
            m_canvas->key(key, modifiers);
            QCOMPARE(m_canvas->values(), before);
        }
        QCOMPARE(m_canvas->steps(), 0);
        // Not selected, it gets no keys.
        m_canvas->select({});
        m_canvas->key(Qt::Key_O, Qt::AltModifier);
        QCOMPARE(m_canvas->values(), before);
    }

    void aKeptRatioStaysWhereAltOTakesTheSize()
    {
        DesignerObject* image = m_canvas->addImage(m_canvas->files.addPng("a.png", {30, 20}));
        m_canvas->set(image, "keepRatio", QStringLiteral("2"));
        m_canvas->select({image});
        m_canvas->key(Qt::Key_O, Qt::AltModifier);
        QCOMPARE(value(image, "size"), QStringLiteral("30,20"));
        QCOMPARE(value(image, "keepRatio"), QStringLiteral("2"));
    }

    void aDragOfTheFrameIsOneStep_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<QString>("size");
        QTest::addColumn<QString>("position");
        // Each dragged by 20 to the right and 12 down.
        QTest::newRow("top left") << 0 << QStringLiteral("60,48") << QStringLiteral("120,112");
        QTest::newRow("top") << 1 << QStringLiteral("80,48") << QStringLiteral("100,112");
        QTest::newRow("top right") << 2 << QStringLiteral("100,48") << QStringLiteral("100,112");
        QTest::newRow("left") << 3 << QStringLiteral("60,60") << QStringLiteral("120,100");
        QTest::newRow("right") << 5 << QStringLiteral("100,60") << QStringLiteral("100,100");
        QTest::newRow("bottom left") << 6 << QStringLiteral("60,72") << QStringLiteral("120,100");
        QTest::newRow("bottom") << 7 << QStringLiteral("80,72") << QStringLiteral("100,100");
        QTest::newRow("bottom right") << 8 << QStringLiteral("100,72") << QStringLiteral("100,100");
    }

    void aDragOfTheFrameIsOneStep()
    {
        QFETCH(int, handle);
        QFETCH(QString, size);
        QFETCH(QString, position);
        DesignerObject* image = m_canvas->addImage(m_canvas->files.addPng("a.png", {30, 20}));
        m_canvas->select({image});
        const QPointF from = handlePoint(handle, Frame);
        m_canvas->drag(from, from + QPointF(20, 12));
        QCOMPARE(value(image, "size"), size);
        QCOMPARE(value(image, "boundingSize"), size);
        QCOMPARE(value(image, "position"), position);
        QCOMPARE(m_canvas->steps(), 1);
        QVERIFY(m_canvas->session->undo().accepted);
        QCOMPARE(value(image, "size"), QStringLiteral("80,60"));
        QCOMPARE(value(image, "position"), QStringLiteral("100,100"));
    }

    void withARatioADragGivesWholeSizes_data()
    {
        QTest::addColumn<int>("handle");
        QTest::addColumn<QString>("size");
        QTest::addColumn<QString>("position");
        // Of an image of 80 × 60 with ratio 1.3, each dragged by 21 to the right and 13 down.
        QTest::newRow("top left") << 0 << QStringLiteral("59,45") << QStringLiteral("121,115");
        QTest::newRow("top") << 1 << QStringLiteral("61,47") << QStringLiteral("100,113");
        QTest::newRow("top right") << 2 << QStringLiteral("101,78") << QStringLiteral("100,82");
        QTest::newRow("left") << 3 << QStringLiteral("59,45") << QStringLiteral("121,100");
        QTest::newRow("right") << 5 << QStringLiteral("101,78") << QStringLiteral("100,100");
        QTest::newRow("bottom left") << 6 << QStringLiteral("59,45") << QStringLiteral("121,100");
        QTest::newRow("bottom") << 7 << QStringLiteral("95,73") << QStringLiteral("100,100");
        QTest::newRow("bottom right") << 8 << QStringLiteral("101,78") << QStringLiteral("100,100");
    }

    void withARatioADragGivesWholeSizes()
    {
        QFETCH(int, handle);
        QFETCH(QString, size);
        QFETCH(QString, position);
        DesignerObject* image = m_canvas->addImage({});
        m_canvas->set(image, "keepRatio", QStringLiteral("1.3"));
        m_canvas->select({image});
        const QPointF from = handlePoint(handle, Frame);
        m_canvas->drag(from, from + QPointF(21, 13));
        QCOMPARE(value(image, "size"), size);
        QCOMPARE(value(image, "position"), position);
        QCOMPARE(m_canvas->steps(), 1);
    }

    void anyDragKeepsTheOppositeCornerAndTheLimits()
    {
        QVERIFY(rc::check("a drag of a corner", [] {
            ImageCanvas canvas;
            const double ratio = *rc::gen::element(0.0, 0.2, 1.0, 1.37, 6.0);
            DesignerObject* image = canvas.addImage({}, {100, 70});
            canvas.set(image, "keepRatio", ValueConversion::toString(ratio));
            canvas.select({image});
            const int handle = *rc::gen::element(0, 2, 6, 8);
            const QRectF frame(100, 100, 100, 70);
            const QPointF from = handlePoint(handle, frame);
            canvas.drag(from, from + QPointF(*rc::gen::inRange(-300, 300), *rc::gen::inRange(-300, 300)));
            const QSizeF size = ValueConversion::toSize(value(image, "size"));
            const QRectF result(ValueConversion::toPoint(value(image, "position")), size);
            RC_ASSERT(size.width() >= 1 && size.height() >= 1);
            if (handle == 0 || handle == 8)
                RC_ASSERT(handlePoint(8 - handle, result) == handlePoint(8 - handle, frame));
            if (ratio > 0 && canvas.steps() > 0) {
                RC_ASSERT(isWhole(size.width()) && isWhole(size.height()));
                // Each side is rounded, the width from the mouse and the height from the width.
                RC_ASSERT(std::abs(size.width() - size.height() * ratio) <= 0.5 + 0.5 * ratio + 1e-9
                          || size.width() == 1 || size.height() == 1);
            }
            RC_ASSERT(value(image, "boundingSize") == value(image, "size"));
        }));
    }

    void withoutARatioADragMayEndBetweenPixels()
    {
        DesignerObject* image = m_canvas->addImage({}, {80.5, 60.25});
        m_canvas->select({image});
        m_canvas->drag({180.5, 160.25}, {190.5, 160.25});
        const QSizeF size = ValueConversion::toSize(value(image, "size"));
        QVERIFY(!isWhole(size.width()) || !isWhole(size.height()));
        QCOMPARE(m_canvas->steps(), 1);
    }

    void aDragThroughTheOppositeSideStopsAtOnePixel()
    {
        DesignerObject* image = m_canvas->addImage({});
        m_canvas->select({image});
        m_canvas->drag({180, 130}, {20, 130});
        QCOMPARE(value(image, "size"), QStringLiteral("1,60"));
        QVERIFY(m_canvas->session->undo().accepted);
        m_canvas->set(image, "keepRatio", QStringLiteral("2"));
        m_canvas->drag({140, 160}, {140, 20});
        QCOMPARE(value(image, "size"), QStringLiteral("2,1"));
    }

    void thePictureFollowsTheFrameWhileItIsDragged()
    {
        m_canvas->addImage(m_canvas->files.addPng("a.png", {30, 20}));
        m_canvas->click(Frame.center());
        m_canvas->press({180, 160});
        m_canvas->move({260, 220});
        QVERIFY(SamplePictures::isQuarters(m_canvas->picture({100, 100, 160, 120})));
        QCOMPARE(m_canvas->steps(), 0);
        m_canvas->key(Qt::Key_Escape);
        QVERIFY(SamplePictures::isQuarters(m_canvas->picture(Frame.toRect())));
        m_canvas->release({260, 220});
        QCOMPARE(m_canvas->steps(), 0);
    }

    void aPlayingImageIsMovedAndTurned()
    {
        DesignerObject* image = m_canvas->addImage(m_canvas->files.addAnimation("a.gif"));
        m_canvas->drag(Frame.center(), Frame.center() + QPointF(50, 30));
        QCOMPARE(value(image, "position"), QStringLiteral("150,130"));
        QVERIFY(ImageCanvas::plays(image));
        QTRY_COMPARE(ImageCanvas::frame(image), 2);
        QCOMPARE(m_canvas->steps(), 1);
    }

private:
    static QString value(const DesignerObject* object, const char* property)
    {
        return CanvasFixture::value(object, property);
    }

    std::unique_ptr<ImageCanvas> m_canvas;
};

QTEST_MAIN(tst_ImageGestures)
#include "tst_ImageGestures.moc"
