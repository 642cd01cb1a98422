#include "tests/canvas/CanvasFixture.h"
#include "tests/canvas/PointItem.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// Dragging the points of an item that has point handles.
class tst_PointGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_canvas = std::make_unique<CanvasFixture>();
        m_points = m_canvas->add("PointElement", {{QStringLiteral("position"), QStringLiteral("100,100")}});
        m_canvas->select({m_points});
    }

    void cleanup() { m_canvas.reset(); }

    void aPointWinsOverTheFramesCorner()
    {
        m_canvas->drag({200, 180}, {230, 210});
        QCOMPARE(m_canvas->value(m_points, "points"), QStringLiteral("0,0 100,0 130,110 0,80"));
        QCOMPARE(m_canvas->value(m_points, "boundingSize"), QStringLiteral("130,110"));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Reshape points1"));
        m_canvas->session->undo();
        QCOMPARE(m_canvas->value(m_points, "points"), QStringLiteral("0,0 100,0 100,80 0,80"));
        QCOMPARE(m_canvas->value(m_points, "boundingSize"), QStringLiteral("100,80"));
    }

    void thePointGoesWhereTheMouseIs()
    {
        m_canvas->press({202, 181});
        m_canvas->release({202, 181});
        QCOMPARE(m_canvas->steps(), 0);
        m_canvas->drag({202, 181}, {230, 210});
        QCOMPARE(m_canvas->value(m_points, "points"), QStringLiteral("0,0 100,0 130,110 0,80"));
    }

    void backWhereItWasPressedEverythingIsAsItWas()
    {
        const auto before = m_canvas->values();
        // Beside the point: it has jumped to the mouse meanwhile.
        m_canvas->press({202, 181});
        m_canvas->move({230, 210});
        QVERIFY(m_canvas->values() != before);
        m_canvas->move({202, 181});
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->graphic(m_points)->boundingRect(), QRectF(0, 0, 100, 80));
        // It goes on from there.
        m_canvas->move({230, 210});
        m_canvas->release({202, 181});
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->steps(), 0);
    }

    void betweenScreenPixelsPointsGoToWholeOnes()
    {
        m_canvas->view->setZoom(4);
        m_canvas->drag({200, 180}, {210.25, 190.75});
        QCOMPARE(m_canvas->value(m_points, "points"), QStringLiteral("0,0 100,0 110,91 0,80"));
    }

    void escapeTakesTheReshapeBack()
    {
        const auto before = m_canvas->values();
        m_canvas->press({200, 180});
        m_canvas->move({230, 210});
        QVERIFY(m_canvas->values() != before);
        m_canvas->key(Qt::Key_Escape);
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->graphic(m_points)->boundingRect(), QRectF(0, 0, 100, 80));
        m_canvas->release({230, 210});
        QCOMPARE(m_canvas->steps(), 0);
    }

    void aRefusedReshapeIsTakenBack()
    {
        QSignalSpy refusals(m_canvas->session.get(), &EditSession::editRefused);
        const auto before = m_canvas->values();
        m_canvas->drag({200, 180}, {1300, 210});
        QCOMPARE(refusals.size(), 1);
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->graphic(m_points)->boundingRect(), QRectF(0, 0, 100, 80));
        QCOMPARE(m_canvas->steps(), 0);
    }

    void anUnselectedElementOffersNoPoints()
    {
        m_canvas->select({});
        m_canvas->drag({198, 178}, {208, 188});
        QCOMPARE(m_canvas->value(m_points, "position"), QStringLiteral("110,110"));
    }

private:
    std::unique_ptr<CanvasFixture> m_canvas;
    DesignerObject* m_points = nullptr;
};

QTEST_MAIN(tst_PointGestures)
#include "tst_PointGestures.moc"
