#include "runtime/PainterPlacement.h"

#include <QTest>

#include <cmath>
#include <limits>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Display;

namespace {
const QSizeF Window(800, 480);

/** The transformation from the child to the pixels of the screen, as a scene graph applies it. */
QTransform painterToPixels(const PainterPlacement& placement, const QTransform& itemToScene, double pixelRatio)
{
    QTransform local;
    local.translate(placement.position.x(), placement.position.y());
    local.rotate(placement.rotation);
    local.scale(placement.scale, placement.scale);
    return local * itemToScene * QTransform::fromScale(pixelRatio, pixelRatio);
}

bool isWhole(double value)
{
    return std::abs(value - std::round(value)) < 1e-6;
}
} // namespace

class TestPainterPlacement : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void wholePositionsAreCoveredExactly();
    void fractionsAreRoundedOut();
    void noiseDoesNotAddPixels();
    void everyPlacementLiesOnWholePixels();
    void skewedItemsAreCoveredInTheirOwnCoordinates();
    void hugeOutlinesAreCutDownToTheWindow();
    void emptyOutlineHasNoSize();
    void infiniteOutlineHasNoSize();
    void outlineAtNoFinitePlaceHasNoSize();
};

void TestPainterPlacement::wholePositionsAreCoveredExactly()
{
    const PainterPlacement placement =
        placePainter(QRectF(-2, -2, 54, 44), QTransform::fromTranslate(10, 20), 1, Window);
    QCOMPARE(placement.position, QPointF(-2, -2));
    QCOMPARE(placement.size, QSizeF(54, 44));
    QCOMPARE(placement.contentToPainter.map(QPointF(0, 0)), QPointF(2, 2));
    QCOMPARE(placement.rotation, 0.0);
    QCOMPARE(placement.scale, 1.0);
    QVERIFY(placement.turnedToScene);
}

void TestPainterPlacement::fractionsAreRoundedOut()
{
    const PainterPlacement single =
        placePainter(QRectF(0, 0, 50, 40), QTransform::fromTranslate(10.3, 20.6), 1, Window);
    QCOMPARE(single.position, QPointF(-0.3, -0.6));
    QCOMPARE(single.size, QSizeF(51, 41));
    const PainterPlacement twice = placePainter(QRectF(0, 0, 50, 40), QTransform::fromTranslate(10.3, 20.6), 2, Window);
    QCOMPARE(twice.position, QPointF(-0.3, -0.1));
    QCOMPARE(twice.size, QSizeF(50.5, 40.5));
}

void TestPainterPlacement::noiseDoesNotAddPixels()
{
    const QTransform noisy = QTransform::fromTranslate(10 - 1e-9, 20 + 1e-9);
    QCOMPARE(placePainter(QRectF(0, 0, 50, 40), noisy, 1, Window).size, QSizeF(50, 40));
}

void TestPainterPlacement::everyPlacementLiesOnWholePixels()
{
    QVERIFY(rc::check("covers the outline, on whole pixels, drawn at the right place", [] {
        const auto real = [](int from, int to) { return *rc::gen::inRange(from * 100, to * 100) / 100.0; };
        const QRectF outer(real(-30, 0), real(-30, 0), real(1, 300), real(1, 300));
        const double pixelRatio = *rc::gen::element(1.0, 1.25, 2.0, 3.0);
        QTransform itemToScene;
        itemToScene.translate(real(0, 400), real(0, 300));
        itemToScene.rotate(*rc::gen::element(0.0, 0.0, 90.0, 180.0, 270.0, real(-360, 360)));
        const double scale = *rc::gen::element(1.0, 1.0, real(1, 3));
        itemToScene.scale(scale, scale);

        const PainterPlacement placement = placePainter(outer, itemToScene, pixelRatio, Window);
        const QTransform toPixels = painterToPixels(placement, itemToScene, pixelRatio);
        const QRectF covered = toPixels.mapRect(QRectF(QPointF(0, 0), placement.size));
        RC_ASSERT(placement.turnedToScene);
        RC_ASSERT(isWhole(covered.left()) && isWhole(covered.top()));
        RC_ASSERT(isWhole(covered.width()) && isWhole(covered.height()));
        // The child's own pixels are the screen's.
        RC_ASSERT(std::abs(toPixels.m11() - pixelRatio) < 1e-9 && std::abs(toPixels.m12()) < 1e-9);
        const QTransform direct = itemToScene * QTransform::fromScale(pixelRatio, pixelRatio);
        RC_ASSERT(covered.adjusted(-1e-3, -1e-3, 1e-3, 1e-3).contains(direct.mapRect(outer)));
        const QPointF drawn = (placement.contentToPainter * toPixels).map(outer.bottomRight());
        RC_ASSERT((drawn - direct.map(outer.bottomRight())).manhattanLength() < 1e-6);
    }));
}

void TestPainterPlacement::skewedItemsAreCoveredInTheirOwnCoordinates()
{
    for (const QTransform& skewed :
         {QTransform().shear(0.3, 0), QTransform::fromScale(2, 1), QTransform::fromScale(-1, 1)}) {
        const PainterPlacement placement = placePainter(QRectF(-0.5, 0, 50, 40), skewed, 1, Window);
        QVERIFY(!placement.turnedToScene);
        QCOMPARE(QRectF(placement.position, placement.size), QRectF(-2, -1, 53, 42));
        QCOMPARE(placement.contentToPainter.map(QPointF(0, 0)), QPointF(2, 1));
    }
    QVERIFY(!placePainter(QRectF(0, 0, 5, 4), QTransform::fromScale(0, 0), 1, Window).turnedToScene);
}

void TestPainterPlacement::hugeOutlinesAreCutDownToTheWindow()
{
    const QTransform moved = QTransform::fromTranslate(-3000, -3000);
    const PainterPlacement placement = placePainter(QRectF(0, 0, 9999, 9999), moved, 2, Window);
    QCOMPARE(placement.size, Window);
    QCOMPARE(placement.position, QPointF(3000, 3000));
    const PainterPlacement outside =
        placePainter(QRectF(0, 0, 9999, 9999), QTransform::fromTranslate(2000, 0), 1, Window);
    QCOMPARE(outside.size, QSizeF());
}

void TestPainterPlacement::emptyOutlineHasNoSize()
{
    QVERIFY(placePainter(QRectF(), QTransform(), 1, Window).size.isEmpty());
}

void TestPainterPlacement::infiniteOutlineHasNoSize()
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const QTransform& transform : {QTransform(), QTransform().rotate(30), QTransform::fromScale(2, 1)}) {
        for (const QRectF& outer : {QRectF(0, 0, infinity, 40), QRectF(0, 0, 40, infinity),
                                    QRectF(0, 0, 40, std::nan("")), QRectF(-infinity, 0, infinity, 40)}) {
            QVERIFY(placePainter(outer, transform, 1, Window).size.isEmpty());
        }
    }
}

void TestPainterPlacement::outlineAtNoFinitePlaceHasNoSize()
{
    const QTransform nowhere = QTransform::fromTranslate(std::numeric_limits<double>::infinity(), 0);
    QVERIFY(placePainter(QRectF(0, 0, 40, 30), nowhere, 1, Window).size.isEmpty());
}

QTEST_APPLESS_MAIN(TestPainterPlacement)
#include "tst_PainterPlacement.moc"
