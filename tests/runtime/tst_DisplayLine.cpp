#include "host/common/LineGeometry.h"
#include "host/common/PaintHelper.h"
#include "tests/runtime/BorderedShape.h"

#include <QQuickItem>
#include <QTest>

#include <cmath>
#include <limits>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
QPolygonF outlineOf(const QQuickItem& item)
{
    return Common::lineOutline(item.property("length").toDouble(), item.property("angle").toDouble(),
                               item.property("lineWidth").toInt());
}

DisplayType line()
{
    DisplayType type;
    type.name = QStringLiteral("Line");
    type.defaults = {{QStringLiteral("color"), QColor(248, 151, 29)},
                     {QStringLiteral("length"), 100.0},
                     {QStringLiteral("angle"), 0.0},
                     {QStringLiteral("lineWidth"), 2}};
    type.sample = {
        {QStringLiteral("length"), 120.0}, {QStringLiteral("angle"), 37.0}, {QStringLiteral("lineWidth"), 9}};
    type.changes = {{QStringLiteral("color"), QColor(0, 80, 160, 200)},
                    {QStringLiteral("length"), 87.25},
                    {QStringLiteral("angle"), 11.5},
                    {QStringLiteral("lineWidth"), 24}};
    type.huge = {
        {QStringLiteral("length"), 9000.0}, {QStringLiteral("angle"), 0.0}, {QStringLiteral("lineWidth"), 7000}};
    const int largest = std::numeric_limits<int>::max();
    const double infinity = std::numeric_limits<double>::infinity();
    for (double length : {0.001, 1e5, 1e9}) {
        type.extremes.append({QStringLiteral("length"), length});
    }
    for (double angle : {-37.0, 360.0, 1e6, -1e9}) {
        type.extremes.append({QStringLiteral("angle"), angle});
    }
    for (int width : {100, 1000, largest}) {
        type.extremes.append({QStringLiteral("lineWidth"), width});
    }
    type.extremes.append({QStringLiteral("color"), QColor()});
    for (double length : {0.0, -5.0, std::nan(""), infinity, -infinity}) {
        type.invisible.append({QStringLiteral("length"), length});
    }
    for (double angle : {std::nan(""), infinity, -infinity}) {
        type.invisible.append({QStringLiteral("angle"), angle});
    }
    for (int width : {0, -1, -largest}) {
        type.invisible.append({QStringLiteral("lineWidth"), width});
    }
    type.someValues = [] {
        QVariantMap values{{QStringLiteral("length"), *rc::gen::inRange(100, 20000) / 100.0},
                           {QStringLiteral("angle"), *rc::gen::inRange(-40000, 40000) / 100.0},
                           {QStringLiteral("lineWidth"), *rc::gen::inRange(1, 101)}};
        values.insert(QStringLiteral("color"), BorderedShape::someValues().value(QStringLiteral("color")));
        return values;
    };
    type.paint = [](const QQuickItem& item, QPainter* painter) {
        Common::PaintHelper::paintIrregularPolygon(outlineOf(item), item.property("color").value<QColor>(), painter);
    };
    type.content = [](const QQuickItem&) { return QRectF(); };
    type.outline = [](const QQuickItem& item) { return outlineOf(item).boundingRect(); };
    return type;
}
} // namespace

class TestDisplayLine : public DisplayTypeTest
{
    Q_OBJECT

public:
    TestDisplayLine()
        : DisplayTypeTest(line())
    {}

private Q_SLOTS:
    void everyDirectionAndThicknessLooksAsPainted_data();
    void everyDirectionAndThicknessLooksAsPainted();
    void itHasNoSizeOfItsOwn();
    void itTurnsAboutItsStartWhateverTheFixedPoint_data();
    void itTurnsAboutItsStartWhateverTheFixedPoint();
};

void TestDisplayLine::everyDirectionAndThicknessLooksAsPainted_data()
{
    QTest::addColumn<int>("angle");
    for (int angle = 0; angle < 360; angle += 7) {
        QTest::addRow("%d degrees", angle) << angle;
    }
}

void TestDisplayLine::everyDirectionAndThicknessLooksAsPainted()
{
    QFETCH(int, angle);
    item().setPosition(QPointF(150, 100));
    setValues({{QStringLiteral("angle"), double(angle)}, {QStringLiteral("length"), 90.0}});
    // Seven directions together meet every thickness.
    for (int width = 1 + angle / 7 % 7; width <= 100; width += 7) {
        setValues({{QStringLiteral("lineWidth"), width}});
        QVERIFY(DisplaySheet::pixelsThatDiffer(sheet().running(), painted(), Tolerance) == 0);
        QVERIFY(!isBlank());
    }
}

void TestDisplayLine::itHasNoSizeOfItsOwn()
{
    setValues({{QStringLiteral("angle"), 215.0}});
    QCOMPARE(item().size(), QSizeF(0, 0));
    // Whoever gives it one does not change the picture.
    const QImage before = sheet().running();
    item().setSize(QSizeF(70, 40));
    QCOMPARE(sheet().running(), before);
    item().setRotation(77);
    QVERIFY(looksAsPainted());
}

void TestDisplayLine::itTurnsAboutItsStartWhateverTheFixedPoint_data()
{
    QTest::addColumn<QString>("fixedPoint");
    for (const char* name :
         {"TopLeft", "Top", "TopRight", "Left", "Center", "Right", "BottomLeft", "Bottom", "BottomRight"}) {
        QTest::newRow(name) << QString::fromLatin1(name);
    }
}

void TestDisplayLine::itTurnsAboutItsStartWhateverTheFixedPoint()
{
    QFETCH(QString, fixedPoint);
    item().setPosition(QPointF(150, 100));
    item().setProperty("fixedPoint", fixedPoint);
    setValues({{QStringLiteral("lineWidth"), 8}, {QStringLiteral("angle"), 20.0}});
    item().setRotation(90);
    QVERIFY(looksAsPainted());
    const QImage turned = sheet().running();
    // The same line, drawn in the direction that it points in then.
    item().setRotation(0);
    setValues({{QStringLiteral("angle"), 110.0}});
    QVERIFY(DisplaySheet::pixelsThatDiffer(sheet().running(), turned, Tolerance) == 0);
    QCOMPARE(item().mapToItem(sheet().screen(), QPointF(0, 0)), QPointF(150, 100));
}

QTEST_MAIN(TestDisplayLine)
#include "tst_DisplayLine.moc"
