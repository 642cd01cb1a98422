#include "tests/canvas/CanvasFixture.h"
#include "tests/canvas/PointItem.h"

#include "host/core/properties/ObjectListProperty.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

using Objects = QList<DesignerObject*>;

/// The keyboard on the canvas.
class tst_CanvasKeys : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_canvas = std::make_unique<CanvasFixture>();
        m_first = m_canvas->addRectangle(QRectF(100, 100, 100, 80));
        m_second = m_canvas->addRectangle(QRectF(300, 100, 100, 80));
    }

    void cleanup() { m_canvas.reset(); }

    void arrowsMoveByOnePixelAndWithShiftByTen()
    {
        m_canvas->select({m_first, m_second});
        m_canvas->key(Qt::Key_Right);
        m_canvas->key(Qt::Key_Down, Qt::ShiftModifier);
        m_canvas->key(Qt::Key_Up, Qt::KeypadModifier);
        m_canvas->key(Qt::Key_Left, Qt::ShiftModifier);
        QCOMPARE(m_canvas->value(m_first, "position"), QStringLiteral("91,109"));
        QCOMPARE(m_canvas->value(m_second, "position"), QStringLiteral("291,109"));
        QCOMPARE(m_canvas->steps(), 4);
    }

    void oneLongPressIsOneStepAndTheNextAnother()
    {
        m_canvas->select({m_first});
        m_canvas->key(Qt::Key_Right);
        for (int i = 0; i < 5; ++i)
            m_canvas->key(Qt::Key_Right, {}, true);
        QCOMPARE(m_canvas->value(m_first, "position"), QStringLiteral("106,100"));
        QCOMPARE(m_canvas->steps(), 1);
        m_canvas->key(Qt::Key_Right);
        QCOMPARE(m_canvas->steps(), 2);
        m_canvas->session->undo();
        m_canvas->session->undo();
        QCOMPARE(m_canvas->value(m_first, "position"), QStringLiteral("100,100"));
    }

    void deleteAndBackspaceRemove()
    {
        m_canvas->select({m_first});
        m_canvas->key(Qt::Key_Delete);
        QCOMPARE(m_canvas->screen->childList()->items().size(), 1);
        m_canvas->select({m_second});
        m_canvas->key(Qt::Key_Backspace);
        QCOMPARE(m_canvas->screen->childList()->items().size(), 0);
        QCOMPARE(m_canvas->steps(), 2);
        m_canvas->key(Qt::Key_Delete);
        QCOMPARE(m_canvas->steps(), 2);
    }

    void aGroupIsRemovedAsOne()
    {
        DesignerObject* group = m_canvas->addGroup({0, 0}, {m_first, m_second});
        m_canvas->select({group, m_first});
        m_canvas->key(Qt::Key_Delete);
        QCOMPARE(m_canvas->steps(), 1);
        m_canvas->session->undo();
        QCOMPARE(group->childList()->items().size(), 2);
    }

    void tabGoesThroughTheElements()
    {
        m_canvas->key(Qt::Key_Tab);
        QCOMPARE(m_canvas->selected(), Objects{m_first});
        m_canvas->key(Qt::Key_Tab);
        QCOMPARE(m_canvas->selected(), Objects{m_second});
        m_canvas->key(Qt::Key_Tab);
        QCOMPARE(m_canvas->selected(), Objects{m_first});
        m_canvas->key(Qt::Key_Backtab, Qt::ShiftModifier);
        QCOMPARE(m_canvas->selected(), Objects{m_second});
        m_canvas->key(Qt::Key_Tab, Qt::ShiftModifier);
        QCOMPARE(m_canvas->selected(), Objects{m_first});
        QCOMPARE(m_canvas->steps(), 0);
        QVERIFY(m_canvas->view->hasFocus());
    }

    void ctrlASelectsAllAndEscapeNothing()
    {
        m_canvas->key(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(m_canvas->selected(), Objects({m_first, m_second}));
        m_canvas->key(Qt::Key_Escape);
        QVERIFY(m_canvas->selected().isEmpty());
    }

    void otherKeysGoToTheSelectedItems()
    {
        DesignerObject* points = m_canvas->add("PointElement");
        DesignerObject* more = m_canvas->add("PointElement");
        const auto keysOf = [](DesignerObject* object) {
            return dynamic_cast<Test::PointItem*>(object->graphicsItem())->keys;
        };
        m_canvas->select({points, more});
        m_canvas->key(Qt::Key_B, Qt::AltModifier);
        m_canvas->key(Qt::Key_X);
        QCOMPARE(keysOf(points), QList<int>({Qt::Key_B, Qt::Key_X}));
        QCOMPARE(keysOf(more), QList<int>({Qt::Key_B, Qt::Key_X}));
        m_canvas->select({points});
        m_canvas->key(Qt::Key_Plus, Qt::AltModifier | Qt::KeypadModifier);
        QCOMPARE(keysOf(points).size(), 3);
        QCOMPARE(keysOf(more).size(), 2);
    }

    void theItemsKeysAreKeptFromTheMenus_data()
    {
        QTest::addColumn<int>("key");
        QTest::addColumn<int>("modifiers");
        for (const int key : {Qt::Key_B, Qt::Key_I, Qt::Key_S, Qt::Key_U, Qt::Key_O, Qt::Key_Minus, Qt::Key_Equal})
            QTest::addRow("Alt+%c", char(key)) << key << int(Qt::AltModifier);
        QTest::newRow("keypad plus") << int(Qt::Key_Plus) << int(Qt::AltModifier | Qt::KeypadModifier);
        QTest::newRow("keypad minus") << int(Qt::Key_Minus) << int(Qt::AltModifier | Qt::KeypadModifier);
        QTest::newRow("Delete") << int(Qt::Key_Delete) << int(Qt::NoModifier);
        QTest::newRow("Left") << int(Qt::Key_Left) << int(Qt::NoModifier);
    }

    void theItemsKeysAreKeptFromTheMenus()
    {
        QFETCH(int, key);
        QFETCH(int, modifiers);
        const auto overrides = [&](int pressed) {
            QKeyEvent event(QEvent::ShortcutOverride, pressed, Qt::KeyboardModifiers(modifiers));
            event.ignore();
            QApplication::sendEvent(m_canvas->view.get(), &event);
            return event.isAccepted();
        };
        QVERIFY(!overrides(key));
        m_canvas->select({m_first});
        QVERIFY(overrides(key));
        QVERIFY(!overrides(Qt::Key_F));
    }

    void keysWaitForTheEndOfAGesture()
    {
        m_canvas->press({150, 140});
        m_canvas->move({170, 110});
        m_canvas->key(Qt::Key_Delete);
        m_canvas->key(Qt::Key_Right);
        m_canvas->release({170, 110});
        QCOMPARE(m_canvas->value(m_first, "position"), QStringLiteral("120,70"));
        QCOMPARE(m_canvas->steps(), 1);
    }

private:
    std::unique_ptr<CanvasFixture> m_canvas;
    DesignerObject* m_first = nullptr;
    DesignerObject* m_second = nullptr;
};

QTEST_MAIN(tst_CanvasKeys)
#include "tst_CanvasKeys.moc"
