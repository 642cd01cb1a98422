#include "host/common/DisplayFont.h"
#include "host/common/PaintHelper.h"
#include "host/common/TextBoxLayout.h"

#include <QImage>
#include <QPainter>
#include <QPen>
#include <QTest>
#include <QTextLayout>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Common;

namespace {
struct Box
{
    QSizeF size = QSizeF(180, 90);
    QFont font = QFont(QStringLiteral("DejaVu Sans"));
    QStringList text; ///< in parts that are changed as a whole
    int alignment = 33;
    QString style = QStringLiteral("Normal");
    QColor styleColor = Qt::red;
};

QImage blank()
{
    QImage image(200, 120, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

/** Drawn with what @p layout has kept; without one, from nothing. */
QImage painted(const Box& box, TextBoxLayout* layout = nullptr)
{
    QImage image = blank();
    QPainter painter(&image);
    painter.translate(10, 10);
    const QPen stylePen(box.styleColor);
    if (layout) {
        PaintHelper::paintTextBox(box.size, box.font, QPen(Qt::black), box.text.join(QString()), box.alignment,
                                  box.style, stylePen, &painter, layout);
    } else {
        PaintHelper::paintTextBox(box.size, box.font, QPen(Qt::black), box.text.join(QString()), box.alignment,
                                  box.style, stylePen, &painter);
    }
    return image;
}

/** A box whose text is one paragraph, drawn by one layout of all of it. */
QImage paintedWhole(const Box& box)
{
    QTextLayout layout(box.text.join(QString()), displayFont(box.font));
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    option.setAlignment(box.alignment & Qt::AlignHCenter ? Qt::AlignHCenter
                        : box.alignment & Qt::AlignRight ? Qt::AlignRight
                                                         : Qt::AlignLeft);
    layout.setTextOption(option);
    double height = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLeadingIncluded(true);
        line.setLineWidth(box.size.width());
        line.setPosition(QPointF(0, height));
        height += line.height();
    }
    layout.endLayout();
    const double space = box.size.height() - height;
    const double top = box.alignment & Qt::AlignBottom ? space : box.alignment & Qt::AlignVCenter ? 0.5 * space : 0;

    QImage image = blank();
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(10, 10);
    painter.setClipRect(QRectF(QPointF(0, 0), box.size));
    painter.setPen(Qt::black);
    layout.draw(&painter, QPointF(0, top));
    return image;
}

QString prose(int length)
{
    static const QStringList words{QStringLiteral("heat"), QStringLiteral("temperature"), QStringLiteral("of"),
                                   QStringLiteral("the"),  QStringLiteral("room,"),       QStringLiteral("21.5"),
                                   QStringLiteral("AV"),   QStringLiteral("office")};
    QString text;
    for (int i = 0; text.size() < length; ++i) {
        text += words.at((5 * i + i / 9) % words.size()) + QLatin1Char(' ');
    }
    return text.left(length);
}

/**
 * Words of several scripts, line breaks of every kind, and now and then more than one piece of a paragraph. An accent
 * keeps its letter: on others it stands where the font engine's caches have it, a fraction of a pixel here or there.
 */
QStringList someParts()
{
    static const std::vector<QString> parts{QStringLiteral("Temperature "),
                                            QStringLiteral("21.5 \u00b0C "),
                                            QStringLiteral("\n"),
                                            QStringLiteral("\r\n"),
                                            QStringLiteral("\r"),
                                            QStringLiteral("\u2028"),
                                            QStringLiteral("\u2029"),
                                            QStringLiteral("\t"),
                                            QStringLiteral(" \u05e9\u05dc\u05d5\u05dd! "),
                                            QStringLiteral("\u0645\u0631\u062d\u0628\u0627 "),
                                            QStringLiteral("e\u0301"),
                                            QStringLiteral("\U0001f600"),
                                            QStringLiteral("<b>&amp; "),
                                            QStringLiteral("Thermostateinstellungsanzeige")};
    const auto chosen = *rc::gen::container<std::vector<QString>>(rc::gen::elementOf(parts));
    QStringList result(chosen.cbegin(), chosen.cend());
    if (*rc::gen::inRange(0, 8) == 0) {
        result += prose(*rc::gen::inRange(1000, 7000)).split(QLatin1Char(','));
    }
    return result;
}

/** Somewhere in @p text something goes and something comes. */
void edit(QStringList* text)
{
    const int size = static_cast<int>(text->size());
    const int at = *rc::gen::inRange(0, size + 1);
    const int removed = *rc::gen::inRange(0, qMin(size - at, 9) + 1);
    const QStringList added = *rc::gen::element(0, 1) ? QStringList{QStringLiteral("x")} : someParts();
    *text = text->mid(0, at) + added + text->mid(at + removed);
}

/** Changes something that a user can change; the text most often. */
void change(Box* box)
{
    switch (*rc::gen::inRange(0, 14)) {
    case 0:
        box->size.setWidth(*rc::gen::inRange(1, 1800) / 10.0);
        break;
    case 1:
        box->size.setHeight(*rc::gen::inRange(1, 1000) / 10.0);
        break;
    case 2:
        box->alignment = *rc::gen::element(33, 34, 36, 65, 66, 68, 129, 130, 132);
        break;
    case 3:
        box->font.setPixelSize(*rc::gen::inRange(4, 40));
        break;
    case 4:
        box->font.setFamilies({*rc::gen::element(QStringLiteral("DejaVu Sans"), QStringLiteral("DejaVu Serif"),
                                                 QStringLiteral("No Such Family"))});
        break;
    case 5:
        box->font.setWeight(*rc::gen::element(QFont::Normal, QFont::Bold));
        box->font.setItalic(*rc::gen::arbitrary<bool>());
        box->font.setUnderline(*rc::gen::arbitrary<bool>());
        break;
    case 6:
        box->font.setLetterSpacing(QFont::AbsoluteSpacing, *rc::gen::inRange(-10, 40) / 10.0);
        box->font.setWordSpacing(*rc::gen::inRange(-10, 40) / 10.0);
        break;
    case 7:
        box->style = *rc::gen::element(QStringLiteral("Normal"), QStringLiteral("Outline"), QStringLiteral("Raised"),
                                       QStringLiteral("Sunken"));
        box->styleColor = QColor(255, 0, 0, *rc::gen::element(255, 80));
        break;
    case 8:
        box->text = someParts();
        break;
    default:
        edit(&box->text);
    }
}
} // namespace

class TestTextBoxLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void keptLinesNeverMakeAStalePicture();
    void changesAfarAreMeasuredAsFromNothing();
    void aLineBreakMayComeAndGoAnywhereInALongParagraph();
    void aLongParagraphBreaksAsInOnePiece_data();
    void aLongParagraphBreaksAsInOnePiece();
    void ofAMegabyteOnlyWhatShowsIsKept_data();
    void ofAMegabyteOnlyWhatShowsIsKept();
    void aLineWithoutEndIsBroken();
    void everyParagraphHasItsOwnDirection();
    void accentsReachIntoTheBoxFromTheLineBelowIt();
};

