#include "host/common/PaintHelper.h"
#include "host/common/PictureCache.h"
#include "tests/runtime/BorderedShape.h"
#include "tests/support/SamplePictures.h"

#include <QQuickItem>
#include <QRegularExpression>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>

#include <cmath>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
/** The folder of an export, which is that of the running screen: pictures are looked for in "images" beside it. */
const QTemporaryDir& exportFolder()
{
    static const QTemporaryDir folder;
    return folder;
}

QString imagePath(const QString& name)
{
    return exportFolder().filePath(QStringLiteral("images/") + name);
}

/** Soft colours with a sharp dark disc, so that every shift and every kind of scaling shows. */
QImage landscape(const QSize& size)
{
    QImage picture(size, QImage::Format_ARGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const bool disc = std::hypot(x - 0.6 * size.width(), y - 0.4 * size.height()) < 0.2 * size.height();
            picture.setPixelColor(
                x, y, disc ? QColor(40, 20, 60) : QColor(255 * x / size.width(), 200 * y / size.height(), 90));
        }
    }
    return picture;
}

void paint(const QQuickItem& item, QPainter* painter)
{
    const QString source = item.property("source").toString();
    if (source.isEmpty()) {
        return;
    }
    const auto picture = Common::PictureCache::content(imagePath(source));
    if (picture->drawing) {
        Common::PaintHelper::paintDrawing(item.size(), picture->drawing.get(), picture->drawingId, painter);
    } else {
        Common::PaintHelper::paintPicture(item.size(), picture->pixels, false, painter);
    }
}

DisplayType image2()
{
    DisplayType type;
    BorderedShape::addSize(&type);
    type.name = QStringLiteral("Image2");
    type.defaults = {{QStringLiteral("source"), QString()}};
    type.sample.insert(QStringLiteral("source"), QStringLiteral("landscape.png"));
    type.changes.insert(QStringLiteral("source"), QStringLiteral("drawing.svg"));
    type.invisible.append({QStringLiteral("source"), QString()});
    type.someValues = [] {
        QVariantMap values = BorderedShape::someSize();
        values.insert(QStringLiteral("source"),
                      *rc::gen::element(QStringLiteral("landscape.png"), QStringLiteral("small.png"),
                                        QStringLiteral("large.jpg"), QStringLiteral("drawing.svg"),
                                        QStringLiteral("glass.png")));
        return values;
    };
    type.paint = paint;
    return type;
}
} // namespace

class TestDisplayImage2 : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayImage2();

private Q_SLOTS:
    void aNewOneIs200By200();
    void everyKindOfPictureIsShown_data();
    void everyKindOfPictureIsShown();
    void anAnimationPlaysWhileItIsVisible();
    void aHiddenAnimationStands();
    void aPictureThatCannotBeShownIsReported_data();
    void aPictureThatCannotBeShownIsReported();
    void namesThatLeadElsewhereAreNotFollowed_data();
    void namesThatLeadElsewhereAreNotFollowed();

private:
    /// Whether the middle takes on \a color in time. Looks once at each frame: by a second look the next may have come.
    [[nodiscard]] bool comes(const QColor& color) const
    {
        return QTest::qWaitFor([this, &color] { return middle() == color; });
    }
    [[nodiscard]] QColor middle() const
    {
        const QImage picture = sheet().running();
        const double ratio = picture.width() / sheet().screen()->width();
        return picture.pixelColor((item().mapToScene(QPointF(item().width(), item().height()) / 2) * ratio).toPoint());
    }
};

TestDisplayImage2::TestDisplayImage2()
    : DisplayTypeTest(image2())
{
    const auto write = [](const char* name, const QByteArray& content) {
        SamplePictures::write(imagePath(QString::fromUtf8(name)), content);
    };
    write("landscape.png", SamplePictures::encoded(landscape({90, 70}), "png"));
    write("small.png", SamplePictures::encoded(landscape({12, 9}), "png"));
    write("large.jpg", SamplePictures::encoded(landscape({700, 500}), "jpg"));
    QImage glass = landscape({60, 60});
    for (int x = 0; x < glass.width(); ++x) {
        for (int y = 0; y < glass.height(); ++y)
            glass.setPixelColor(x, y, QColor(20, 90, 160, 4 * x));
    }
    write("glass.png", SamplePictures::encoded(glass, "png"));
    write("drawing.svg",
          SamplePictures::drawing({100, 80}, "<rect width=\"100\" height=\"80\" rx=\"9\" fill=\"#f0c030\"/>"
                                             "<circle cx=\"40\" cy=\"40\" r=\"30\" fill=\"#302080\" "
                                             "fill-opacity=\"0.7\" stroke=\"red\" stroke-width=\"5\"/>"));
    write("a.gif", SamplePictures::gif({40, 30}, {Qt::red, Qt::green, Qt::blue}, 30));
    // The screen of the tests stands in the folder "screens" of the export.
    QDir(exportFolder().path()).mkpath(QStringLiteral("screens"));
    QDir::setCurrent(exportFolder().filePath(QStringLiteral("screens")));
}

void TestDisplayImage2::aNewOneIs200By200()
{
    QCOMPARE(item().size(), QSizeF(200, 200));
}

