#include "host/common/PolygonFill.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtTest/QTest>

#include <cmath>
#include <functional>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
constexpr int Side = 160;

/** What is filled by one of the two functions. */
using Fill = std::function<void(const QPolygonF&, QPainter*)>;

void fillByQt(const QPolygonF& polygon, QPainter* painter)
{
    painter->drawPolygon(polygon, Qt::OddEvenFill);
}

QImage picture(const Fill& fill, const QPolygonF& polygon, const std::function<void(QPainter*)>& prepare = {},
               double pixelRatio = 1)
{
    QImage image(QSize(Side, Side) * pixelRatio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelRatio);
    image.fill(QColor(250, 250, 255));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(20, 40, 160));
    if (prepare) {
        prepare(&painter);
    }
    fill(polygon, &painter);
    return image;
}

/** The greatest difference of a channel. */
int difference(const QImage& a, const QImage& b)
{
    int largest = a.size() == b.size() ? 0 : 255;
    for (int y = 0; y < a.height() && largest < 255; ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb first = a.pixel(x, y);
            const QRgb second = b.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(first) - qRed(second)), std::abs(qGreen(first) - qGreen(second)),
                                std::abs(qBlue(first) - qBlue(second))});
        }
    }
    return largest;
}

/** @p count teeth that hang down from the upper side of @p rect; tooth and gap are equally wide. */
QPolygonF comb(const QRectF& rect, int count)
{
    QPolygonF points;
    const double half = 0.5 * rect.width() / count;
    for (int i = 0; i < count; ++i) {
        const double x = rect.x() + 2 * half * i;
        points << QPointF(x, rect.top()) << QPointF(x, rect.bottom()) << QPointF(x + half, rect.bottom())
               << QPointF(x + half, rect.top());
    }
    return points;
}

/** A polygon of long edges that cross each other: with some hundred points too heavy for QPainter. */
QPolygonF tangle(int count, double reach = Side)
{
    QPolygonF points;
    for (int i = 0; i < count; ++i) {
        points << 0.5 * reach * QPointF(1 + std::sin(i * 2.5) * std::cos(i * 0.01), 1 + std::cos(i * 2.5));
    }
    return points;
}
} // namespace

class TestPolygonFill : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFewPointsAreFilledAsByThePainter();
    void manyPointsLookAlike_data();
    void manyPointsLookAlike();
    void thePainterIsLeftAsItWas();
    void aPartlyCoveredPixelHasItsShare_data();
    void aPartlyCoveredPixelHasItsShare();
    void moreThan65535PointsAreFilled();
    void whatIsOutOfSightCostsNothing();
    void whatCannotBeFilledIsNot_data();
    void whatCannotBeFilledIsNot();
};

void TestPolygonFill::aFewPointsAreFilledAsByThePainter()
{
    QVERIFY(rc::check("any polygon of up to 20 points", [] {
        QPolygonF polygon;
        for (int i = *rc::gen::inRange(0, 21); i > 0; --i) {
            polygon << QPointF(*rc::gen::inRange(-2000, 18000), *rc::gen::inRange(-2000, 18000)) / 100;
        }
        RC_ASSERT(picture(Common::fillPolygon, polygon) == picture(fillByQt, polygon));
    }));
}

void TestPolygonFill::manyPointsLookAlike_data()
{
    QTest::addColumn<std::function<void(QPainter*)>>("prepare");
    QTest::addColumn<double>("pixelRatio");
    const auto row = [](const char* name, const std::function<void(QPainter*)>& prepare, double pixelRatio = 1) {
        QTest::newRow(name) << prepare << pixelRatio;
    };
    row("plain", [](QPainter*) {});
    row(
        "two pixels a unit", [](QPainter*) {}, 2);
    row("moved by a fraction", [](QPainter* painter) { painter->translate(20.3, -10.7); });
    row(
        "moved on two pixels a unit", [](QPainter* painter) { painter->translate(20.3, -10.7); }, 2);
    row("turned", [](QPainter* painter) { painter->rotate(30); });
    row("scaled", [](QPainter* painter) { painter->scale(0.6, 1.7); });
    row("mirrored and skewed", [](QPainter* painter) {
        painter->translate(Side, 0);
        painter->scale(-1, 1);
        painter->shear(0.2, 0);
    });
    row("in a window", [](QPainter* painter) {
        painter->setWindow(0, 0, 2 * Side, 2 * Side);
        painter->setViewport(10, 20, Side, Side);
    });
    row("clipped", [](QPainter* painter) { painter->setClipRect(QRectF(30, 40.5, 70, 50)); });
    row("clipped and turned", [](QPainter* painter) {
        painter->setClipRect(QRectF(30, 40.5, 70, 50));
        painter->rotate(-20);
    });
    row("a translucent brush", [](QPainter* painter) { painter->setBrush(QColor(200, 30, 30, 90)); });
    row("a translucent painter", [](QPainter* painter) { painter->setOpacity(0.4); });
    row("a gradient", [](QPainter* painter) {
        QLinearGradient gradient(0, 0, Side, Side);
        gradient.setColorAt(0, Qt::red);
        gradient.setColorAt(1, Qt::blue);
        painter->rotate(15);
        painter->setBrush(gradient);
    });
    row("no brush", [](QPainter* painter) { painter->setBrush(Qt::NoBrush); });
}

