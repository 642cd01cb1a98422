#include "host/common/PictureFile.h"

#include "tests/support/CpuTime.h"
#include "tests/support/SamplePictures.h"

#include <QImageReader>
#include <QPainter>
#include <QSvgRenderer>
#include <QTemporaryDir>
#include <QTest>
#include <QtEndian>

#include <random>
#include <sys/stat.h>

using namespace Korvex::Meridane::Common;
using SamplePictures::drawing;
using SamplePictures::quarters;

namespace {
constexpr QSize Size(40, 30);

QByteArray bigEndian16(int number)
{
    const quint16 bytes = qToBigEndian(quint16(number));
    return {reinterpret_cast<const char*>(&bytes), sizeof(bytes)};
}

template <typename Number>
QByteArray littleEndian(Number number)
{
    const Number bytes = qToLittleEndian(number);
    return {reinterpret_cast<const char*>(&bytes), sizeof(Number)};
}

QByteArray bmpHead(int width, int height)
{
    return "BM" + littleEndian<quint32>(54) + littleEndian<quint32>(0) + littleEndian<quint32>(54)
           + littleEndian<quint32>(40) + littleEndian<qint32>(width) + littleEndian<qint32>(height)
           + littleEndian<quint16>(1) + littleEndian<quint16>(24) + QByteArray(24, '\0');
}

/** A WebP file that promises a canvas of @p size and holds nothing of it. */
QByteArray webPHead(const QSize& size)
{
    const QByteArray canvas = "VP8X" + littleEndian<quint32>(10) + QByteArray(4, '\0')
                              + littleEndian<quint32>(quint32(size.width() - 1)).first(3)
                              + littleEndian<quint32>(quint32(size.height() - 1)).first(3);
    const QByteArray picture = "VP8L" + littleEndian<quint32>(10) + '\x2f' + QByteArray(9, '\xff');
    return "RIFF" + littleEndian<quint32>(quint32(4 + canvas.size() + picture.size())) + "WEBP" + canvas + picture;
}

QByteArray jpegPart(char marker, const QByteArray& content)
{
    return QByteArray("\xff") + marker + bigEndian16(int(content.size()) + 2) + content;
}

/** A progressive JPEG of @p size in one grey, which goes over all of it @p scans times, each in a few bytes. */
QByteArray jpegOfScans(const QSize& size, int scans)
{
    constexpr qsizetype BlockSide = 8;
    const qsizetype blocks = ((size.width() + 7) / BlockSide) * ((size.height() + 7) / BlockSide);
    const QByteArray oneCode = '\1' + QByteArray(15, '\0');
    QByteArray file = QByteArray::fromHex("ffd8") + jpegPart('\xdb', '\0' + QByteArray(64, '\1'))
                      + jpegPart('\xc2', '\x8' + bigEndian16(size.height()) + bigEndian16(size.width())
                                             + QByteArray::fromHex("01011100"));
    file += jpegPart('\xc4', '\0' + oneCode + '\0') + jpegPart('\xc4', '\x10' + oneCode + '\xe0');
    // First what is the same in all of a block, then nothing more: runs of 32767 blocks without anything, two bytes each.
    file += jpegPart('\xda', QByteArray::fromHex("010100000000")) + QByteArray((blocks + 7) / 8, '\0');
    QByteArray nothing = jpegPart('\xda', QByteArray::fromHex("010100013f00"));
    for (qsizetype left = blocks; left > 0; left -= 32767)
        nothing += QByteArray::fromHex("7fff").replace("\xff", QByteArray::fromHex("ff00"));
    return file + nothing.repeated(scans) + QByteArray::fromHex("ffd9");
}

/** @p jpeg with a note of its camera that it is to be turned by 90 degrees clockwise. */
QByteArray turnedJpeg(const QByteArray& jpeg)
{
    const QByteArray note = QByteArray("Exif\0\0", 6)
                            + QByteArray::fromHex("49492a00080000000100"
                                                  "120103000100000006000000"
                                                  "00000000");
    return jpeg.first(2) + jpegPart('\xe1', note) + jpeg.sliced(2);
}

/** An icon file that says its picture, @p png, is of 16 × 16. */
QByteArray icon(const QByteArray& png)
{
    return QByteArray::fromHex("000001001010000001002000") + littleEndian<quint32>(quint32(png.size()))
           + littleEndian<quint32>(22) + png;
}

QByteArray packed(const QByteArray& bytes)
{
    return qCompress(bytes, 9).sliced(4);
}

/** A path of @p count straight lines from one random point to the next. */
QByteArray scribble(int count, double step)
{
    std::mt19937 random(1);
    std::uniform_real_distribution<double> turn(-1, 1);
    double x = 200;
    double y = 200;
    QByteArray path = "M200 200";
    for (int i = 0; i < count; ++i) {
        x = std::clamp(x + step * turn(random), 0.0, 400.0);
        y = std::clamp(y + step * turn(random), 0.0, 400.0);
        path += 'L' + QByteArray::number(x, 'f', 2) + ' ' + QByteArray::number(y, 'f', 2);
    }
    return path;
}

QByteArray drawing400(const QByteArray& content)
{
    return drawing(QSize(400, 400), content);
}

QByteArray numbered(const QByteArray& content, int count)
{
    QByteArray all;
    for (int i = 0; i < count; ++i)
        all += QByteArray(content).replace("%1", QByteArray::number(i % 400));
    return all;
}
} // namespace

class TestPictureFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyKindIsRead_data();
    void everyKindIsRead();
    void theNameDecidesWhateverItsCapitals_data();
    void theNameDecidesWhateverItsCapitals();
    void aPictureIsTurnedAsItsCameraSays();
    void translucencyIsKept();
    void anAnimationStandsOnItsFirstFrame();
    void aDrawingStandsStill();
    void aDrawingMayHaveNoSize();
    void whatCannotBeShownSaysWhy_data();
    void whatCannotBeShownSaysWhy();
    void whatWouldTakeTooLongIsRefusedAtOnce_data();
    void whatWouldTakeTooLongIsRefusedAtOnce();
    void whatIsElaborateIsShown_data();
    void whatIsElaborateIsShown();
    void textsOfAPictureAreNotRead();
    void onlyRegularFilesAreOpened();

private:
    /** Writes a file for the present test and returns its path. */
    QString file(const QString& name, const QByteArray& content) const
    {
        QString path = m_folder.filePath(QString::fromLatin1(QTest::currentTestFunction()) + QLatin1Char('/') + name);
        SamplePictures::write(path, content);
        return path;
    }

    QTemporaryDir m_folder;
};

void TestPictureFile::initTestCase()
{
    for (const char* format : {"png", "jpg", "webp", "bmp", "gif", "svg"})
        QVERIFY2(QImageReader::supportedImageFormats().contains(format), format);
}

void TestPictureFile::everyKindIsRead_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("format");
    QTest::addColumn<int>("tolerance");
    const auto row = [](const char* name, const QByteArray& content, const char* format, int tolerance = 0) {
        QTest::newRow(name) << QString::fromLatin1(name) << content << QByteArray(format) << tolerance;
    };
    row("a.png", quarters(Size, "png"), "png");
    row("a.jpg", quarters(Size, "jpg"), "jpeg", 3);
    row("a.jpeg", quarters(Size, "jpg"), "jpeg", 3);
    row("a.webp", quarters(Size, "webp"), "webp", 3);
    row("a.bmp", quarters(Size, "bmp"), "bmp");
    row("a.gif", SamplePictures::gifQuarters(Size), "gif");
    row("no ending", quarters(Size, "png"), "png");
    row("jpeg called.png", quarters(Size, "jpg"), "jpeg", 3);
    row("png called.gif", quarters(Size, "png"), "png");
    row("\u00e4 # %20 ?.png", quarters(Size, "png"), "png");
}

void TestPictureFile::everyKindIsRead()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, format);
    QFETCH(int, tolerance);
    const QString path = file(name, content);
    QString reason;
    const PictureInfo info = pictureInfo(path, &reason);
    QCOMPARE(reason, QString());
    QCOMPARE(info.kind, PictureKind::Still);
    QCOMPARE(info.size, Size);
    QCOMPARE(info.frames, 1);
    QCOMPARE(info.format, format);

    const PictureContent picture = readPicture(path);
    QCOMPARE(picture.reason, QString());
    QCOMPARE(picture.info.kind, PictureKind::Still);
    QCOMPARE(picture.pixels.size(), Size);
    QVERIFY(SamplePictures::isQuarters(picture.pixels, tolerance));
    QVERIFY(!picture.drawing);
}

