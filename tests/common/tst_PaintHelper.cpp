#include "host/common/PaintHelper.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <QTest>

#include <functional>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Common;

namespace {
const QColor Orange(248, 151, 29);

/** What @p paint draws on a transparent picture, with (0, 0) at (@p margin, @p margin). */
QImage painted(const std::function<void(QPainter*)>& paint, int margin = 20, const QSize& size = QSize(160, 160))
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(margin, margin);
    paint(&painter);
    return image;
}

/** The rectangle around every pixel whose alpha is above @p faintest. */
QRect inkedRect(const QImage& image, int faintest = 0)
{
    QRect rect;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > faintest) {
                rect |= QRect(x, y, 1, 1);
            }
        }
    }
    return rect;
}

QPen border(int width, const QColor& color = Qt::black)
{
    return QPen(color, width);
}

using Paint = std::function<void(QPainter*)>;

std::vector<Paint> everyOperation()
{
    const QPolygonF triangle({QPointF(0, 0), QPointF(50, 0), QPointF(0, 50)});
    return {
        [](QPainter* p) { PaintHelper::paintRectangle(QSizeF(50, 40), 5, border(3), Orange, p); },
        [](QPainter* p) { PaintHelper::paintEllipse(QSizeF(50, 40), border(3), Orange, p); },
        [](QPainter* p) { PaintHelper::paintPolygon(50, 5, border(3), Orange, p); },
        [=](QPainter* p) { PaintHelper::paintIrregularPolygon(triangle, Orange, p); },
        [](QPainter* p) { PaintHelper::paintDot(QPointF(20, 20), 10, Orange, p); },
        [](QPainter* p) {
            PaintHelper::paintTextBox(QSizeF(60, 40), QFont(), QPen(Qt::black), QStringLiteral("Text"), 33,
                                      QStringLiteral("Outline"), QPen(QColor(255, 0, 0, 100)), p);
        },
        [=](QPainter* p) { PaintHelper::paintGradientItem(triangle, QLinearGradient(0, 0, 100, 100), p); },
        [=](QPainter* p) { PaintHelper::paintGradientItem(triangle, QRadialGradient(25, 25, 20), p); },
        [=](QPainter* p) { PaintHelper::paintGradientItem(triangle, QConicalGradient(50, 50, 30), p); },
        [](QPainter* p) {
            QStyleOptionGraphicsItem option;
            option.state = QStyle::State_Selected;
            PaintHelper::paintHighlightSelected(QRectF(0, 0, 50, 50), p, &option);
        },
    };
}
} // namespace

class TestPaintHelper : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void boundingRectGrowsByHalfTheBorderOnEachSide();
    void paintingStaysInsideItsBoundingRect();
    void painterComesBackAsItCame();
    void borderIsCentredOnTheOutline();
    void sharpRectangleHasSharpOuterCorners();
    void cornerRadiusIsLimitedToHalfTheSmallerSide();
    void penOrBrushThatDoesNotCountIsNotDrawn();
    void emptySizesDrawNothing();
    void ellipseTouchesItsSides();
    void polygonReturnsItsOutlineAndMitresItsCorners();
    void crossedPolygonIsFilledByTheOddEvenRule();
    void dotHasItsDiameter();
    void contrastTurnsEveryChannel();
    void selectionFrameOnlyWhenSelected();
    void selectionFrameIsOneDevicePixelWideAndTwoColoured();
};

void TestPaintHelper::boundingRectGrowsByHalfTheBorderOnEachSide()
{
    QCOMPARE(PaintHelper::getBoundingRect(100, 75, 0), QRectF(0, 0, 100, 75));
    QCOMPARE(PaintHelper::getBoundingRect(100, 75, 3), QRectF(-1.5, -1.5, 103, 78));
    QCOMPARE(PaintHelper::getBoundingRect(100, 75, -2), QRectF(0, 0, 100, 75));
}

void TestPaintHelper::paintingStaysInsideItsBoundingRect()
{
    QVERIFY(rc::check("no ink outside, ink at every side", [] {
        const int width = *rc::gen::inRange(1, 60);
        const int edges = *rc::gen::inRange(3, 21);
        const QSizeF size(*rc::gen::inRange(50, 400) / 10.0, *rc::gen::inRange(50, 400) / 10.0);
        const int shape = *rc::gen::inRange(0, 3);
        const double length = *rc::gen::inRange(10, 60) / 3.0;
        const QImage image = painted(
            [&](QPainter* painter) {
                if (shape == 0) {
                    PaintHelper::paintRectangle(size, *rc::gen::inRange(0, 20), border(width), Orange, painter);
                } else if (shape == 1) {
                    PaintHelper::paintEllipse(size, border(width), Orange, painter);
                } else {
                    PaintHelper::paintPolygon(length, edges, border(width), Orange, painter);
                }
            },
            100, QSize(400, 400));
        const QRectF bounds = shape < 2 ? PaintHelper::getBoundingRect(size.width(), size.height(), width)
                                        : PaintHelper::getPolygonBoundingRect(edges, length, width);
        const QRect allowed = bounds.translated(100, 100).toAlignedRect();
        // The rasterizer's arcs may leave a breath of ink in the next pixel.
        const QRect inked = inkedRect(image, 8);
        RC_ASSERT(allowed.contains(inked));
        RC_ASSERT(inked.width() >= allowed.width() - 4);
        RC_ASSERT(inked.height() >= allowed.height() - 6);
    }));
}

