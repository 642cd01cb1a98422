#include "host/common/DisplayFont.h"
#include "host/common/PaintHelper.h"

#include <QFontDatabase>
#include <QImage>
#include <QPainter>
#include <QTest>

using namespace Korvex::Meridane::Common;

namespace {
constexpr int Margin = 10;

struct Box
{
    QSizeF size = QSizeF(160, 100);
    QFont font;
    QPen pen = QPen(Qt::black);
    QString text = QStringLiteral("Text");
    int alignment = 33;
    QString style = QStringLiteral("Normal");
    QPen stylePen = QPen(Qt::red);
};

Box box(int pixelSize = 20)
{
    Box result;
    result.font = QFont(QStringLiteral("DejaVu Sans"));
    result.font.setPixelSize(pixelSize);
    return result;
}

QImage painted(const Box& box, double pixelRatio = 1, double opacity = 1)
{
    QImage image((QSizeF(200, 140) * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(Margin, Margin);
    painter.setOpacity(opacity);
    PaintHelper::paintTextBox(box.size, box.font, box.pen, box.text, box.alignment, box.style, box.stylePen, &painter);
    return image;
}

/** The rectangle around every pixel that is not white. */
QRect inkedRect(const QImage& image)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) != 0xffffffff) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

int reddish(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            count += color.red() > color.green() + 40;
        }
    }
    return count;
}
} // namespace

class TestPaintHelperText : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pointsBecomePixelsTheSameOnEveryMachine();
    void displayFontsAreNeitherHintedNorOnSubpixels();
    void alignmentMovesTheText_data();
    void alignmentMovesTheText();
    void unknownAlignmentIsTopLeft();
    void linesBreakAtTheBoxWidth();
    void longWordsBreakInside();
    void everyKindOfLineBreakStartsALine();
    void nothingIsDrawnOutsideTheBox();
    void raisedAndSunkenLieBelowAndAbove();
    void outlineSurroundsTheLetters();
    void unknownStyleIsPlain();
    void translucentOutlineIsOneShade();
    void colourAndDecorationAreDrawn();
    void markupIsShownAsItStands();
    void zoomKeepsTheLineBreaks();
    void weightsAreNormalOrBold();
    void theApplicationsOwnFontPlaysNoPart();
    void theSameTextLooksTheSameAllOverTheDevice_data();
    void theSameTextLooksTheSameAllOverTheDevice();
    void theGroundMakesNoDifference_data();
    void theGroundMakesNoDifference();
};

void TestPaintHelperText::pointsBecomePixelsTheSameOnEveryMachine()
{
    QCOMPARE(pixelsFromPoints(24), 32);
    QCOMPARE(pixelsFromPoints(10), 13);
    QCOMPARE(pixelsFromPoints(0), 1);
    QFont font;
    font.setPointSizeF(24);
    QCOMPARE(fontPixelSize(font), 32);
    font.setPixelSize(17);
    QCOMPARE(fontPixelSize(font), 17);

    Box inPoints = box();
    inPoints.font.setPointSize(24);
    QCOMPARE(painted(inPoints), painted(box(32)));
}

void TestPaintHelperText::displayFontsAreNeitherHintedNorOnSubpixels()
{
    QFont font(QStringLiteral("DejaVu Sans"), 24, QFont::Bold, true);
    font.setLetterSpacing(QFont::AbsoluteSpacing, 2);
    const QFont shown = displayFont(font);
    QCOMPARE(shown.pixelSize(), 32);
    QCOMPARE(shown.hintingPreference(), QFont::PreferNoHinting);
    QVERIFY(shown.styleStrategy() & QFont::NoSubpixelAntialias);
    QCOMPARE(shown.weight(), static_cast<int>(QFont::Bold));
    QVERIFY(shown.italic());
    QCOMPARE(shown.letterSpacing(), 2.0);
}

void TestPaintHelperText::alignmentMovesTheText_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("column");
    QTest::addColumn<int>("row");
    QTest::newRow("33") << 33 << 0 << 0;
    QTest::newRow("34") << 34 << 2 << 0;
    QTest::newRow("36") << 36 << 1 << 0;
    QTest::newRow("65") << 65 << 0 << 2;
    QTest::newRow("66") << 66 << 2 << 2;
    QTest::newRow("68") << 68 << 1 << 2;
    QTest::newRow("129") << 129 << 0 << 1;
    QTest::newRow("130") << 130 << 2 << 1;
    QTest::newRow("132") << 132 << 1 << 1;
}

