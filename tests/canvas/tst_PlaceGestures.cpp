#include "tests/canvas/CanvasFixture.h"

#include "host/core/properties/ObjectListProperty.h"

#include <QDropEvent>
#include <QMimeData>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// Placing new elements: by a click, by a drag, and dropped from the palette.
class tst_PlaceGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_canvas = std::make_unique<CanvasFixture>(); }
    void cleanup() { m_canvas.reset(); }

    void aClickPlacesAtTheDefaultSize()
    {
        QSignalSpy finished(m_canvas->view.get(), &CanvasView::placementFinished);
        m_canvas->view->setPlacementClass(QStringLiteral("Rectangle"));
        m_canvas->click({60.4, 70.6});
        const DesignerObject* placed = only();
        QVERIFY(placed);
        QCOMPARE(m_canvas->value(placed, "position"), QStringLiteral("60,71"));
        QCOMPARE(m_canvas->value(placed, "size"), QStringLiteral("100,75"));
        QCOMPARE(m_canvas->selected().size(), 1);
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(finished.size(), 1);
        QVERIFY(m_canvas->view->placementClass().isEmpty());
    }

    void aDragPlacesAtTheDraggedSizeInAnyDirection()
    {
        m_canvas->view->setPlacementClass(QStringLiteral("Rectangle"));
        m_canvas->drag({200, 150}, {120, 100});
        const DesignerObject* placed = only();
        QCOMPARE(m_canvas->value(placed, "position"), QStringLiteral("120,100"));
        QCOMPARE(m_canvas->value(placed, "size"), QStringLiteral("80,50"));
        QCOMPARE(m_canvas->value(placed, "boundingSize"), QStringLiteral("80,50"));
        QCOMPARE(m_canvas->steps(), 1);
        m_canvas->session->undo();
        QVERIFY(!only());
    }

    void shiftPlacesASquare()
    {
        m_canvas->view->setPlacementClass(QStringLiteral("Rectangle"));
        m_canvas->drag({100, 100}, {140, 70}, Qt::ShiftModifier);
        QCOMPARE(m_canvas->value(only(), "position"), QStringLiteral("100,60"));
        QCOMPARE(m_canvas->value(only(), "size"), QStringLiteral("40,40"));
    }

    void aSizeThatTheElementMakesNothingOfIsNoReasonToRefuse()
    {
        m_canvas->view->setPlacementClass(QStringLiteral("PointElement"));
        m_canvas->drag({100, 100}, {140, 170});
        QCOMPARE(m_canvas->value(only(), "position"), QStringLiteral("100,100"));
    }

    void placingWorksOnTopOfOtherElements()
    {
        DesignerObject* below = m_canvas->addRectangle(QRectF(0, 0, 400, 400));
        m_canvas->select({below});
        m_canvas->view->setPlacementClass(QStringLiteral("Rectangle"));
        m_canvas->drag({100, 100}, {140, 170});
        QCOMPARE(m_canvas->value(below, "position"), QStringLiteral("0,0"));
        QCOMPARE(m_canvas->screen->childList()->items().size(), 2);
    }

    void escapeEndsPlacing()
    {
        QSignalSpy finished(m_canvas->view.get(), &CanvasView::placementFinished);
        m_canvas->view->setPlacementClass(QStringLiteral("Rectangle"));
        m_canvas->press({100, 100});
        m_canvas->move({200, 200});
        m_canvas->key(Qt::Key_Escape);
        QVERIFY(!m_canvas->view->placementClass().isEmpty());
        m_canvas->release({200, 200});
        m_canvas->key(Qt::Key_Escape);
        QVERIFY(m_canvas->view->placementClass().isEmpty());
        QCOMPARE(finished.size(), 1);
        QVERIFY(!only());
        QCOMPARE(m_canvas->steps(), 0);
    }

    void aDropFromThePalettePlaces()
    {
        QMimeData data;
        data.setData(CanvasView::elementMimeType(), "Rectangle");
        drop(&data, {33, 44});
        QVERIFY(only());
        QCOMPARE(m_canvas->value(only(), "position"), QStringLiteral("33,44"));
    }

    void otherDropsAreLeftAlone()
    {
        QMimeData data;
        data.setText(QStringLiteral("Rectangle"));
        drop(&data, {33, 44});
        QVERIFY(!only());
    }

private:
    /// The only element on the screen, or null.
    DesignerObject* only() const
    {
        const auto& items = m_canvas->screen->childList()->items();
        return items.size() == 1 ? items.first() : nullptr;
    }

    void drop(const QMimeData* data, const QPointF& scenePos)
    {
        const QPointF viewPos = m_canvas->view->viewportTransform().map(scenePos);
        QDragEnterEvent enter(viewPos.toPoint(), Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_canvas->view->viewport(), &enter);
        if (!enter.isAccepted())
            return;
        QDropEvent event(viewPos, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_canvas->view->viewport(), &event);
    }

    std::unique_ptr<CanvasFixture> m_canvas;
};

QTEST_MAIN(tst_PlaceGestures)
#include "tst_PlaceGestures.moc"