void TestPictureFile::theNameDecidesWhateverItsCapitals_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<PictureKind>("kind");
    QTest::newRow("gif") << QStringLiteral("a.gif") << PictureKind::Animation;
    QTest::newRow("GIF") << QStringLiteral("A.GIF") << PictureKind::Animation;
    QTest::newRow("Gif") << QStringLiteral("a.b.Gif") << PictureKind::Animation;
    QTest::newRow("animation called png") << QStringLiteral("a.gif.png") << PictureKind::Still;
    QTest::newRow("svg") << QStringLiteral("b.svg") << PictureKind::Drawing;
    QTest::newRow("SVG") << QStringLiteral("b.SVG") << PictureKind::Drawing;
    QTest::newRow("drawing called png") << QStringLiteral("b.png") << PictureKind::Unreadable;
    QTest::newRow("drawing called gif") << QStringLiteral("b.gif") << PictureKind::Unreadable;
    QTest::newRow("drawing without ending") << QStringLiteral("bsvg") << PictureKind::Unreadable;
    QTest::newRow("animation called svg") << QStringLiteral("a.svg") << PictureKind::Unreadable;
}

void TestPictureFile::theNameDecidesWhateverItsCapitals()
{
    QFETCH(QString, name);
    QFETCH(PictureKind, kind);
    const bool animated = name.startsWith(QLatin1Char('a'), Qt::CaseInsensitive);
    const QString path = file(name, animated ? SamplePictures::gif(Size, {Qt::red, Qt::green, Qt::blue})
                                             : SamplePictures::drawnQuarters(Size));
    QString reason;
    const PictureInfo info = pictureInfo(path, &reason);
    QVERIFY2(info.kind == kind, qPrintable(reason));
    QCOMPARE(readPicture(path).info.kind, kind);
    QCOMPARE(info.frames, kind == PictureKind::Animation ? 3 : 1);
    QCOMPARE(reason.isEmpty(), kind != PictureKind::Unreadable);
    QCOMPARE(readPicture(path).reason, reason);
}

void TestPictureFile::aPictureIsTurnedAsItsCameraSays()
{
    const QImage upright = quarters(QSize(30, 40));
    const QImage lying = upright.transformed(QTransform().rotate(-90));
    const QString path = file(QStringLiteral("camera.jpg"), turnedJpeg(SamplePictures::encoded(lying, "jpg")));
    QCOMPARE(pictureInfo(path).size, QSize(30, 40));
    const PictureContent picture = readPicture(path);
    QCOMPARE(picture.pixels.size(), QSize(30, 40));
    QVERIFY(SamplePictures::isQuarters(picture.pixels, 3));
}

void TestPictureFile::translucencyIsKept()
{
    QImage glass(Size, QImage::Format_ARGB32);
    glass.fill(QColor(255, 0, 0, 128));
    for (const char* format : {"png", "webp"}) {
        const QString path =
            file(QStringLiteral("glass.") + QLatin1String(format), SamplePictures::encoded(glass, format));
        QCOMPARE(readPicture(path).pixels.pixelColor(5, 5).alpha(), 128);
    }
    QImage deep(Size, QImage::Format_RGBA64);
    deep.fill(QColor(0, 0, 255, 64));
    const QImage read = readPicture(file(QStringLiteral("deep.png"), SamplePictures::encoded(deep, "png"))).pixels;
    QCOMPARE(read.depth(), 32);
    QCOMPARE(read.pixelColor(5, 5).alpha(), 64);
}

void TestPictureFile::anAnimationStandsOnItsFirstFrame()
{
    const QString path = file(QStringLiteral("a.gif"), SamplePictures::gif(Size, {Qt::blue, Qt::green}));
    const PictureContent picture = readPicture(path);
    QCOMPARE(picture.info.kind, PictureKind::Animation);
    QCOMPARE(picture.info.frames, 2);
    QCOMPARE(picture.pixels.pixelColor(0, 0), QColor(Qt::blue));
    QVERIFY(!picture.animation.isEmpty());
    // With one frame there is nothing to be played.
    const PictureContent still = readPicture(file(QStringLiteral("b.gif"), SamplePictures::gif(Size, {Qt::blue})));
    QCOMPARE(still.info.kind, PictureKind::Still);
    QVERIFY(still.animation.isEmpty());
}

