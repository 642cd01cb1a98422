#include "tests/canvas/CanvasFixture.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

/// Going into groups and out of them, with the mouse and the keyboard.
class tst_GroupSelection : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_canvas = std::make_unique<CanvasFixture>();
        m_first = m_canvas->addRectangle({100, 100, 60, 60});
        m_second = m_canvas->addRectangle({200, 100, 60, 60});
        m_inner = m_canvas->addGroup({100, 100}, {m_first, m_second});
        m_third = m_canvas->addRectangle({300, 100, 60, 60});
        m_outer = m_canvas->addGroup({100, 100}, {m_inner, m_third});
        m_canvas->select({});
    }

    void aDoubleClickGoesOneLevelIntoTheGroup()
    {
        m_canvas->click({130, 130});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_outer});
        doubleClick({130, 130});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_inner});
        doubleClick({130, 130});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_first});
        doubleClick({130, 130});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_first});
        QCOMPARE(m_canvas->steps(), 0);
    }

    void inAGroupAClickSelectsItsNeighbours()
    {
        m_canvas->select({m_first});
        m_canvas->click({230, 130});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_second});
        m_canvas->click({330, 130});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_third});
        m_canvas->click({130, 130});
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_inner});
    }

    void whatTheDoubleClickSelectsCanBeDraggedAtOnce()
    {
        mouse(QEvent::MouseButtonDblClick, {130, 130});
        mouse(QEvent::MouseMove, {140, 135});
        mouse(QEvent::MouseButtonRelease, {140, 135});
        QCOMPARE(m_canvas->value(m_inner, "position"), QStringLiteral("10,5"));
        QCOMPARE(m_canvas->value(m_outer, "position"), QStringLiteral("100,100"));
        QCOMPARE(m_canvas->steps(), 1);
    }

    void escapeGoesOutLevelByLevel()
    {
        m_canvas->select({m_first});
        m_canvas->key(Qt::Key_Escape);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_inner});
        m_canvas->key(Qt::Key_Escape);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_outer});
        m_canvas->key(Qt::Key_Escape);
        QVERIFY(m_canvas->selected().isEmpty());
    }

    void returnGoesInAndShiftReturnOut()
    {
        m_canvas->select({m_outer});
        m_canvas->key(Qt::Key_Return);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_third});
        m_canvas->key(Qt::Key_Return);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_third});
        m_canvas->key(Qt::Key_Tab);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_inner});
        m_canvas->key(Qt::Key_Enter);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_second});
        m_canvas->key(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_inner});
        m_canvas->key(Qt::Key_Return, Qt::ShiftModifier);
        m_canvas->key(Qt::Key_Return, Qt::ShiftModifier);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_outer});
    }

    void tabGoesThroughTheGroupThatHasBeenGoneInto()
    {
        m_canvas->select({m_first});
        m_canvas->key(Qt::Key_Tab);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_second});
        m_canvas->key(Qt::Key_Tab);
        QCOMPARE(m_canvas->selected(), QList<DesignerObject*>{m_first});
    }

private:
    void doubleClick(const QPointF& place)
    {
        mouse(QEvent::MouseButtonDblClick, place);
        m_canvas->release(place);
    }

    void mouse(QEvent::Type type, const QPointF& place)
    {
        const QPointF viewPos = m_canvas->view->viewportTransform().map(place);
        QMouseEvent event(type, viewPos, m_canvas->view->viewport()->mapToGlobal(viewPos), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_canvas->view->viewport(), &event);
    }

    std::unique_ptr<CanvasFixture> m_canvas;
    DesignerObject* m_first = nullptr;
    DesignerObject* m_second = nullptr;
    DesignerObject* m_third = nullptr;
    DesignerObject* m_inner = nullptr;
    DesignerObject* m_outer = nullptr;
};

QTEST_MAIN(tst_GroupSelection)
#include "tst_GroupSelection.moc"