void TestDisplayImage2::everyKindOfPictureIsShown_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    const QSize size(60, 40);
    QTest::newRow("png") << QStringLiteral("q.png") << SamplePictures::quarters(size, "png");
    QTest::newRow("jpg") << QStringLiteral("q.JPG") << SamplePictures::quarters(size, "jpg");
    QTest::newRow("webp") << QStringLiteral("q.webp") << SamplePictures::quarters(size, "webp");
    QTest::newRow("bmp") << QStringLiteral("q.bmp") << SamplePictures::quarters(size, "bmp");
    QTest::newRow("gif") << QStringLiteral("q.gif") << SamplePictures::gifQuarters(size);
    QTest::newRow("svg") << QStringLiteral("q.svg") << SamplePictures::drawnQuarters(size);
    for (const char* name : {"50%.png", "%20.png", "a#b.png", "a?b.png", "a b.png", "\u00e9\u00df.png", ".hidden.png",
                             "a\"b.png", "a'b.png", "..a.png", "a&b.png", "a+b.png"})
        QTest::newRow(name) << QString::fromUtf8(name) << SamplePictures::quarters(size, "png");
}

void TestDisplayImage2::everyKindOfPictureIsShown()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    SamplePictures::write(imagePath(name), content);
    item().setSize(QSizeF(120, 80));
    item().setProperty("source", name);
    const QImage picture = sheet().running();
    const double ratio = picture.width() / sheet().screen()->width();
    const QRectF place(item().position() * ratio, item().size() * ratio);
    QVERIFY(SamplePictures::isQuarters(picture.copy(place.toRect()), 3));
}

void TestDisplayImage2::anAnimationPlaysWhileItIsVisible()
{
    item().setProperty("source", QStringLiteral("a.gif"));
    for (const QColor color : {Qt::green, Qt::blue, Qt::red, Qt::green})
        QVERIFY(comes(color));
    item().setProperty("source", QStringLiteral("landscape.png"));
    QVERIFY(looksAsPainted());
}

void TestDisplayImage2::aHiddenAnimationStands()
{
    item().setVisible(false);
    item().setProperty("source", QStringLiteral("a.gif"));
    QVERIFY(!QTest::qWaitFor([this] { return !isBlank(); }, 150));
    item().setVisible(true);
    QCOMPARE(middle(), QColor(Qt::red)); // it has not been started before
    QVERIFY(comes(Qt::green));
    sheet().group()->setVisible(false);
    QVERIFY(isBlank());
    sheet().group()->setVisible(true);
    QCOMPARE(middle(), QColor(Qt::green)); // and goes on where it was
    QVERIFY(comes(Qt::blue));
}

void TestDisplayImage2::aPictureThatCannotBeShownIsReported_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("missing") << QStringLiteral("nobody.png") << QByteArray();
    QTest::newRow("damaged") << QStringLiteral("damaged.png") << QByteArray("hello");
    QTest::newRow("bomb") << QStringLiteral("bomb.png") << SamplePictures::greyPng({60000, 60000});
    QTest::newRow("harmful") << QStringLiteral("harmful.svg")
                             << SamplePictures::drawing({9, 9}, "<g id=\"a\"><use href=\"#a\"/></g>");
}

void TestDisplayImage2::aPictureThatCannotBeShownIsReported()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    if (!content.isEmpty())
        SamplePictures::write(imagePath(name), content);
    setValues({{QStringLiteral("source"), QStringLiteral("landscape.png")}});
    QVERIFY(!isBlank());
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(name + QStringLiteral("\" is no picture that can be shown")));
    item().setProperty("source", name);
    QVERIFY(isBlank());
    QCOMPARE(item().property("source").toString(), name);
    item().setProperty("source", QStringLiteral("landscape.png"));
    QVERIFY(!isBlank());
    item().setProperty("source", QString()); // nothing to report
    QVERIFY(isBlank());
}

void TestDisplayImage2::namesThatLeadElsewhereAreNotFollowed_data()
{
    QTest::addColumn<QString>("source");
    for (const char* source : {"../secret.png", "./landscape.png", "below/secret.png", "..", ".", "..\\secret.png",
                               "/etc/secret.png", "../images/landscape.png"})
        QTest::newRow(source) << QString::fromLatin1(source);
    QTest::newRow("a path") << exportFolder().filePath(QStringLiteral("secret.png"));
    QTest::newRow("an address")
        << QUrl::fromLocalFile(exportFolder().filePath(QStringLiteral("secret.png"))).toString();
    QTest::newRow("a resource") << QStringLiteral("qrc:/images/defaultImage");
}

void TestDisplayImage2::namesThatLeadElsewhereAreNotFollowed()
{
    QFETCH(QString, source);
    for (const char* place : {"secret.png", "images/below/secret.png", "screens/secret.png"})
        SamplePictures::write(exportFolder().filePath(QLatin1String(place)), SamplePictures::quarters({9, 9}, "png"));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("is no picture that can be shown")));
    item().setProperty("source", source);
    QVERIFY(isBlank());
}

QTEST_MAIN(TestDisplayImage2)
#include "tst_DisplayImage2.moc"