void TestPictureFile::aDrawingStandsStill()
{
    const QByteArray moving =
        drawing(Size, "<rect width=\"9\" height=\"9\"><animateTransform attributeName=\"transform\" "
                      "type=\"translate\" from=\"0\" to=\"30\" dur=\"1s\" "
                      "repeatCount=\"indefinite\"/></rect>");
    const PictureContent picture = readPicture(file(QStringLiteral("moving.svg"), moving));
    QCOMPARE(picture.info.kind, PictureKind::Drawing);
    QVERIFY(picture.drawing->animated());
    QVERIFY(picture.drawing->findChildren<QObject*>().isEmpty()); // no timer
    QVERIFY(!picture.drawing->thread());
    QCOMPARE(picture.info.size, Size);
    QCOMPARE(picture.info.format, QByteArray("svg"));
}

void TestPictureFile::aDrawingMayHaveNoSize()
{
    const QString path = file(QStringLiteral("a.svg"), "<svg><rect x=\"0\" y=\"0\" width=\"40\" height=\"30\"/></svg>");
    QCOMPARE(pictureInfo(path).kind, PictureKind::Drawing);
    QCOMPARE(pictureInfo(path).size, Size); // of what is in it
    QCOMPARE(pictureInfo(file(QStringLiteral("empty.svg"), "<svg/>")).kind, PictureKind::Drawing);
}

void TestPictureFile::whatCannotBeShownSaysWhy_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("reason");
    const auto row = [](const char* name, const QByteArray& content, const char* reason) {
        QTest::newRow(name) << QString::fromLatin1(name) << content << QString::fromLatin1(reason);
    };
    const QByteArray png = quarters(Size, "png");
    constexpr QSize Bomb(60000, 60000);
    row("empty.png", "", "no picture");
    row("text.png", "hello", "no picture");
    row("cut off.png", quarters(QSize(200, 200), "png").first(60), "");
    row("damaged.png", QByteArray(png).replace(60, 20, QByteArray(20, 'x')), "");
    row("no drawing.svg", "hello", "");
    row("picture called.svg", png, "");
    row("packed drawing.svg", QByteArray::fromHex("1f8b0800000000000203b3292e4bb7b30300"), "");
    row("packed drawing.svgz", QByteArray::fromHex("1f8b0800000000000203b3292e4bb7b30300"), "");
    row("another root.svg", "<html/>", "");
    row("drawing called.png", SamplePictures::drawnQuarters(Size), "ends in .svg");
    row("bomb.png", SamplePictures::greyPng(Bomb), "too large");
    row("bomb.jpg", jpegOfScans(Bomb, 0), "too large");
    row("bomb.bmp", bmpHead(60000, 60000), "");
    row("downward bomb.bmp", bmpHead(60000, -60000), "");
    row("bomb.webp", webPHead(Bomb), "too large");
    row("bomb.gif", SamplePictures::gifOfFrames(Bomb, 1), "");
    row("33 million pixels.png", SamplePictures::greyPng(QSize(6000, 5500)), "too large");
    row("bomb called icon.ico", icon(SamplePictures::greyPng(QSize(5000, 6000))), "");
    row("100 000 frames.gif", SamplePictures::gifOfFrames(QSize(9, 9), 100000), "too many frames");
    row("5000 scans.jpg", jpegOfScans(QSize(5600, 5600), 5000), "scans");
    row("64 MiB.bmp", bmpHead(10, 10) + QByteArray(64 * 1024 * 1024, 'x'), "64 MiB");
    row("refers to itself.svg", drawing(Size, "<g id=\"a\"><use href=\"#a\"/></g>"), "itself");
    row("another file.svg", drawing(Size, "<image href=\"/etc/passwd\"/>"), "another file");
}