void TestPolygonFill::manyPointsLookAlike()
{
    using Prepare = std::function<void(QPainter*)>;
    QFETCH(Prepare, prepare);
    QFETCH(double, pixelRatio);
    // The painter's own coordinates have 64 steps a pixel, which tells where hundreds of edges meet in one.
    constexpr int Rounding = 24;
    const QPolygonF polygon = tangle(701);
    const QImage ours = picture(Common::fillPolygon, polygon, prepare, pixelRatio);
    const QImage theirs = picture(fillByQt, polygon, prepare, pixelRatio);
    QVERIFY2(difference(ours, theirs) <= Rounding, qPrintable(QString::number(difference(ours, theirs))));
    QVERIFY(ours != theirs || QByteArray(QTest::currentDataTag()) == "no brush"); // it is not theirs
}

void TestPolygonFill::thePainterIsLeftAsItWas()
{
    QImage image(Side, Side, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.translate(3, 4);
    painter.setPen(QPen(Qt::red, 5));
    painter.setBrush(Qt::green);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    for (const int count : {3, 400}) {
        Common::fillPolygon(tangle(count), &painter);
        QCOMPARE(painter.transform(), QTransform::fromTranslate(3, 4));
        QCOMPARE(painter.pen(), QPen(Qt::red, 5));
        QCOMPARE(painter.brush(), QBrush(Qt::green));
        QVERIFY(painter.testRenderHint(QPainter::SmoothPixmapTransform));
    }
}

void TestPolygonFill::aPartlyCoveredPixelHasItsShare_data()
{
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<int>("teeth");
    QTest::newRow("on pixels") << QRectF(20, 30, 100, 90) << 5000;
    QTest::newRow("between pixels") << QRectF(20.5, 30.25, 100, 90) << 5000;
    QTest::newRow("over the edges") << QRectF(-40, -30, 300, 250) << 30000;
    QTest::newRow("sixteen thousand") << QRectF(20, 30, 100, 90) << 16000;
}

void TestPolygonFill::aPartlyCoveredPixelHasItsShare()
{
    QFETCH(QRectF, rect);
    QFETCH(int, teeth);
    const QImage image = picture(Common::fillPolygon, comb(rect, teeth));
    for (int y = 0; y < Side; ++y) {
        for (int x = 0; x < Side; ++x) {
            const QRectF inside = QRectF(x, y, 1, 1) & rect;
            const double share = 0.5 * inside.width() * inside.height();
            const double expected = 250 + (20 - 250) * share;
            QVERIFY2(std::abs(image.pixelColor(x, y).red() - expected) <= 3,
                     qPrintable(QStringLiteral("%1 at %2,%3").arg(image.pixelColor(x, y).red()).arg(x).arg(y)));
        }
    }
}

void TestPolygonFill::moreThan65535PointsAreFilled()
{
    // A line that runs to and fro over a square leaves it filled, or not, at random; what is filled is some of it.
    const QImage image = picture(Common::fillPolygon, tangle(100000));
    const QImage blank = picture([](const QPolygonF&, QPainter*) {}, {});
    QVERIFY(difference(image, blank) > 50);
    const auto circle = [](int count) {
        QPolygonF points;
        for (int i = 0; i < count; ++i) {
            const double angle = 2 * M_PI * i / count;
            points << QPointF(80 + 70 * std::cos(angle), 80 + 70 * std::sin(angle));
        }
        return points;
    };
    const int most = difference(picture(Common::fillPolygon, circle(100000)), picture(fillByQt, circle(10000)));
    QVERIFY2(most <= 4, qPrintable(QString::number(most)));
}

void TestPolygonFill::whatIsOutOfSightCostsNothing()
{
    const QImage blank = picture([](const QPolygonF&, QPainter*) {}, {});
    for (const QPointF& away : {QPointF(1e6, 0), QPointF(0, -1e12), QPointF(1e300, 1e300)}) {
        QCOMPARE(picture(Common::fillPolygon, tangle(100000).translated(away)), blank);
    }
    // Of something gigantic only what shows is looked at.
    const QImage part = picture(Common::fillPolygon, comb(QRectF(-1e5, -1e6, 1e7, 2e6), 2500));
    QCOMPARE(part.size(), QSize(Side, Side));
}

void TestPolygonFill::whatCannotBeFilledIsNot_data()
{
    QTest::addColumn<QPolygonF>("polygon");
    QTest::newRow("nothing") << QPolygonF();
    QTest::newRow("a point") << QPolygonF({{10, 10}});
    QTest::newRow("a line") << QPolygonF({{10, 10}, {90, 90}});
    QTest::newRow("one place") << QPolygonF(QList<QPointF>(100000, QPointF(10, 10)));
    QPolygonF level;
    for (int i = 0; i < 70000; ++i) {
        level << QPointF(i % 100, 40);
    }
    QTest::newRow("a level line") << level;
    QPolygonF upright;
    for (int i = 0; i < 70000; ++i) {
        upright << QPointF(40, i % 100);
    }
    QTest::newRow("an upright line") << upright;
}

void TestPolygonFill::whatCannotBeFilledIsNot()
{
    QFETCH(QPolygonF, polygon);
    const QImage blank = picture([](const QPolygonF&, QPainter*) {}, {});
    QVERIFY(difference(picture(Common::fillPolygon, polygon), blank) <= 1);
    const auto flatten = [](QPainter* painter) { painter->scale(0, 1); };
    QVERIFY(difference(picture(Common::fillPolygon, polygon, flatten), blank) <= 1);
}

QTEST_MAIN(TestPolygonFill)
#include "tst_PolygonFill.moc"
