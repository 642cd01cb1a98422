#include "tests/canvas/CanvasFixture.h"

#include "host/core/commands/UndoCommand.h"

#include <QFocusEvent>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// What holds for every gesture that edits, and moving in particular: one step, none for nothing, and a way back.
class tst_CanvasGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_canvas = std::make_unique<CanvasFixture>();
        m_rectangle = m_canvas->addRectangle(QRectF(100, 100, 100, 80));
        m_other = m_canvas->addRectangle(QRectF(300, 100, 100, 80));
    }

    void cleanup() { m_canvas.reset(); }

    void aDragMovesInOneStep()
    {
        m_canvas->drag({150, 140}, {170, 110});
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("120,70"));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Move rectangle1"));
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_rectangle});
        m_canvas->session->undo();
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("100,100"));
        QCOMPARE(m_canvas->graphic(m_rectangle)->pos(), QPointF(100, 100));
        m_canvas->session->redo();
        QCOMPARE(m_canvas->graphic(m_rectangle)->pos(), QPointF(120, 70));
    }

    void whileItRunsOnlyTheItemMoves()
    {
        m_canvas->press({150, 140});
        m_canvas->move({170, 110});
        QCOMPARE(m_canvas->graphic(m_rectangle)->pos(), QPointF(120, 70));
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("100,100"));
        QVERIFY(m_canvas->stack()->isBlocked());
        m_canvas->release({170, 110});
        QVERIFY(!m_canvas->stack()->isBlocked());
    }

    void severalMoveTogetherInOneStep()
    {
        m_canvas->select({m_rectangle, m_other});
        m_canvas->drag({150, 140}, {160, 150});
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("110,110"));
        QCOMPARE(m_canvas->value(m_other, "position"), QStringLiteral("310,110"));
        QCOMPARE(m_canvas->steps(), 1);
        QCOMPARE(m_canvas->stack()->undoText(), QStringLiteral("Move 2 Elements"));
        QCOMPARE(m_canvas->selected().size(), 2);
    }

    void shiftKeepsToOneAxis()
    {
        m_canvas->select({m_rectangle});
        m_canvas->press({150, 140});
        m_canvas->move({180, 150}, Qt::ShiftModifier);
        QCOMPARE(m_canvas->graphic(m_rectangle)->pos(), QPointF(130, 100));
        m_canvas->move({155, 190}, Qt::ShiftModifier);
        QCOMPARE(m_canvas->graphic(m_rectangle)->pos(), QPointF(100, 150));
        QKeyEvent letGo(QEvent::KeyRelease, Qt::Key_Shift, Qt::ShiftModifier);
        QApplication::sendEvent(m_canvas->view.get(), &letGo);
        QCOMPARE(m_canvas->graphic(m_rectangle)->pos(), QPointF(105, 150));
        m_canvas->release({155, 190});
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("105,150"));
    }

    void betweenScreenPixelsElementsMoveByWholeOnes()
    {
        m_canvas->view->setZoom(3);
        m_canvas->drag({150, 140}, {160.0 + 1.0 / 3, 140.0 - 2.0 / 3});
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("110,99"));
    }

    void aFractionOfAPlaceIsKept()
    {
        m_canvas->set(m_rectangle, "position", QStringLiteral("10.1,0.30000000000000004"));
        m_canvas->drag({50, 40}, {83, 40});
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("43.1,0.3"));
    }

    void nothingChangedMakesNoStepAndKeepsTheRedoList()
    {
        m_canvas->drag({150, 140}, {170, 110});
        m_canvas->session->undo();
        QVERIFY(m_canvas->stack()->canRedo());
        m_canvas->press({150, 140});
        m_canvas->move({190, 190});
        m_canvas->move({150, 140});
        m_canvas->release({150, 140});
        m_canvas->click({150, 140});
        QVERIFY(m_canvas->stack()->canRedo());
        QCOMPARE(m_canvas->steps(), 1);
        m_canvas->press({150, 140});
        m_canvas->move({190, 190});
        m_canvas->key(Qt::Key_Escape);
        QVERIFY(m_canvas->stack()->canRedo());
    }

    void escapeTakesItBackAndTheReleaseDoesNothing()
    {
        const auto before = m_canvas->values();
        m_canvas->press({150, 140});
        m_canvas->move({170, 110});
        m_canvas->key(Qt::Key_Escape);
        QVERIFY(!m_canvas->view->isGestureRunning());
        QVERIFY(!m_canvas->stack()->isBlocked());
        QCOMPARE(m_canvas->graphic(m_rectangle)->pos(), QPointF(100, 100));
        m_canvas->move({180, 120});
        m_canvas->release({180, 120});
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->steps(), 0);
    }

    void aLostGrabTakesItBack_data()
    {
        QTest::addColumn<QString>("how");
        for (const char* how : {"ungrab", "focus", "deactivated", "hidden", "right button", "no button", "screen"})
            QTest::newRow(how) << QString::fromLatin1(how);
    }

    void aLostGrabTakesItBack()
    {
        QFETCH(QString, how);
        const auto before = m_canvas->values();
        m_canvas->press({150, 140});
        m_canvas->move({170, 110});
        CanvasView* view = m_canvas->view.get();
        if (how == QLatin1String("ungrab")) {
            QEvent event(QEvent::UngrabMouse);
            QApplication::sendEvent(view->viewport(), &event);
        } else if (how == QLatin1String("focus")) {
            QFocusEvent event(QEvent::FocusOut);
            QApplication::sendEvent(view, &event);
        } else if (how == QLatin1String("deactivated")) {
            QEvent event(QEvent::WindowDeactivate);
            QApplication::sendEvent(view, &event);
        } else if (how == QLatin1String("hidden")) {
            view->hide();
        } else if (how == QLatin1String("right button")) {
            m_canvas->press({170, 110}, {}, Qt::RightButton);
        } else if (how == QLatin1String("no button")) {
            QMouseEvent event(QEvent::MouseMove, QPointF(10, 10), view->viewport()->mapToGlobal(QPointF(10, 10)),
                              Qt::NoButton, Qt::NoButton, Qt::NoModifier);
            QApplication::sendEvent(view->viewport(), &event);
        } else {
            m_canvas->session->setCurrentScreen(nullptr);
        }
        QVERIFY(!view->isGestureRunning());
        QVERIFY(!m_canvas->stack()->isBlocked());
        QCOMPARE(m_canvas->values(), before);
        QCOMPARE(m_canvas->graphic(m_rectangle)->pos(), QPointF(100, 100));
        QCOMPARE(m_canvas->steps(), 0);
    }

    void undoWaitsForTheEnd()
    {
        m_canvas->drag({150, 140}, {170, 110});
        m_canvas->press({170, 130});
        m_canvas->move({190, 130});
        m_canvas->session->undo();
        m_canvas->release({190, 130});
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("140,70"));
        QCOMPARE(m_canvas->steps(), 2);
    }

    void aTextThatDoesNotConvertSurvivesAMove()
    {
        m_canvas->set(m_rectangle, "size", QStringLiteral("broken"));
        m_canvas->set(m_rectangle, "rotation", QStringLiteral("broken"));
        m_canvas->drag({150, 140}, {170, 110});
        QCOMPARE(m_canvas->value(m_rectangle, "size"), QStringLiteral("broken"));
        QCOMPARE(m_canvas->value(m_rectangle, "rotation"), QStringLiteral("broken"));
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("120,70"));
    }

    void aPlaceThatDoesNotConvertIsGivenByAMoveAndByEscapeTakenBack()
    {
        m_canvas->set(m_rectangle, "position", QStringLiteral("broken"));
        m_canvas->press({150, 140});
        m_canvas->move({170, 110});
        m_canvas->key(Qt::Key_Escape);
        m_canvas->release({170, 110});
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("broken"));
        QCOMPARE(m_canvas->graphic(m_rectangle)->pos(), QPointF(100, 100));
        m_canvas->drag({150, 140}, {170, 110});
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("120,70"));
    }

    void theReadoutShowsWhatTheReleaseWouldGive()
    {
        QSignalSpy readouts(m_canvas->view.get(), &CanvasView::readoutChanged);
        m_canvas->press({150, 140});
        m_canvas->move({170, 110});
        QCOMPARE(readouts.last().first().toString(), QStringLiteral("x 120, y 70, 100 × 80"));
        m_canvas->release({170, 110});
        QCOMPARE(readouts.last().first().toString(), QString());
    }

    void anImmovableElementStays()
    {
        m_canvas->graphic(m_rectangle)->setFlag(QGraphicsItem::ItemIsMovable, false);
        m_canvas->drag({150, 140}, {170, 110});
        QCOMPARE(m_canvas->value(m_rectangle, "position"), QStringLiteral("100,100"));
        QCOMPARE(m_canvas->steps(), 0);
    }

    void aViewThatGoesInMidDragLeavesEverythingAsItWas()
    {
        const auto before = m_canvas->values();
        m_canvas->press({150, 140});
        m_canvas->move({170, 110});
        m_canvas->view.reset();
        QCOMPARE(m_canvas->values(), before);
        QVERIFY(!m_canvas->stack()->isBlocked());
    }

private:
    std::unique_ptr<CanvasFixture> m_canvas;
    DesignerObject* m_rectangle = nullptr;
    DesignerObject* m_other = nullptr;
};

QTEST_MAIN(tst_CanvasGestures)
#include "tst_CanvasGestures.moc"