void TestPictureFile::whatCannotBeShownSaysWhy()
{
    QFETCH(QString, name);
    QFETCH(QByteArray, content);
    QFETCH(QString, reason);
    const QString path = file(name, content);
    const double start = cpuTime();
    const PictureContent picture = readPicture(path);
    QVERIFY(cpuTime() - start < AtOnce);
    QCOMPARE(picture.info.kind, PictureKind::Unreadable);
    QVERIFY(picture.pixels.isNull());
    QVERIFY(!picture.drawing);
    QVERIFY(!picture.reason.isEmpty());
    QVERIFY2(picture.reason.contains(reason), qPrintable(picture.reason));
}

void TestPictureFile::whatWouldTakeTooLongIsRefusedAtOnce_data()
{
    QTest::addColumn<QByteArray>("svg");
    const QByteArray full = "<rect width=\"400\" height=\"400\" fill=\"red\" fill-opacity=\"0.5\"/>";
    const QByteArray line = "<path stroke=\"black\" d=\"M0 %1L400 0\" ";
    QTest::newRow("80 000 layers") << drawing400(full.repeated(80000));
    QTest::newRow("80 000 layers in a few bytes")
        << drawing400("<g id=\"a\">" + full.repeated(80) + "</g>" + QByteArray("<use href=\"#a\"/>").repeated(950));
    QTest::newRow("30 000 lines across") << drawing400("<path d=\"" + scribble(30000, 400) + "\"/>");
    QTest::newRow("10 000 lines across, drawn")
        << drawing400("<path fill=\"none\" stroke=\"red\" d=\"" + scribble(10000, 400) + "\"/>");
    QTest::newRow("thick lines with round corners")
        << drawing400("<path fill=\"none\" stroke=\"red\" stroke-width=\"200\" stroke-linejoin=\"round\" d=\""
                      + scribble(10000, 100) + "\"/>");
    QTest::newRow("fine dashes") << drawing400(
        numbered(line + "stroke-width=\"3\" stroke-linecap=\"round\" stroke-dasharray=\"0.2 0.2\"/>", 2000));
    QTest::newRow("fine dashes of one path")
        << drawing400("<path fill=\"none\" stroke=\"black\" stroke-width=\"2\" stroke-dasharray=\"0.3\" d=\""
                      + numbered("M0 %1L400 0", 2000) + "\"/>");
    QTest::newRow("dashed letters") << drawing400(
        "<text x=\"0\" y=\"300\" font-size=\"300\" stroke=\"red\" stroke-width=\"20\" stroke-dasharray=\"0.1\">"
        + QByteArray(3000, '@') + "</text>");
    QTest::newRow("letters of a font of its own") << drawing400(
        "<defs><font id=\"f\" horiz-adv-x=\"1\"><font-face font-family=\"F\" units-per-em=\"10\"/><glyph unicode=\"a\" d=\""
        + scribble(10000, 400) + "\"/></font></defs><text y=\"10\" font-family=\"F\" font-size=\"10\">"
        + QByteArray(1000, 'a') + "</text>");
}

void TestPictureFile::whatWouldTakeTooLongIsRefusedAtOnce()
{
    QFETCH(QByteArray, svg);
    const QString path = file(QStringLiteral("a.svg"), svg);
    const double start = cpuTime();
    const PictureContent picture = readPicture(path);
    QVERIFY(cpuTime() - start < AtOnce);
    QCOMPARE(picture.info.kind, PictureKind::Unreadable);
    QVERIFY2(picture.reason.contains(QLatin1String("too long")) || picture.reason.contains(QLatin1String("elements")),
             qPrintable(picture.reason));
    QCOMPARE(pictureInfo(path).kind, PictureKind::Unreadable);
}

