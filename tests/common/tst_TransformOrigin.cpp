#include "host/common/LineGeometry.h"
#include "host/common/TransformOrigin.h"

#include <QTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Common;

class TestTransformOrigin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesAndNumbersAreEachOthersInverse();
    void unknownNamesAreRefused();
    void oppositeLiesAcrossTheCentre();
    void fixedPointsOfARectangle();
    void rotationLeavesItsFixedPointInPlace();
    void quarterTurnIsClockwise();
    void lineOutlineStartsAndEndsAtItsCentreLine();
    void lineWithoutThicknessOrLengthIsEmpty();
};

void TestTransformOrigin::namesAndNumbersAreEachOthersInverse()
{
    const char* const names[] = {"TopLeft", "Top",        "TopRight", "Left",       "Center",
                                 "Right",   "BottomLeft", "Bottom",   "BottomRight"};
    for (int number = 0; number < 9; ++number) {
        const QString name = QString::fromLatin1(names[number]);
        QCOMPARE(transformOriginName(static_cast<TransformOrigin>(number)), name);
        bool ok = false;
        QCOMPARE(static_cast<int>(transformOriginFromName(name, &ok)), number);
        QVERIFY(ok);
    }
    QVERIFY(transformOriginName(static_cast<TransformOrigin>(9)).isEmpty());
}

void TestTransformOrigin::unknownNamesAreRefused()
{
    for (const char* text : {"", "center", "Top Left", " Top", "4"}) {
        bool ok = true;
        QCOMPARE(transformOriginFromName(QString::fromLatin1(text), &ok), Center);
        QVERIFY(!ok);
    }
    QCOMPARE(transformOriginFromName(u"Nowhere"), Center);
}

void TestTransformOrigin::oppositeLiesAcrossTheCentre()
{
    for (int number = 0; number < 9; ++number) {
        const auto origin = static_cast<TransformOrigin>(number);
        QCOMPARE(originFractions(origin) + originFractions(oppositeOrigin(origin)), QPointF(1, 1));
    }
    QCOMPARE(oppositeOrigin(static_cast<TransformOrigin>(-1)), Center);
}

void TestTransformOrigin::fixedPointsOfARectangle()
{
    const QRectF content(10, 20, 100, 60);
    QCOMPARE(fixedPointPosition(TopLeft, content), QPointF(10, 20));
    QCOMPARE(fixedPointPosition(Top, content), QPointF(60, 20));
    QCOMPARE(fixedPointPosition(TopRight, content), QPointF(110, 20));
    QCOMPARE(fixedPointPosition(Left, content), QPointF(10, 50));
    QCOMPARE(fixedPointPosition(Center, content), QPointF(60, 50));
    QCOMPARE(fixedPointPosition(Right, content), QPointF(110, 50));
    QCOMPARE(fixedPointPosition(BottomLeft, content), QPointF(10, 80));
    QCOMPARE(fixedPointPosition(Bottom, content), QPointF(60, 80));
    QCOMPARE(fixedPointPosition(BottomRight, content), QPointF(110, 80));
}

void TestTransformOrigin::rotationLeavesItsFixedPointInPlace()
{
    QVERIFY(rc::check("the fixed point stays", [](int x, int y) {
        const QRectF content(x % 1000, y % 1000, *rc::gen::inRange(1, 2000), *rc::gen::inRange(1, 2000));
        const auto origin = static_cast<TransformOrigin>(*rc::gen::inRange(0, 9));
        const double angle = *rc::gen::inRange(-36000, 36000) / 100.0;
        const QPointF fixed = fixedPointPosition(origin, content);
        const QPointF mapped = rotationAbout(origin, content, angle).map(fixed);
        RC_ASSERT((mapped - fixed).manhattanLength() < 1e-9);
    }));
}

void TestTransformOrigin::quarterTurnIsClockwise()
{
    QPainterPath path;
    path.addRect(0, 0, 100, 50);
    const QPainterPath turned = rotatedPath(path, TopLeft, QRectF(0, 0, 100, 50), 90);
    QCOMPARE(turned.boundingRect(), QRectF(-50, 0, 50, 100));
    QCOMPARE(rotationAbout(QPointF(0, 0), 90).map(QPointF(1, 0)), QPointF(0, 1));
}

void TestTransformOrigin::lineOutlineStartsAndEndsAtItsCentreLine()
{
    QCOMPARE(lineOutline(100, 0, 2).boundingRect(), QRectF(0, -1, 100, 2));
    const QRectF down = lineOutline(100, 90, 2).boundingRect();
    QVERIFY(qAbs(down.x() + 1) < 1e-9 && qAbs(down.y()) < 1e-9);
    QVERIFY(qAbs(down.width() - 2) < 1e-9 && qAbs(down.height() - 100) < 1e-9);
    const QPolygonF outline = lineOutline(50, 37, 9);
    QCOMPARE(outline.size(), 6);
    QCOMPARE(outline.at(0), QPointF(0, 0));
    QCOMPARE(QLineF(QPointF(0, 0), outline.at(3)).length(), 50.0);
    QCOMPARE(QLineF(outline.at(1), outline.at(5)).length(), 9.0);
}

void TestTransformOrigin::lineWithoutThicknessOrLengthIsEmpty()
{
    QVERIFY(lineOutline(100, 0, 0).isEmpty());
    QVERIFY(lineOutline(0, 0, 2).isEmpty());
    QVERIFY(lineOutline(-5, 0, 2).isEmpty());
}

QTEST_APPLESS_MAIN(TestTransformOrigin)
#include "tst_TransformOrigin.moc"