void TestPaintHelperText::alignmentMovesTheText()
{
    QFETCH(int, alignment);
    QFETCH(int, column);
    QFETCH(int, row);
    Box aligned = box();
    aligned.alignment = alignment;
    const QRect ink = inkedRect(painted(aligned));
    const double spaceBefore = ink.left() - Margin;
    const double spaceAfter = Margin + aligned.size.width() - ink.right() - 1;
    QCOMPARE(spaceBefore < 4, column == 0);
    QCOMPARE(spaceAfter < 4, column == 2);
    QCOMPARE(qAbs(spaceBefore - spaceAfter) < 4, column == 1);
    const double above = ink.top() - Margin;
    const double below = Margin + aligned.size.height() - ink.bottom() - 1;
    QCOMPARE(above < 8, row == 0);
    QCOMPARE(below < 8, row == 2);
    QCOMPARE(qAbs(above - below) < 8, row == 1);
}

void TestPaintHelperText::unknownAlignmentIsTopLeft()
{
    Box unknown = box();
    unknown.alignment = 0;
    QCOMPARE(painted(unknown), painted(box()));
    unknown.alignment = 40;
    QCOMPARE(painted(unknown), painted(box()));
}

void TestPaintHelperText::linesBreakAtTheBoxWidth()
{
    Box wide = box();
    wide.text = QStringLiteral("one two three four");
    Box narrow = wide;
    narrow.size.setWidth(60);
    QVERIFY(inkedRect(painted(narrow)).height() > 2 * inkedRect(painted(wide)).height());
    QVERIFY(inkedRect(painted(narrow)).right() < Margin + 60);
}

void TestPaintHelperText::longWordsBreakInside()
{
    Box narrow = box();
    narrow.text = QStringLiteral("Thermostateinstellung");
    narrow.size.setWidth(60);
    Box first = narrow;
    first.text = QStringLiteral("Ther");
    QVERIFY(inkedRect(painted(narrow)).height() > 2 * inkedRect(painted(first)).height());
}

void TestPaintHelperText::everyKindOfLineBreakStartsALine()
{
    Box lines = box();
    lines.text = QStringLiteral("a\nb");
    const QImage expected = painted(lines);
    QVERIFY(inkedRect(expected).height() > 30);
    for (const char* text : {"a\r\nb", "a\rb"}) {
        lines.text = QString::fromLatin1(text);
        QCOMPARE(painted(lines), expected);
    }
}

void TestPaintHelperText::nothingIsDrawnOutsideTheBox()
{
    for (const char* style : {"Normal", "Outline", "Raised", "Sunken"}) {
        for (int alpha : {255, 90}) {
            Box small = box(60);
            small.text = QStringLiteral("WWW\nWWW\nWWW");
            small.size = QSizeF(50, 40);
            small.alignment = 132;
            small.style = QString::fromLatin1(style);
            small.stylePen = QPen(QColor(255, 0, 0, alpha));
            const QRect ink = inkedRect(painted(small));
            QVERIFY(!ink.isEmpty());
            QVERIFY(QRect(Margin, Margin, 50, 40).contains(ink));
        }
    }
}

void TestPaintHelperText::raisedAndSunkenLieBelowAndAbove()
{
    const QRect plain = inkedRect(painted(box()));
    Box styled = box();
    styled.style = QStringLiteral("Raised");
    const QImage raised = painted(styled);
    QCOMPARE(inkedRect(raised), plain.adjusted(0, 0, 0, 1));
    QVERIFY(reddish(raised) > 0);
    styled.style = QStringLiteral("Sunken");
    const QImage sunken = painted(styled);
    QCOMPARE(inkedRect(sunken), plain.adjusted(0, -1, 0, 0));
    QVERIFY(reddish(sunken) > 0);
}

void TestPaintHelperText::outlineSurroundsTheLetters()
{
    Box styled = box();
    styled.style = QStringLiteral("Outline");
    styled.alignment = 132;
    Box plain = box();
    plain.alignment = 132;
    QCOMPARE(inkedRect(painted(styled)), inkedRect(painted(plain)).adjusted(-1, -1, 1, 1));
}

