#include "tests/app/TestWindow.h"

#include "app/ArrangeActions.h"
#include "app/EditActions.h"

#include "host/core/canvas/CanvasView.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ElementJson.h"
#include "host/core/properties/DesignerProperty.h"

#include <QClipboard>
#include <QMimeData>
#include <QStandardPaths>

using namespace Korvex::Meridane::Designer;
using Test::TestWindow;

/// The Arrange menu and the clipboard: each action is enabled only when it can act, and is one step.
class tst_ArrangeActions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        (void)DesignerFactory::instance()->loadInstalledPlugins();
    }

    void init()
    {
        m_window = std::make_unique<TestWindow>();
        QVERIFY(m_window->show());
        m_first = add("Rectangle", "10,10");
        m_second = add("Ellipse", "150,40");
        m_third = add("Rectangle", "300,200");
        session()->setProperty(m_third, QStringLiteral("size"), QStringLiteral("50,30"));
        session()->setSelection({});
    }

    void cleanup() { m_window.reset(); }

    void eachActionIsOneStepThatIsTakenBackByteForByte_data()
    {
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<int>("least"); // so many selected elements make it act
        for (const char* name : {"alignLeft", "alignCenter", "alignRight", "alignTop", "alignMiddle", "alignBottom",
                                 "centerOnScreen", "lock", "hide"})
            QTest::newRow(name) << QByteArray("arrange.") + name << 1;
        for (const char* name : {"group", "makeSameWidth", "makeSameHeight", "makeSameSize"})
            QTest::newRow(name) << QByteArray("arrange.") + name << 2;
        for (const char* name : {"distributeHorizontally", "distributeVertically", "distributeCentersHorizontally",
                                 "distributeCentersVertically"})
            QTest::newRow(name) << QByteArray("arrange.") + name << 3;
    }

    void eachActionIsOneStepThatIsTakenBackByteForByte()
    {
        QFETCH(QByteArray, name);
        QFETCH(int, least);
        QAction* action = m_window->action(name);
        QVERIFY(action);
        QVERIFY(!action->icon().isNull());
        const QList<DesignerObject*> all{m_first, m_second, m_third};
        for (int count = 0; count <= 3; ++count) {
            session()->setSelection(all.mid(3 - count));
            QCOMPARE(action->isEnabled(), count >= least);
        }
        const QJsonObject before = saved();
        const int steps = session()->undoStack()->index();
        action->trigger();
        QCOMPARE(session()->undoStack()->index(), steps + 1);
        QVERIFY(saved() != before);
        session()->undo();
        QCOMPARE(saved(), before);
        session()->undoStack()->setBlocked(true);
        session()->setSelection(all);
        QVERIFY(!action->isEnabled());
        session()->undoStack()->setBlocked(false);
        QVERIFY(action->isEnabled());
    }

    void groupsAreTakenApartByTheKeyboard()
    {
        session()->setSelection({m_first, m_second});
        QVERIFY(!action("arrange.ungroup")->isEnabled());
        QTest::keyClick(canvas(), Qt::Key_G, Qt::ControlModifier);
        QCOMPARE(session()->selection().size(), 1);
        QCOMPARE(m_first->parentObject(), session()->selection().constFirst());
        QVERIFY(action("arrange.ungroup")->isEnabled());
        QTest::keyClick(canvas(), Qt::Key_G, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(session()->selection(), (QList<DesignerObject*>{m_first, m_second}));
    }

    void locksAndHiddenElementsComeBackAllTogether()
    {
        QVERIFY(!action("arrange.unlockAll")->isEnabled());
        QVERIFY(!action("arrange.showAll")->isEnabled());
        session()->setSelection({m_first, m_second});
        QTest::keyClick(canvas(), Qt::Key_L, Qt::ControlModifier);
        QVERIFY(EditorMarks::isLocked(m_first) && EditorMarks::isLocked(m_second));
        QVERIFY(session()->selection().isEmpty());
        session()->setSelection({m_third});
        QTest::keyClick(canvas(), Qt::Key_H, Qt::ControlModifier);
        QVERIFY(EditorMarks::isHidden(m_third));
        // What is locked may be selected in the tree; there is nothing more to lock then.
        session()->setSelection({m_first});
        QVERIFY(!action("arrange.lock")->isEnabled());
        QVERIFY(!action("arrange.alignLeft")->isEnabled());
        QVERIFY(!action("edit.delete")->isEnabled());
        QVERIFY(!action("edit.cut")->isEnabled());
        QVERIFY(action("edit.copy")->isEnabled());
        const int steps = session()->undoStack()->index();
        QTest::keyClick(canvas(), Qt::Key_L, Qt::ControlModifier | Qt::ShiftModifier);
        QTest::keyClick(canvas(), Qt::Key_H, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(session()->undoStack()->index(), steps + 2);
        QVERIFY(!EditorMarks::isLocked(m_first) && !EditorMarks::isLocked(m_second) && !EditorMarks::isHidden(m_third));
        QVERIFY(!action("arrange.unlockAll")->isEnabled());
        QVERIFY(!action("arrange.showAll")->isEnabled());
    }

    void duplicatingMovingAndDuplicatingAgainGivesEqualSteps()
    {
        session()->setSelection({m_first});
        QTest::keyClick(canvas(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(position(session()->selection().constFirst()), QStringLiteral("20,20"));
        session()->moveElements(session()->selection(), QPointF(30, -20));
        QTest::keyClick(canvas(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(position(session()->selection().constFirst()), QStringLiteral("90,-10"));
        QTest::keyClick(canvas(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(position(session()->selection().constFirst()), QStringLiteral("130,-20"));
        // Something else begins anew.
        session()->setSelection({m_third});
        QTest::keyClick(canvas(), Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(position(session()->selection().constFirst()), QStringLiteral("310,210"));
    }

    void pasteInPlaceCoversTheOriginal()
    {
        QVERIFY(session()->selection().isEmpty());
        QVERIFY(!action("edit.copy")->isEnabled());
        session()->setSelection({m_first});
        QTest::keyClick(canvas(), Qt::Key_C, Qt::ControlModifier);
        QVERIFY(action("edit.pasteInPlace")->isEnabled());
        QTest::keyClick(canvas(), Qt::Key_V, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(position(session()->selection().constFirst()), QStringLiteral("10,10"));
        QVERIFY(session()->selection().constFirst() != m_first);
        QTest::keyClick(canvas(), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(position(session()->selection().constFirst()), QStringLiteral("20,20"));
        QGuiApplication::clipboard()->clear();
        QVERIFY(!action("edit.pasteInPlace")->isEnabled());
    }

    void otherProgramsGetAPictureOfTheElements()
    {
        session()->setProperty(m_first, QStringLiteral("color"), QStringLiteral("#ff0000"));
        session()->setProperty(m_first, QStringLiteral("size"), QStringLiteral("40,30"));
        session()->setSelection({m_first});
        action("edit.copy")->trigger();
        const QMimeData* data = QGuiApplication::clipboard()->mimeData();
        QVERIFY(data->hasImage());
        const QImage picture = qvariant_cast<QImage>(data->imageData());
        QVERIFY(!picture.isNull());
        QVERIFY(picture.width() >= 40 && picture.width() <= 42);
        QCOMPARE(picture.pixelColor(picture.rect().center()), QColor(Qt::red));
    }

    void selectingAllLeavesOutWhatTheMouseCannotReach()
    {
        session()->setLocked({m_first}, true);
        session()->setHidden({m_second}, true);
        action("edit.selectAll")->trigger();
        QCOMPARE(session()->selection(), QList<DesignerObject*>{m_third});
    }

private:
    DesignerObject* add(const char* className, const char* position)
    {
        DesignerObject* added = nullptr;
        session()->addElement(QLatin1String(className), session()->currentScreen(), {},
                              {{QStringLiteral("position"), QLatin1String(position)}}, &added);
        return added;
    }

    EditSession* session() const { return m_window->session(); }
    CanvasView* canvas() const { return m_window->window->workspace()->canvas(); }
    QAction* action(const char* name) const { return m_window->action(name); }
    QJsonObject saved() const { return ElementJson::write(session()->currentScreen()); }
    static QString position(const DesignerObject* object)
    {
        return object->getProperty(QStringLiteral("position"))->valueString();
    }

    std::unique_ptr<TestWindow> m_window;
    DesignerObject* m_first = nullptr;
    DesignerObject* m_second = nullptr;
    DesignerObject* m_third = nullptr;
};

QTEST_MAIN(tst_ArrangeActions)
#include "tst_ArrangeActions.moc"
