#include "host/common/FrameResize.h"
#include "host/common/PaintHelper.h"

#include <QTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Common;

namespace {
constexpr int Handles[] = {0, 1, 2, 3, 5, 6, 7, 8};

double someLength()
{
    return *rc::gen::inRange(1, 100000) / 37.0;
}

int someHandle()
{
    return *rc::gen::elementOf(std::vector<int>(std::begin(Handles), std::end(Handles)));
}
} // namespace

class TestFrameResize : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void resizeShapeKeepsTheOppositeCorner();
    void resizeShapeOfASideKeepsTheTopOrLeftEnd();
    void resizeShapeAboutTheCentreGrowsEvenly();
    void resizeShapeWithoutHandleChangesNothing();
    void resizeShapeNeverGivesANegativeSize();
    void draggedFrameMovesOnlyTheSidesAtTheHandle();
    void draggedFrameNeverTurnsOver();
    void widthDrivesTheRatioExceptAtTopAndBottom();
    void ratioBelowTheMinimumRaisesBothSides();
    void withoutRatioBothSidesAreOnlyRaised();
    void keptRatioIsExactAndNeverBelowTheMinimum();
};

void TestFrameResize::resizeShapeKeepsTheOppositeCorner()
{
    QVERIFY(rc::check("the fixed origin stays to 1e-9", [] {
        const QRectF frame(0, 0, someLength(), someLength());
        const int handle = *rc::gen::elementOf(std::vector<int>{0, 2, 6, 8});
        const TransformOrigin fixed = oppositeOrigin(static_cast<TransformOrigin>(handle));
        QSizeF size(someLength(), someLength());
        QPointF position(frame.width(), frame.height());
        PaintHelper::resizeShape(fixed, handle, size, position);
        const QPointF before = fixedPointPosition(fixed, frame);
        const QPointF after = fixedPointPosition(fixed, QRectF(position, size));
        RC_ASSERT((after - before).manhattanLength() < 1e-9);
    }));
}

void TestFrameResize::resizeShapeOfASideKeepsTheTopOrLeftEnd()
{
    QSizeF size(120, 90);
    QPointF position(100, 75);
    PaintHelper::resizeShape(Left, Right, size, position);
    QCOMPARE(position, QPointF(0, 0));

    position = QPointF(100, 75);
    PaintHelper::resizeShape(Right, Left, size, position);
    QCOMPARE(position, QPointF(-20, 0));

    position = QPointF(100, 75);
    PaintHelper::resizeShape(Bottom, Top, size, position);
    QCOMPARE(position, QPointF(0, -15));

    position = QPointF(100, 75);
    PaintHelper::resizeShape(Top, Bottom, size, position);
    QCOMPARE(position, QPointF(0, 0));

    // The corner that the handle keeps says the same.
    for (int handle : Handles) {
        QPointF bySide(100, 75);
        QPointF byCorner(100, 75);
        PaintHelper::resizeShape(oppositeOrigin(static_cast<TransformOrigin>(handle)), handle, size, bySide);
        PaintHelper::resizeShape(cornerKeptBy(handle), handle, size, byCorner);
        if (handle != TopLeft && handle != Left) {
            QCOMPARE(bySide.y(), byCorner.y());
        }
        QCOMPARE(bySide.x(), byCorner.x());
    }
}

void TestFrameResize::resizeShapeAboutTheCentreGrowsEvenly()
{
    QSizeF size(120, 95);
    QPointF position(100, 75);
    PaintHelper::resizeShape(Center, BottomRight, size, position);
    QCOMPARE(position, QPointF(-10, -10));
    QCOMPARE(size, QSizeF(120, 95));
}

void TestFrameResize::resizeShapeWithoutHandleChangesNothing()
{
    for (int handle : {4, -1, 9}) {
        QSizeF size(120, 95);
        QPointF position(100, 75);
        PaintHelper::resizeShape(TopLeft, handle, size, position);
        QCOMPARE(size, QSizeF(100, 75));
        QCOMPARE(position, QPointF(0, 0));
    }
}

