#include "tests/canvas/CanvasFixture.h"

#include "host/core/canvas/ScreenRenderer.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// Pictures of screens: what the canvas shows, without what belongs to editing.
class tst_ScreenRenderer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itIsWhatTheViewShows_data()
    {
        QTest::addColumn<double>("scale");
        for (const double scale : {1.0, 2.0, 0.5})
            QTest::addRow("%g", scale) << scale;
    }

    void itIsWhatTheViewShows()
    {
        QFETCH(double, scale);
        CanvasFixture canvas;
        canvas.set(canvas.screen, "size", QStringLiteral("300,200"));
        canvas.set(canvas.screen, "color", QStringLiteral("#203040"));
        DesignerObject* rounded = canvas.addRectangle(QRectF(20.4, 20.7, 120, 70), 5);
        canvas.set(rounded, "cornerRadius", QStringLiteral("20"));
        DesignerObject* turned = canvas.addRectangle(QRectF(150, 90, 90, 60), 3);
        canvas.set(turned, "rotation", QStringLiteral("angle: 33; fixedPoint: TopLeft;"));
        canvas.set(turned, "color", QStringLiteral("#8020c0ff"));
        canvas.addGroup({10, 10}, {rounded});
        canvas.addRectangle(QRectF(-20, 180, 60, 60));
        canvas.view->setZoom(scale);
        const QRect shown = canvas.view->viewportTransform().mapRect(QRectF(0, 0, 300, 200)).toRect();
        const QImage view = canvas.view->grab(shown).toImage().convertToFormat(QImage::Format_RGB32);
        const QImage picture = ScreenRenderer::render(canvas.scene(), scale).convertToFormat(QImage::Format_RGB32);
        QCOMPARE(picture.size(), shown.size());
        QCOMPARE(picture, view);
    }

    void theSelectionIsNotInThePicture()
    {
        CanvasFixture canvas;
        DesignerObject* rectangle = canvas.addRectangle(QRectF(100, 100, 100, 80));
        const QImage before = ScreenRenderer::render(canvas.scene());
        QSignalSpy selections(canvas.scene(), &QGraphicsScene::selectionChanged);
        canvas.select({rectangle});
        QCOMPARE(ScreenRenderer::render(canvas.scene()), before);
        QCOMPARE(selections.size(), 1);
    }

    void aTransparentScreenStaysTransparent()
    {
        CanvasFixture canvas;
        canvas.set(canvas.screen, "color", QStringLiteral("#00000000"));
        QCOMPARE(ScreenRenderer::render(canvas.scene()).pixelColor(5, 5).alpha(), 0);
    }

    void tooLargeAPictureIsRefused()
    {
        CanvasFixture canvas;
        QVERIFY(ScreenRenderer::render(canvas.scene(), 1000).isNull());
        QVERIFY(ScreenRenderer::render(canvas.scene(), 0).isNull());
        QVERIFY(ScreenRenderer::render(canvas.scene(), -1).isNull());
        QVERIFY(ScreenRenderer::render(nullptr).isNull());
        canvas.set(canvas.screen, "size", QStringLiteral("20000,20000"));
        QVERIFY(ScreenRenderer::render(canvas.scene()).isNull());
        QCOMPARE(ScreenRenderer::render(canvas.scene(), 0.01).size(), QSize(200, 200));
    }
};

QTEST_MAIN(tst_ScreenRenderer)
#include "tst_ScreenRenderer.moc"