void TestPaintHelperText::unknownStyleIsPlain()
{
    Box styled = box();
    for (const char* style : {"Normal", "Standard", "outline", ""}) {
        styled.style = QString::fromLatin1(style);
        QCOMPARE(painted(styled), painted(box()));
    }
    styled.style = QStringLiteral("Outline");
    styled.stylePen = QPen(QColor());
    QCOMPARE(painted(styled), painted(box()));
}

void TestPaintHelperText::translucentOutlineIsOneShade()
{
    for (double pixelRatio : {1.0, 2.0}) {
        for (double opacity : {1.0, 0.5}) {
            Box opaque = box(40);
            opaque.style = QStringLiteral("Outline");
            opaque.pen = QPen(QColor());
            opaque.stylePen = QPen(QColor(255, 0, 0));
            Box translucent = opaque;
            translucent.stylePen = QPen(QColor(255, 0, 0, 51));
            // The shade is that of the opaque one, at a fifth of its strength, everywhere.
            const QImage strong = painted(opaque, pixelRatio);
            const QImage weak = painted(translucent, pixelRatio, opacity);
            QVERIFY(reddish(strong) > 100);
            for (int y = 0; y < weak.height(); ++y) {
                for (int x = 0; x < weak.width(); ++x) {
                    const double expected = 255 - (255 - strong.pixelColor(x, y).green()) * 0.2 * opacity;
                    QVERIFY(qAbs(weak.pixelColor(x, y).green() - expected) < 3);
                }
            }
        }
    }
}

void TestPaintHelperText::colourAndDecorationAreDrawn()
{
    Box coloured = box();
    coloured.pen = QPen(Qt::red);
    QVERIFY(reddish(painted(coloured)) > 0);
    Box underlined = box();
    underlined.font.setUnderline(true);
    QVERIFY(painted(underlined) != painted(box()));
    Box empty = box();
    empty.text.clear();
    QVERIFY(inkedRect(painted(empty)).isEmpty());
}

void TestPaintHelperText::markupIsShownAsItStands()
{
    Box markup = box();
    markup.text = QStringLiteral("<b>b</b> &amp; %1");
    Box letter = box();
    letter.text = QStringLiteral("b &");
    QVERIFY(inkedRect(painted(markup)).width() > 3 * inkedRect(painted(letter)).width());
}

void TestPaintHelperText::zoomKeepsTheLineBreaks()
{
    Box text = box(13);
    text.text = QStringLiteral("The quick brown fox jumps over the lazy dog and on and on");
    for (int width = 40; width < 160; width += 7) {
        text.size.setWidth(width);
        const QRect normal = inkedRect(painted(text));
        const QRect zoomed = inkedRect(painted(text, 2));
        QVERIFY(qAbs(zoomed.height() / 2.0 - normal.height()) < 2.1);
        QVERIFY(qAbs(zoomed.width() / 2.0 - normal.width()) < 2.1);
    }
}

void TestPaintHelperText::weightsAreNormalOrBold()
{
    QFont font(QStringLiteral("DejaVu Sans"));
    for (int weight : {100, 300, 400, 500}) {
        font.setWeight(static_cast<QFont::Weight>(weight));
        QCOMPARE(displayFont(font).weight(), QFont::Normal);
    }
    for (int weight : {501, 600, 700, 900}) {
        font.setWeight(static_cast<QFont::Weight>(weight));
        QCOMPARE(displayFont(font).weight(), QFont::Bold);
    }
}

void TestPaintHelperText::theApplicationsOwnFontPlaysNoPart()
{
    const QFont before = QGuiApplication::font();
    QFont odd(QStringLiteral("DejaVu Serif"), 31, QFont::Bold, true);
    odd.setLetterSpacing(QFont::AbsoluteSpacing, 4);
    odd.setStyleHint(QFont::Monospace);
    for (const char* family : {"DejaVu Sans", "No Such Family", ""}) {
        Box text = box();
        text.font.setFamilies({QString::fromLatin1(family)});
        const QImage usual = painted(text);
        QGuiApplication::setFont(odd);
        text.font = QFont();
        text.font.setFamilies({QString::fromLatin1(family)});
        text.font.setPixelSize(20);
        text.font.setWeight(QFont::Normal);
        text.font.setItalic(false);
        text.font.setLetterSpacing(QFont::PercentageSpacing, 0);
        const QImage unusual = painted(text);
        QGuiApplication::setFont(before);
        QCOMPARE(unusual, usual);
    }
}