void TestFrameResize::resizeShapeNeverGivesANegativeSize()
{
    QSizeF size(-3, 5);
    QPointF position(100, 75);
    PaintHelper::resizeShape(BottomRight, TopLeft, size, position);
    QCOMPARE(size, QSizeF(0, 5));
    QCOMPARE(position, QPointF(100, 70));
}

void TestFrameResize::draggedFrameMovesOnlyTheSidesAtTheHandle()
{
    const QRectF frame(10, 20, 100, 50);
    const QPointF point(40, 35);
    const QSizeF minimum(1, 1);
    QCOMPARE(draggedFrame(frame, TopLeft, point, minimum), QRectF(40, 35, 70, 35));
    QCOMPARE(draggedFrame(frame, Top, point, minimum), QRectF(10, 35, 100, 35));
    QCOMPARE(draggedFrame(frame, TopRight, point, minimum), QRectF(10, 35, 30, 35));
    QCOMPARE(draggedFrame(frame, Left, point, minimum), QRectF(40, 20, 70, 50));
    QCOMPARE(draggedFrame(frame, Right, point, minimum), QRectF(10, 20, 30, 50));
    QCOMPARE(draggedFrame(frame, BottomLeft, point, minimum), QRectF(40, 20, 70, 15));
    QCOMPARE(draggedFrame(frame, Bottom, point, minimum), QRectF(10, 20, 100, 15));
    QCOMPARE(draggedFrame(frame, BottomRight, point, minimum), QRectF(10, 20, 30, 15));
    QCOMPARE(draggedFrame(frame, Center, point, minimum), frame);
    QCOMPARE(draggedFrame(frame, 17, point, minimum), frame);
}

void TestFrameResize::draggedFrameNeverTurnsOver()
{
    const QRectF frame(10, 20, 100, 50);
    QCOMPARE(draggedFrame(frame, TopLeft, QPointF(900, 900), QSizeF(4, 3)), QRectF(106, 67, 4, 3));
    QCOMPARE(draggedFrame(frame, BottomRight, QPointF(-900, -900), QSizeF(4, 3)), QRectF(10, 20, 4, 3));
}

void TestFrameResize::widthDrivesTheRatioExceptAtTopAndBottom()
{
    const QSizeF wanted(120, 50);
    for (int handle : Handles) {
        const bool heightDrives = handle == Top || handle == Bottom;
        QCOMPARE(sizeKeepingRatio(handle, wanted, 2, 1), heightDrives ? QSizeF(100, 50) : QSizeF(120, 60));
    }
}

void TestFrameResize::ratioBelowTheMinimumRaisesBothSides()
{
    QCOMPARE(sizeKeepingRatio(Right, QSizeF(1.5, 9), 2, 1), QSizeF(2, 1));
    QCOMPARE(sizeKeepingRatio(Bottom, QSizeF(9, 1.5), 0.5, 1), QSizeF(1, 2));
    QCOMPARE(sizeKeepingRatio(Top, QSizeF(9, 0.2), 2, 1), QSizeF(2, 1));
}

void TestFrameResize::withoutRatioBothSidesAreOnlyRaised()
{
    QCOMPARE(sizeKeepingRatio(Right, QSizeF(30, 0.5), 0, 4), QSizeF(30, 4));
    QCOMPARE(sizeKeepingRatio(Right, QSizeF(-3, 7), -2, 4), QSizeF(4, 7));
    QCOMPARE(sizeKeepingRatio(Right, QSizeF(30, 20), qQNaN(), 4), QSizeF(30, 20));
}

void TestFrameResize::keptRatioIsExactAndNeverBelowTheMinimum()
{
    QVERIFY(rc::check("ratio and minimum hold", [] {
        const double ratio = *rc::gen::inRange(1, 5000) / 100.0;
        const double minimum = *rc::gen::inRange(1, 40);
        const QSizeF size = sizeKeepingRatio(someHandle(), QSizeF(someLength(), someLength()), ratio, minimum);
        RC_ASSERT(qAbs(size.width() / size.height() - ratio) < 1e-9 * ratio);
        RC_ASSERT(size.width() >= minimum * (1 - 1e-12));
        RC_ASSERT(size.height() >= minimum * (1 - 1e-12));
    }));
}

QTEST_APPLESS_MAIN(TestFrameResize)
#include "tst_FrameResize.moc"
