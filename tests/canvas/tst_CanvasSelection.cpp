#include "tests/canvas/CanvasFixture.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

using Objects = QList<DesignerObject*>;

/// Selecting with the mouse. Selecting is never an undo step.
class tst_CanvasSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_canvas = std::make_unique<CanvasFixture>();
        m_first = m_canvas->addRectangle(QRectF(100, 100, 100, 80));
        m_second = m_canvas->addRectangle(QRectF(300, 100, 100, 80));
        m_third = m_canvas->addRectangle(QRectF(350, 140, 100, 80));
    }

    void cleanup()
    {
        QCOMPARE(m_canvas->steps(), 0);
        m_canvas.reset();
    }

    void aClickSelectsTheFrontmost()
    {
        m_canvas->click({370, 160});
        QCOMPARE(m_canvas->selected(), Objects{m_third});
        m_canvas->click({320, 120});
        QCOMPARE(m_canvas->selected(), Objects{m_second});
    }

    void aClickOnEmptyGroundClears()
    {
        m_canvas->select({m_first, m_second});
        m_canvas->click({20, 20});
        QVERIFY(m_canvas->selected().isEmpty());
    }

    void shiftToggles()
    {
        m_canvas->select({m_first});
        m_canvas->click({320, 120}, Qt::ShiftModifier);
        QCOMPARE(m_canvas->selected(), Objects({m_first, m_second}));
        m_canvas->click({150, 140}, Qt::ShiftModifier);
        QCOMPARE(m_canvas->selected(), Objects{m_second});
        m_canvas->click({20, 20}, Qt::ShiftModifier);
        QCOMPARE(m_canvas->selected(), Objects{m_second});
    }

    void ctrlGoesThroughWhatLiesBeneathAndBeginsAgainInFront()
    {
        DesignerObject* fourth = m_canvas->addRectangle(QRectF(340, 130, 100, 80));
        const QPointF onThree(380, 160);
        for (DesignerObject* expected : {fourth, m_third, m_second, fourth}) {
            m_canvas->click(onThree, Qt::ControlModifier);
            QCOMPARE(m_canvas->selected(), Objects{expected});
        }
        // What is selected elsewhere does not count.
        m_canvas->select({m_first});
        m_canvas->click(onThree, Qt::ControlModifier);
        QCOMPARE(m_canvas->selected(), Objects{fourth});
        m_canvas->click({150, 140}, Qt::ControlModifier);
        QCOMPARE(m_canvas->selected(), Objects{m_first});
        m_canvas->click({20, 20}, Qt::ControlModifier);
        QCOMPARE(m_canvas->selected(), Objects{m_first});
    }

    void aDragWithCtrlMovesWhatIsSelectedBeneath()
    {
        m_canvas->select({m_second});
        m_canvas->drag({380, 160}, {390, 160}, Qt::ControlModifier);
        QCOMPARE(m_canvas->value(m_second, "position"), QStringLiteral("310,100"));
        QCOMPARE(m_canvas->value(m_third, "position"), QStringLiteral("350,140"));
        QCOMPARE(m_canvas->selected(), Objects{m_second});
        QCOMPARE(m_canvas->steps(), 1);
        m_canvas->stack()->clear();
    }

    void allElementsAtAPointAreFoundFromFrontToBack()
    {
        QCOMPARE(m_canvas->scene()->elementsAt({380, 160}), Objects({m_third, m_second}));
        QVERIFY(m_canvas->scene()->elementsAt({20, 20}).isEmpty());
        DesignerObject* group = m_canvas->addGroup({300, 100}, {m_second, m_third});
        QCOMPARE(m_canvas->scene()->elementsAt({380, 160}), Objects({group, m_third, m_second}));
        QCOMPARE(m_canvas->scene()->elementsAt({310, 110}), Objects({group, m_second}));
        DesignerObject* thin = m_canvas->addRectangle(QRectF(120, 150, 60, 1));
        QCOMPARE(m_canvas->scene()->elementsAt({150, 153}), Objects({thin, m_first}));
        QCOMPARE(m_canvas->scene()->elementsAt({150, 156}), Objects{m_first});
    }

    void aClickOnOneOfSeveralSelectedReducesToIt()
    {
        m_canvas->select({m_first, m_second});
        m_canvas->press({150, 140});
        QCOMPARE(m_canvas->selected(), Objects({m_first, m_second}));
        m_canvas->release({150, 140});
        QCOMPARE(m_canvas->selected(), Objects{m_first});
    }

    void aRubberBandSelectsWhatItTouches()
    {
        m_canvas->drag({90, 90}, {320, 130});
        QCOMPARE(m_canvas->selected(), Objects({m_first, m_second}));
        m_canvas->drag({440, 230}, {460, 200}, Qt::ShiftModifier);
        QCOMPARE(m_canvas->selected(), Objects({m_first, m_second, m_third}));
        m_canvas->drag({90, 90}, {95, 95});
        QVERIFY(m_canvas->selected().isEmpty());
    }

    void aRubberBandThatIsTakenBackLeavesTheSelection()
    {
        m_canvas->select({m_third});
        m_canvas->press({90, 90});
        m_canvas->move({320, 130});
        QCOMPARE(m_canvas->selected(), Objects({m_first, m_second}));
        QVERIFY(m_canvas->view->isGestureRunning());
        m_canvas->key(Qt::Key_Escape);
        QVERIFY(!m_canvas->view->isGestureRunning());
        QCOMPARE(m_canvas->selected(), Objects{m_third});
        m_canvas->release({320, 130});
        QCOMPARE(m_canvas->selected(), Objects{m_third});
    }

    void theRightButtonSelectsWhatTheMenuWillBeAbout()
    {
        m_canvas->press({150, 140}, {}, Qt::RightButton);
        m_canvas->release({150, 140}, {}, Qt::RightButton);
        QCOMPARE(m_canvas->selected(), Objects{m_first});
        m_canvas->select({m_first, m_second});
        m_canvas->press({150, 140}, {}, Qt::RightButton);
        m_canvas->release({150, 140}, {}, Qt::RightButton);
        QCOMPARE(m_canvas->selected(), Objects({m_first, m_second}));
    }

    void aTremblingHandClicks()
    {
        m_canvas->press({150, 140});
        m_canvas->move({151, 141});
        m_canvas->release({151, 141});
        QCOMPARE(m_canvas->selected(), Objects{m_first});
        QCOMPARE(m_canvas->value(m_first, "position"), QStringLiteral("100,100"));
    }

    void whatIsThinIsFoundFromBeside()
    {
        CanvasFixture canvas;
        canvas.addRectangle(QRectF(50, 50, 400, 300)); // a ground below
        DesignerObject* thin = canvas.addRectangle(QRectF(100, 200, 200, 1));
        DesignerObject* thick = canvas.addRectangle(QRectF(100, 250, 200, 40));
        canvas.click({150, 203});
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{thin});
        canvas.click({150, 198});
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{thin});
        canvas.click({150, 206});
        QVERIFY(canvas.selected() != QList<DesignerObject*>{thin});
        canvas.click({150, 248});
        QVERIFY(canvas.selected() != QList<DesignerObject*>{thick});
        canvas.view->setZoom(4);
        canvas.click({150, 202});
        QVERIFY(canvas.selected() != QList<DesignerObject*>{thin});
    }

    void whatIsThinIsNotFoundThroughWhatCoversIt()
    {
        CanvasFixture canvas;
        canvas.addRectangle(QRectF(100, 200, 200, 1));
        DesignerObject* cover = canvas.addRectangle(QRectF(50, 50, 400, 300));
        canvas.click({150, 202});
        QCOMPARE(canvas.selected(), QList<DesignerObject*>{cover});
    }

private:
    std::unique_ptr<CanvasFixture> m_canvas;
    DesignerObject* m_first = nullptr;
    DesignerObject* m_second = nullptr;
    DesignerObject* m_third = nullptr;
};

QTEST_MAIN(tst_CanvasSelection)
#include "tst_CanvasSelection.moc"