void TestPaintHelper::painterComesBackAsItCame()
{
    for (const Paint& paint : everyOperation()) {
        QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing, false);
        painter.setPen(QPen(Qt::green, 7));
        painter.setBrush(Qt::blue);
        painter.setOpacity(0.5);
        painter.rotate(3);
        const QTransform transform = painter.transform();
        paint(&painter);
        QVERIFY(!painter.testRenderHint(QPainter::Antialiasing));
        QVERIFY(!painter.testRenderHint(QPainter::TextAntialiasing));
        QCOMPARE(painter.pen(), QPen(Qt::green, 7));
        QCOMPARE(painter.brush(), QBrush(Qt::blue));
        QCOMPARE(painter.opacity(), 0.5);
        QCOMPARE(painter.transform(), transform);
        QVERIFY(!painter.hasClipping());
    }
}

void TestPaintHelper::borderIsCentredOnTheOutline()
{
    const QImage image =
        painted([](QPainter* p) { PaintHelper::paintRectangle(QSizeF(50, 40), 0, border(4), Orange, p); });
    QCOMPARE(inkedRect(image), QRect(18, 18, 54, 44));
    QCOMPARE(image.pixelColor(18, 18), QColor(Qt::black));
    QCOMPARE(image.pixelColor(21, 30), QColor(Qt::black));
    QCOMPARE(image.pixelColor(22, 30), Orange);
}

void TestPaintHelper::sharpRectangleHasSharpOuterCorners()
{
    const QImage image =
        painted([](QPainter* p) { PaintHelper::paintRectangle(QSizeF(50, 40), 0, border(20), Qt::NoBrush, p); });
    QCOMPARE(image.pixelColor(10, 10), QColor(Qt::black));
    QCOMPARE(image.pixelColor(79, 69), QColor(Qt::black));
}

void TestPaintHelper::cornerRadiusIsLimitedToHalfTheSmallerSide()
{
    const auto rectangle = [](int radius) {
        return painted(
            [radius](QPainter* p) { PaintHelper::paintRectangle(QSizeF(60, 40), radius, border(2), Orange, p); });
    };
    QCOMPARE(rectangle(20), rectangle(100));
    QVERIFY(rectangle(20) != rectangle(19));
    QCOMPARE(rectangle(0), rectangle(-5));
    QCOMPARE(qAlpha(rectangle(20).pixel(20, 20)), 0);
}

void TestPaintHelper::penOrBrushThatDoesNotCountIsNotDrawn()
{
    QVERIFY(PaintHelper::penCounts(border(1)));
    QVERIFY(!PaintHelper::penCounts(border(0)));
    QVERIFY(!PaintHelper::penCounts(border(3, QColor())));
    QVERIFY(!PaintHelper::penCounts(QPen(Qt::NoPen)));

    const auto ink = [](const QPen& pen, const QBrush& brush) {
        return inkedRect(painted([&](QPainter* p) { PaintHelper::paintEllipse(QSizeF(50, 40), pen, brush, p); }));
    };
    QCOMPARE(ink(border(0), Orange), QRect(20, 20, 50, 40));
    QCOMPARE(ink(border(4, QColor()), Orange), QRect(20, 20, 50, 40));
    QCOMPARE(ink(border(0), QColor()), QRect());
    QCOMPARE(ink(border(4), QColor()), QRect(18, 18, 54, 44));
}

void TestPaintHelper::emptySizesDrawNothing()
{
    const QImage image = painted([](QPainter* p) {
        for (const QSizeF& size : {QSizeF(0, 10), QSizeF(10, 0), QSizeF(-5, 10), QSizeF(qQNaN(), 10)}) {
            PaintHelper::paintRectangle(size, 0, border(4), Orange, p);
            PaintHelper::paintEllipse(size, border(4), Orange, p);
            PaintHelper::paintTextBox(size, QFont(), QPen(Qt::black), QStringLiteral("Text"), 33, QString(), QPen(), p);
        }
        PaintHelper::paintIrregularPolygon(QPolygonF(), Orange, p);
        PaintHelper::paintDot(QPointF(), 0, Orange, p);
        PaintHelper::paintGradientItem(QPolygonF(), QLinearGradient(0, 0, 100, 100), p);
        if (!PaintHelper::paintPolygon(0, 3, border(4), Orange, p).isEmpty()
            || !PaintHelper::paintPolygon(10, 2, border(4), Orange, p).isEmpty()) {
            QFAIL("no polygon is drawn");
        }
    });
    QCOMPARE(inkedRect(image), QRect());
}