void TestPaintHelperText::theSameTextLooksTheSameAllOverTheDevice_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<QPointF>("fraction");
    for (const char* style : {"Normal", "Outline", "Raised", "Sunken"}) {
        for (const QPointF& fraction :
             {QPointF(0.1, 0.7), QPointF(0.4, 0.5), QPointF(0.77, 0.99), QPointF(0.249, 0.001)}) {
            QTest::addRow("%s at %g, %g", style, fraction.x(), fraction.y()) << QString::fromLatin1(style) << fraction;
        }
    }
}

void TestPaintHelperText::theSameTextLooksTheSameAllOverTheDevice()
{
    QFETCH(QString, style);
    QFETCH(QPointF, fraction);
    for (int pixelSize = 7; pixelSize < 40; ++pixelSize) {
        Box text = box(pixelSize);
        text.text = QStringLiteral("lilo \u05e9\u05dc Ag");
        text.style = style;
        // The device shows the box from one of its own pixels on: the box begins where it shows, or left of and above it.
        const auto from = [&](const QPoint& pixel) {
            QImage image(200, 140, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::white);
            QPainter painter(&image);
            painter.translate(fraction - pixel);
            PaintHelper::paintTextBox(text.size, text.font, text.pen, text.text, text.alignment, text.style,
                                      text.stylePen, &painter);
            return image;
        };
        const QPoint shift(23, 9);
        QCOMPARE(from(shift).copy(0, 0, 170, 130), from(QPoint(0, 0)).copy(shift.x(), shift.y(), 170, 130));
        QCOMPARE(from(-shift).copy(shift.x(), shift.y(), 170, 130), from(QPoint(0, 0)).copy(0, 0, 170, 130));
    }
}

void TestPaintHelperText::theGroundMakesNoDifference_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("style");
    for (const char* family : {"DejaVu Sans", "Panel Segments"}) {
        for (const char* style : {"Normal", "Outline", "Raised"}) {
            QTest::addRow("%s, %s", family, style) << QString::fromLatin1(family) << QString::fromLatin1(style);
        }
    }
}

/** A display draws a text on a transparent ground of its own, which is then laid over the screen. */
void TestPaintHelperText::theGroundMakesNoDifference()
{
    QFETCH(QString, family);
    QFETCH(QString, style);
    const int handle = addFontFile(QStringLiteral(MERIDANE_FONT));
    for (const QColor& color : {QColor(Qt::black), QColor(Qt::white), QColor(200, 40, 90, 120)}) {
        for (const QColor& ground : {QColor(Qt::white), QColor(16, 24, 38)}) {
            Box text = box();
            text.font.setFamilies({family});
            text.pen = QPen(color);
            text.style = style;
            text.stylePen = QPen(QColor(255, 140, 0, 160));
            const auto drawn = [&](const QColor& fill) {
                QImage image(160, 40, QImage::Format_ARGB32_Premultiplied);
                image.fill(fill);
                QPainter painter(&image);
                PaintHelper::paintTextBox(text.size, text.font, text.pen, text.text, text.alignment, text.style,
                                          text.stylePen, &painter);
                return image;
            };
            QImage laidOver(160, 40, QImage::Format_ARGB32_Premultiplied);
            laidOver.fill(ground);
            QPainter(&laidOver).drawImage(0, 0, drawn(Qt::transparent));
            const QImage straight = drawn(ground);
            for (int y = 0; y < straight.height(); ++y) {
                for (int x = 0; x < straight.width(); ++x) {
                    const QColor a = straight.pixelColor(x, y);
                    const QColor b = laidOver.pixelColor(x, y);
                    QVERIFY(qAbs(a.red() - b.red()) <= 2 && qAbs(a.green() - b.green()) <= 2
                            && qAbs(a.blue() - b.blue()) <= 2);
                }
            }
        }
    }
    QFontDatabase::removeApplicationFont(handle);
}

QTEST_MAIN(TestPaintHelperText)
#include "tst_PaintHelperText.moc"
