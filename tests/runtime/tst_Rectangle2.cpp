#include "host/common/PaintHelper.h"
#include "tests/runtime/DisplaySheet.h"

#include <QPainter>
#include <QQuickItem>
#include <QSignalSpy>
#include <QTest>

#include <memory>

#include <rapidcheck.h>

using namespace Korvex::Meridane;

namespace {
/** By how much the running picture may differ from the painted one: rounding of translucent colours. */
constexpr int Tolerance = 8;

/**
 * How many pixels may differ by more. The rasterizer rounds coordinates to 1/64 pixel; when a corner's coordinate lies on
 * the limit, moving the shape by a whole number of pixels may turn the rounding. Seen once in tens of thousands of shapes.
 */
constexpr int StrayPixels = 4;

double real(int from, int to)
{
    return *rc::gen::inRange(from * 100, to * 100) / 100.0;
}

QColor someColor()
{
    const int alpha = *rc::gen::element(255, 255, 0, 128, 40);
    return QColor(*rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), *rc::gen::inRange(0, 256), alpha);
}

/** The rectangle of the sheet, painted by the function that paints it on the canvas. */
QImage painted(const DisplaySheet& sheet)
{
    const QQuickItem* item = sheet.item();
    return sheet.painted([item](QPainter* painter) {
        const QPen pen(item->property("borderColor").value<QColor>(), item->property("borderWidth").toInt());
        Common::PaintHelper::paintRectangle(item->size(), item->property("cornerRadius").toInt(), pen,
                                            item->property("color").value<QColor>(), painter);
    });
}
} // namespace

class TestRectangle2 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void defaultsAreThoseOfTheElement();
    void looksAsPaintedOnTheCanvas();
    void looksAsPaintedWhenTurned();
    void followsItsAncestors();
    void everyPropertyIsLive_data();
    void everyPropertyIsLive();
    void sameValueIsNoChange();
    void hiddenChangesShowLater();
    void repaintsOnlyWhenItsPixelsChange();
    void unknownFixedPointIsRefused();
    void hugeRectangleIsPaintedWhereItShows();

private:
    std::unique_ptr<DisplaySheet> m_sheet;
};

void TestRectangle2::initTestCase()
{
    QQuickWindow::setSceneGraphBackend(QStringLiteral("software"));
}

void TestRectangle2::init()
{
    m_sheet = std::make_unique<DisplaySheet>(QStringLiteral("Rectangle2"));
    QVERIFY(m_sheet->isValid());
    m_sheet->item()->setPosition(QPointF(40, 30));
    m_sheet->item()->setSize(QSizeF(100, 75));
}

void TestRectangle2::defaultsAreThoseOfTheElement()
{
    const QQuickItem* item = m_sheet->item();
    QCOMPARE(item->property("color").value<QColor>(), QColor(248, 151, 29));
    QCOMPARE(item->property("cornerRadius").toInt(), 0);
    QCOMPARE(item->property("borderWidth").toInt(), 0);
    QCOMPARE(item->property("borderColor").value<QColor>(), QColor(Qt::black));
    QCOMPARE(item->property("fixedPoint").toString(), QStringLiteral("Center"));
}

void TestRectangle2::looksAsPaintedOnTheCanvas()
{
    QVERIFY(rc::check("the same picture", [this] {
        QQuickItem* item = m_sheet->item();
        m_sheet->group()->setPosition(QPointF(real(-20, 60), real(-20, 60)));
        item->setPosition(QPointF(real(-20, 100), real(-20, 60)));
        item->setSize(QSizeF(real(1, 160), real(1, 120)));
        item->setProperty("cornerRadius", *rc::gen::inRange(0, 101));
        item->setProperty("borderWidth", *rc::gen::inRange(0, 30));
        item->setProperty("color", someColor());
        item->setProperty("borderColor", someColor());
        const int strays = DisplaySheet::pixelsThatDiffer(m_sheet->running(), painted(*m_sheet), Tolerance);
        RC_ASSERT(strays <= StrayPixels);
    }));
}

void TestRectangle2::looksAsPaintedWhenTurned()
{
    static const std::vector<QString> names = {QStringLiteral("TopLeft"),    QStringLiteral("Top"),
                                               QStringLiteral("Right"),      QStringLiteral("Center"),
                                               QStringLiteral("BottomLeft"), QStringLiteral("BottomRight")};
    QVERIFY(rc::check("the same picture at every angle", [this] {
        QQuickItem* item = m_sheet->item();
        m_sheet->group()->setPosition(QPointF(real(20, 60), real(20, 60)));
        m_sheet->group()->setSize(QSizeF(real(20, 160), real(20, 120)));
        m_sheet->group()->setRotation(*rc::gen::element(0.0, 0.0, 15.0));
        item->setPosition(QPointF(real(0, 60), real(0, 40)));
        item->setSize(QSizeF(real(20, 120), real(20, 80)));
        item->setRotation(*rc::gen::element(90.0, 180.0, 360.0, -90.0, 45.0, real(-360, 360)));
        item->setProperty("fixedPoint", *rc::gen::elementOf(names));
        item->setProperty("cornerRadius", *rc::gen::inRange(0, 20));
        item->setProperty("borderWidth", *rc::gen::inRange(0, 10));
        item->setProperty("color", someColor());
        const int strays = DisplaySheet::pixelsThatDiffer(m_sheet->running(), painted(*m_sheet), Tolerance);
        RC_ASSERT(strays <= StrayPixels);
    }));
}