void TestPaintHelper::ellipseTouchesItsSides()
{
    const QImage image = painted([](QPainter* p) { PaintHelper::paintEllipse(QSizeF(100, 60), border(0), Orange, p); });
    QCOMPARE(inkedRect(image), QRect(20, 20, 100, 60));
    QCOMPARE(image.pixelColor(70, 50), Orange);
    QCOMPARE(qAlpha(image.pixel(22, 22)), 0);
}

void TestPaintHelper::polygonReturnsItsOutlineAndMitresItsCorners()
{
    QPolygonF outline;
    const QImage image =
        painted([&](QPainter* p) { outline = PaintHelper::paintPolygon(60, 3, border(10), Orange, p); });
    QCOMPARE(outline.size(), 3);
    QCOMPARE(outline.boundingRect().topLeft(), QPointF(0, 0));
    QCOMPARE(outline.boundingRect().width(), 60.0);
    const QRectF bounds = PaintHelper::getPolygonBoundingRect(3, 60, 10).translated(20, 20);
    // The tip of a mitre fades out: its last two rows hold hardly any ink.
    QVERIFY(qAbs(inkedRect(image).top() - bounds.top()) < 3);
    QVERIFY(qAbs(inkedRect(image).left() - bounds.left()) < 3);
}

void TestPaintHelper::crossedPolygonIsFilledByTheOddEvenRule()
{
    QPolygonF star;
    for (int i = 0; i < 5; ++i) {
        const double angle = 4 * M_PI * i / 5;
        star.append(QPointF(50 + 50 * std::sin(angle), 50 - 50 * std::cos(angle)));
    }
    const QImage image = painted([&](QPainter* p) { PaintHelper::paintIrregularPolygon(star, Orange, p); });
    QCOMPARE(qAlpha(image.pixel(70, 70)), 0);
    QCOMPARE(image.pixelColor(70, 35), Orange);
}

void TestPaintHelper::dotHasItsDiameter()
{
    const QImage image = painted([](QPainter* p) { PaintHelper::paintDot(QPointF(30, 30), 10, Qt::red, p); });
    QCOMPARE(inkedRect(image), QRect(45, 45, 10, 10));
    QCOMPARE(image.pixelColor(50, 50), QColor(Qt::red));
}

void TestPaintHelper::contrastTurnsEveryChannel()
{
    QCOMPARE(PaintHelper::contrastColor(Orange), QColor(0, 0, 255));
    QCOMPARE(PaintHelper::contrastColor(QColor(127, 128, 0, 10)), QColor(255, 0, 255, 255));
}

void TestPaintHelper::selectionFrameOnlyWhenSelected()
{
    QStyleOptionGraphicsItem option;
    const auto frame = [&option](bool withOption) {
        return inkedRect(painted([&](QPainter* p) {
            PaintHelper::paintHighlightSelected(QRectF(0, 0, 50, 40), p, withOption ? &option : nullptr);
        }));
    };
    QCOMPARE(frame(true), QRect());
    QCOMPARE(frame(false), QRect());
    option.state = QStyle::State_Selected;
    QCOMPARE(frame(true), QRect(20, 20, 51, 41));
}

void TestPaintHelper::selectionFrameIsOneDevicePixelWideAndTwoColoured()
{
    QStyleOptionGraphicsItem option;
    option.state = QStyle::State_Selected;
    for (double scale : {0.5, 1.0, 2.0}) {
        QImage image(300, 300, QImage::Format_ARGB32_Premultiplied);
        image.setDevicePixelRatio(scale > 1 ? 2 : 1);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.translate(10, 10);
        painter.scale(scale, scale);
        PaintHelper::paintHighlightSelected(QRectF(0, 0, 60, 40), &painter, &option);
        painter.end();
        const QRect frame = inkedRect(image);
        int black = 0;
        int white = 0;
        const int first = frame.left() + 2;
        const int last = frame.right() - 2;
        for (int x = first; x <= last; ++x) {
            black += image.pixelColor(x, frame.top()) == QColor(Qt::black);
            white += image.pixelColor(x, frame.top()) == QColor(Qt::white);
            QCOMPARE(qAlpha(image.pixel(x, frame.top() + 1)), 0);
        }
        QVERIFY(black > 5 && white > 5);
        QCOMPARE(black + white, last - first + 1);
    }
}

QTEST_MAIN(TestPaintHelper)
#include "tst_PaintHelper.moc"