void TestTextBoxLayout::keptLinesNeverMakeAStalePicture()
{
    QVERIFY(rc::check("the same picture with and without what was kept", [] {
        TextBoxLayout layout;
        Box box;
        box.font.setPixelSize(13);
        box.text = someParts();
        box.alignment = *rc::gen::element(33, 68, 132);
        for (int i = 0; i < 8; ++i) {
            RC_ASSERT(painted(box, &layout) == painted(box));
            RC_ASSERT(painted(box, &layout) == painted(box));
            change(&box);
        }
    }));
}

/** A long text in which only the box's middle shows: what changes elsewhere moves it. */
void TestTextBoxLayout::changesAfarAreMeasuredAsFromNothing()
{
    QVERIFY(rc::check("the same middle, however it came about", [] {
        TextBoxLayout layout;
        Box box;
        box.size.setHeight(30);
        box.font.setPixelSize(13);
        box.alignment = *rc::gen::element(129, 66);
        for (int i = 0; i < 30; ++i) {
            box.text +=
                prose(*rc::gen::inRange(0, 300)) + *rc::gen::element(QStringLiteral("\n"), QStringLiteral("\r\n"));
        }
        for (int i = 0; i < 8; ++i) {
            RC_ASSERT(painted(box, &layout) == painted(box));
            edit(&box.text);
        }
    }));
}

void TestTextBoxLayout::aLineBreakMayComeAndGoAnywhereInALongParagraph()
{
    TextBoxLayout layout;
    Box box;
    box.font.setPixelSize(13);
    box.alignment = 68;
    // Behind the line break the first letter, and with it the direction, is another one.
    const QString text = QStringLiteral("\u05e9 ") + prose(2300);
    const QImage without = painted({box.size, box.font, {text}, box.alignment});
    for (qsizetype at = text.indexOf(QLatin1Char(' '), 1700); at > 0; at = text.indexOf(QLatin1Char(' '), at + 1)) {
        box.text = QStringList{text.left(at + 1), QStringLiteral("\n"), text.mid(at + 1)};
        QCOMPARE(painted(box, &layout), painted(box));
        box.text[1].clear();
        QCOMPARE(painted(box, &layout), without);
    }
}