void TestRectangle2::followsItsAncestors()
{
    m_sheet->item()->setProperty("borderWidth", 3);
    for (double offset : {0.0, 0.25, 0.5, 7.9, -3.3}) {
        m_sheet->group()->setX(offset);
        QVERIFY(DisplaySheet::difference(m_sheet->running(), painted(*m_sheet)) <= Tolerance);
        m_sheet->group()->setRotation(offset);
        QVERIFY(DisplaySheet::difference(m_sheet->running(), painted(*m_sheet)) <= Tolerance);
    }
}

void TestRectangle2::everyPropertyIsLive_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QVariant>("value");
    QTest::newRow("color") << QByteArray("color") << QVariant(QColor(0, 80, 160, 200));
    QTest::newRow("width") << QByteArray("width") << QVariant(63.5);
    QTest::newRow("height") << QByteArray("height") << QVariant(41.25);
    QTest::newRow("cornerRadius") << QByteArray("cornerRadius") << QVariant(17);
    QTest::newRow("borderWidth") << QByteArray("borderWidth") << QVariant(9);
    QTest::newRow("borderColor") << QByteArray("borderColor") << QVariant(QColor(Qt::red));
    QTest::newRow("x") << QByteArray("x") << QVariant(70.4);
    QTest::newRow("y") << QByteArray("y") << QVariant(50.7);
    QTest::newRow("rotation") << QByteArray("rotation") << QVariant(90.0);
    QTest::newRow("fixedPoint") << QByteArray("fixedPoint") << QVariant(QStringLiteral("TopLeft"));
}

void TestRectangle2::everyPropertyIsLive()
{
    QFETCH(QByteArray, property);
    QFETCH(QVariant, value);
    QQuickItem* item = m_sheet->item();
    item->setProperty("borderWidth", 4);
    item->setProperty("cornerRadius", 6);
    item->setRotation(property == "fixedPoint" ? 30 : 0);
    const QImage before = m_sheet->running();
    const QMetaProperty meta = item->metaObject()->property(item->metaObject()->indexOfProperty(property));
    QVERIFY(meta.isValid());
    QSignalSpy changed(item, QByteArray(QByteArray::number(QSIGNAL_CODE) + meta.notifySignal().methodSignature()));
    QVERIFY(meta.write(item, value));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(meta.read(item), value);
    const QImage after = m_sheet->running();
    QVERIFY(before != after);
    QVERIFY(DisplaySheet::difference(after, painted(*m_sheet)) <= Tolerance);
}

void TestRectangle2::sameValueIsNoChange()
{
    QQuickItem* item = m_sheet->item();
    for (const char* property : {"color", "cornerRadius", "borderWidth", "borderColor", "fixedPoint"}) {
        const QMetaProperty meta = item->metaObject()->property(item->metaObject()->indexOfProperty(property));
        QSignalSpy changed(item, QByteArray(QByteArray::number(QSIGNAL_CODE) + meta.notifySignal().methodSignature()));
        QVERIFY(meta.write(item, meta.read(item)));
        QCOMPARE(changed.count(), 0);
    }
}

void TestRectangle2::hiddenChangesShowLater()
{
    QQuickItem* item = m_sheet->item();
    static_cast<void>(m_sheet->running());
    item->setVisible(false);
    static_cast<void>(m_sheet->running());
    item->setProperty("borderWidth", 12);
    m_sheet->group()->setX(4.5);
    static_cast<void>(m_sheet->running());
    item->setVisible(true);
    QVERIFY(DisplaySheet::difference(m_sheet->running(), painted(*m_sheet)) <= Tolerance);
}

void TestRectangle2::repaintsOnlyWhenItsPixelsChange()
{
    QQuickItem* item = m_sheet->item();
    item->setPosition(QPointF(40.25, 30));
    static_cast<void>(m_sheet->running());
    const QQuickItem* painter = item->childItems().constFirst();
    const QSizeF size = painter->size();
    const QPointF position = painter->position();
    // By whole pixels the same picture moves along.
    item->setX(52.25);
    QVERIFY(DisplaySheet::difference(m_sheet->running(), painted(*m_sheet)) <= Tolerance);
    QCOMPARE(painter->size(), size);
    QCOMPARE(painter->position(), position);
}

void TestRectangle2::unknownFixedPointIsRefused()
{
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("there is no point \"Middle\"")));
    m_sheet->item()->setProperty("fixedPoint", QStringLiteral("Middle"));
    QCOMPARE(m_sheet->item()->property("fixedPoint").toString(), QStringLiteral("Center"));
}

void TestRectangle2::hugeRectangleIsPaintedWhereItShows()
{
    QQuickItem* item = m_sheet->item();
    item->setSize(QSizeF(9000, 7000));
    item->setProperty("borderWidth", 20);
    for (const QPointF& position : {QPointF(30, 30), QPointF(-8850, 30.5), QPointF(-4000, -4000), QPointF(400, 0)}) {
        item->setPosition(position);
        QVERIFY(DisplaySheet::difference(m_sheet->running(), painted(*m_sheet)) <= Tolerance);
        QVERIFY(item->childItems().constFirst()->width() <= 300);
    }
}

QTEST_MAIN(TestRectangle2)
#include "tst_Rectangle2.moc"