void TestPictureFile::whatIsElaborateIsShown_data()
{
    QTest::addColumn<QByteArray>("svg");
    QTest::newRow("a map") << drawing400(
        ("<path fill=\"#8bc\" stroke=\"#246\" stroke-linejoin=\"round\" d=\"" + scribble(500, 3) + "z\"/>")
            .repeated(50));
    QTest::newRow("300 translucent layers") << drawing400(
        QByteArray("<circle cx=\"200\" cy=\"200\" r=\"190\" fill=\"red\" fill-opacity=\"0.1\"/>").repeated(300));
    QTest::newRow("a dial of 300 lines") << drawing400(
        numbered("<path stroke=\"black\" d=\"M200 200L390 200\" transform=\"rotate(%1 200 200)\"/>", 360));
    QTest::newRow("5000 dots") << drawing400(
        numbered("<circle cx=\"%1\" cy=\"%1\" r=\"2\" fill=\"#123\" stroke=\"red\"/>", 5000));
    QTest::newRow("200 labels") << drawing400(
        numbered("<text x=\"5\" y=\"%1\" font-size=\"12\">Temperature</text>", 200));
    QTest::newRow("200 gradients") << drawing400(
        "<radialGradient id=\"g\" cx=\"0.5\" cy=\"0.5\" r=\"0.5\"><stop offset=\"0\" stop-color=\"red\"/>"
        "<stop offset=\"1\" stop-color=\"blue\"/></radialGradient>"
        + QByteArray("<rect width=\"300\" height=\"300\" fill=\"url(#g)\"/>").repeated(200));
    QTest::newRow("dashed circles") << drawing400(
        numbered("<circle cx=\"200\" cy=\"200\" r=\"%1\" fill=\"none\" stroke=\"red\" stroke-dasharray=\"6 4\"/>", 60));
    QTest::newRow("a line far beyond all bounds")
        << drawing400("<path stroke=\"black\" stroke-dasharray=\"1 1\" d=\"M-1e9 -1e9L1e9 1e9\"/>");
}

void TestPictureFile::whatIsElaborateIsShown()
{
    QFETCH(QByteArray, svg);
    const PictureContent picture = readPicture(file(QStringLiteral("a.svg"), svg));
    QVERIFY2(picture.info.kind == PictureKind::Drawing, qPrintable(picture.reason));
    // It takes no longer than was thought.
    QImage paper(1000, 1000, QImage::Format_ARGB32_Premultiplied);
    paper.fill(Qt::white);
    QPainter painter(&paper);
    const double start = cpuTime();
    picture.drawing->render(&painter, QRectF(paper.rect()));
    QVERIFY(cpuTime() - start < 5 * AtOnce);
}

void TestPictureFile::textsOfAPictureAreNotRead()
{
    // 100 texts of 8 MB each, in less than a megabyte.
    QByteArray png = quarters(Size, "png");
    const QByteArray text = packed(QByteArray(7900000, 'a'));
    for (int i = 0; i < 50; ++i) {
        png = SamplePictures::withPngChunk(png, "zTXt", QByteArray("k\0\0", 3) + text);
        png = SamplePictures::withPngChunk(png, "iTXt", QByteArray("k\0\1\0\0\0", 6) + text);
    }
    const QString path = file(QStringLiteral("a.png"), png);
    const double start = cpuTime();
    QCOMPARE(pictureInfo(path).size, Size);
    QVERIFY(SamplePictures::isQuarters(readPicture(path).pixels));
    QVERIFY(cpuTime() - start < AtOnce);
}

void TestPictureFile::onlyRegularFilesAreOpened()
{
    QString reason;
    QCOMPARE(pictureInfo(m_folder.filePath(QStringLiteral("nothing.png")), &reason).kind, PictureKind::Unreadable);
    QCOMPARE(reason, QStringLiteral("the file is missing"));
    QCOMPARE(pictureInfo(QString()).kind, PictureKind::Unreadable);
    QCOMPARE(pictureInfo(m_folder.path(), &reason).kind, PictureKind::Unreadable);
    QVERIFY(reason.contains(QLatin1String("regular")));
    // Opening it would wait for somebody who writes.
    const QString pipe = m_folder.filePath(QStringLiteral("pipe.png"));
    QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    QCOMPARE(pictureInfo(pipe, &reason).kind, PictureKind::Unreadable);
    QVERIFY(reason.contains(QLatin1String("regular")));
    QCOMPARE(readPicture(QStringLiteral("/dev/zero")).info.kind, PictureKind::Unreadable);
    QCOMPARE(readPicture(QStringLiteral("/dev/zero.svg")).info.kind, PictureKind::Unreadable);
}

QTEST_MAIN(TestPictureFile)
#include "tst_PictureFile.moc"