void TestTextBoxLayout::aLongParagraphBreaksAsInOnePiece_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("width");
    for (int alignment : {33, 68, 130, 132}) {
        for (int width : {20, 97, 180}) {
            QTest::addRow("%d, %d pixels wide", alignment, width) << alignment << width;
        }
    }
}

void TestTextBoxLayout::aLongParagraphBreaksAsInOnePiece()
{
    QFETCH(int, alignment);
    QFETCH(int, width);
    Box box;
    box.font.setPixelSize(13);
    box.size.setWidth(width);
    box.alignment = alignment;
    for (int length : {100, 2047, 2048, 2049, 5000, 20000}) {
        for (const QString& first : {QString(), QStringLiteral("\u05e9 ")}) {
            box.text = QStringList{first, prose(length)};
            QCOMPARE(painted(box), paintedWhole(box));
        }
    }
}

void TestTextBoxLayout::ofAMegabyteOnlyWhatShowsIsKept_data()
{
    QTest::addColumn<QString>("text");
    constexpr int Megabyte = 1 << 20;
    QString paragraphs = prose(Megabyte);
    for (int i = 150; i < Megabyte; i += 150) {
        paragraphs[i] = QLatin1Char('\n');
    }
    QTest::newRow("paragraphs") << paragraphs;
    QTest::newRow("one paragraph") << prose(Megabyte);
    QTest::newRow("one word") << QString(Megabyte, QLatin1Char('w'));
    QTest::newRow("empty lines") << QString(Megabyte, QLatin1Char('\n'));
}

void TestTextBoxLayout::ofAMegabyteOnlyWhatShowsIsKept()
{
    QFETCH(QString, text);
    for (int alignment : {33, 132}) {
        TextBoxLayout layout;
        Box box;
        box.font.setPixelSize(13);
        box.alignment = alignment;
        box.text = QStringList{text};
        painted(box, &layout);
        QVERIFY(layout.keptCharacters() <= 3 * 2048);
        box.text[0].insert(text.size() / 2, QLatin1Char('x'));
        const QImage changed = painted(box, &layout);
        QVERIFY(layout.keptCharacters() <= 3 * 2048);
        QCOMPARE(changed, painted(box));
        box.text = QStringList{QStringLiteral("label")};
        painted(box, &layout);
        QCOMPARE(layout.keptCharacters(), 5);
    }
}

void TestTextBoxLayout::aLineWithoutEndIsBroken()
{
    // Accents on one letter have no width of their own: nothing else would end the line.
    TextBoxLayout layout;
    Box box;
    box.size = QSizeF(180, 20);
    box.font.setPixelSize(40);
    box.text = QStringList{QStringLiteral("e"), QString(150000, QChar(0x301))};
    painted(box, &layout);
    QVERIFY(layout.keptCharacters() <= 2 * 65536);
}

void TestTextBoxLayout::everyParagraphHasItsOwnDirection()
{
    Box box;
    box.font.setPixelSize(20);
    const QString greeting = QStringLiteral("\u05e9\u05dc\u05d5\u05dd!");
    box.text = QStringList{greeting};
    const QImage alone = painted(box);
    QVERIFY(alone != blank());
    const int line = qCeil(QFontMetricsF(displayFont(box.font)).height());
    for (const char* lineBreak : {"\n", "\r", "\r\n", "\u2028", "\u2029"}) {
        const QString end = QString::fromUtf8(lineBreak);
        box.text = QStringList{QStringLiteral("abc"), end, greeting, end, QStringLiteral("(1)")};
        QCOMPARE(painted(box).copy(10, 10 + line, 180, line), alone.copy(10, 10, 180, line));
    }
}

void TestTextBoxLayout::accentsReachIntoTheBoxFromTheLineBelowIt()
{
    Box box;
    box.font.setPixelSize(40);
    const QFontMetricsF metrics(displayFont(box.font));
    const QString tall = QStringLiteral("\u1eaa");
    QVERIFY(-metrics.tightBoundingRect(tall).top() > metrics.ascent() + 1);
    box.size.setHeight(qCeil(metrics.height())); // one line
    box.text = QStringList{QStringLiteral(" \n"), tall};
    QVERIFY(painted(box) != blank());
    box.alignment = 66;
    box.text = QStringList{tall, QStringLiteral("\n ")};
    QCOMPARE(painted(box), blank());
}

QTEST_MAIN(TestTextBoxLayout)
#include "tst_TextBoxLayout.moc"
