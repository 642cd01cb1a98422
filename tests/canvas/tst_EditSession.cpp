#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;

/// The edits that application and command line offer, without mouse and keyboard.
class tst_EditSession : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QString message;
        QVERIFY2(DesignerFactory::instance()->loadPlugin(QStringLiteral(MERIDANE_PLUGIN_FILE), &message),
                 qPrintable(message));
    }

    void init()
    {
        m_session = std::make_unique<EditSession>(ProjectStore::create(QStringLiteral("test"), QSizeF(320, 240)));
        QVERIFY(m_session->currentScreen());
    }

    void anElementIsAddedWithItsPropertiesInOneStep()
    {
        DesignerObject* lamp = add(QStringLiteral("lamp"), {{QStringLiteral("size"), QStringLiteral("50,40")}});
        QVERIFY(lamp);
        QCOMPARE(value(lamp, "boundingSize"), QStringLiteral("50,40"));
        QCOMPARE(m_session->undoStack()->count(), 1);
        QCOMPARE(m_session->selection(), QList<DesignerObject*>{lamp});
        m_session->undo();
        QVERIFY(elements().isEmpty());
        QVERIFY(m_session->selection().isEmpty());
        m_session->redo();
        QCOMPARE(value(lamp, "size"), QStringLiteral("50,40"));
    }

    void aRefusedPropertyRefusesTheWholeElementAndIsHeard()
    {
        QSignalSpy refused(m_session.get(), &EditSession::editRefused);
        QVERIFY(!add(QStringLiteral("lamp"), {{QStringLiteral("cornerRadius"), QStringLiteral("101")}}));
        QCOMPARE(refused.size(), 1);
        QVERIFY(elements().isEmpty());
        QCOMPARE(m_session->undoStack()->count(), 0);
        QVERIFY(!add(QStringLiteral("a b"), {}));
        QVERIFY(!add(QStringLiteral("lamp"), {{QStringLiteral("weight"), QStringLiteral("1")}}));
        QCOMPARE(refused.size(), 3);
    }

    void valuesThatExcludeEachOthersDefaultsAreTakenTogether()
    {
        const std::unique_ptr<DesignerObject> sample(
            DesignerFactory::instance()->createDataObject(QStringLiteral("LinearGradientElement"), nullptr));
        const QString start = value(sample.get(), "start");
        const QString finalStop = value(sample.get(), "finalStop");
        QVERIFY(start != finalStop);
        DesignerObject* added = nullptr;
        const auto exchange = [&](const QString& newStart, const QString& newStop) {
            return m_session->addElement(QStringLiteral("LinearGradientElement"), m_session->currentScreen(), {},
                                         {{QStringLiteral("start"), newStart}, {QStringLiteral("finalStop"), newStop}},
                                         &added);
        };
        const EditResult result = exchange(finalStop, start);
        QVERIFY2(result.accepted, qPrintable(result.message));
        QCOMPARE(value(added, "start"), finalStop);
        QCOMPARE(value(added, "finalStop"), start);
        QCOMPARE(m_session->undoStack()->count(), 1);
        m_session->undo();
        m_session->redo();
        QCOMPARE(value(added, "start"), finalStop);
        QCOMPARE(value(added, "finalStop"), start);
        // What does not fit with everything in place is refused all the same.
        QVERIFY(!exchange(finalStop, finalStop).accepted);
        QVERIFY(!exchange(start, start).accepted);
        QCOMPARE(m_session->undoStack()->count(), 1);
    }

    void aSelectionIsRemovedInOneStepAndAnnouncedOnce()
    {
        for (int i = 0; i < 20; ++i)
            add({}, {});
        m_session->setSelection(elements());
        QSignalSpy changes(m_session.get(), &EditSession::selectionChanged);
        QVERIFY(m_session->removeElements(elements()).changed);
        QCOMPARE(changes.size(), 1);
        QVERIFY(m_session->selection().isEmpty());
        m_session->undo();
        QCOMPARE(m_session->selection().size(), 20);
        QCOMPARE(elements().size(), 20);
    }

    void aSessionThatEndsWithASelectionAnnouncesNothing()
    {
        add({}, {});
        add({}, {});
        m_session->setSelection(elements());
        QSignalSpy changes(m_session.get(), &EditSession::selectionChanged);
        m_session.reset();
        QCOMPARE(changes.size(), 0);
    }

    void aScreenThatGoesWithItsSelectionLeavesTheNextOne()
    {
        DesignerObject* lamp = add(QStringLiteral("lamp"), {});
        Screen* first = m_session->currentScreen();
        Screen* second = nullptr;
        QVERIFY(m_session->addScreen(QStringLiteral("second"), {}, &second).changed);
        m_session->setSelection({lamp});
        QCOMPARE(m_session->currentScreen(), first);
        QVERIFY(m_session->removeScreen(first).changed);
        QCOMPARE(m_session->currentScreen(), second);
        QVERIFY(m_session->selection().isEmpty());
        m_session->undo();
        QCOMPARE(m_session->project()->screens().size(), 2);
        m_session->setSelection({lamp});
        QCOMPARE(m_session->currentScreen(), first);
    }

    void movingLeavesNoNoiseOfTheArithmetic()
    {
        DesignerObject* lamp = add(QStringLiteral("lamp"), {{QStringLiteral("position"), QStringLiteral("8.7,0.1")}});
        QVERIFY(m_session->moveElements({lamp}, QPointF(-10, 0.2)).changed);
        QCOMPARE(value(lamp, "position"), QStringLiteral("-1.3,0.3"));
        QCOMPARE(m_session->undoStack()->undoText(), QStringLiteral("Move lamp"));
    }

    void theSelectionOfAStepComesBackWithIt()
    {
        DesignerObject* lamp = add(QStringLiteral("lamp"), {});
        DesignerObject* other = add(QStringLiteral("other"), {});
        m_session->setSelection({lamp});
        QVERIFY(m_session->setProperty(lamp, QStringLiteral("color"), QStringLiteral("#102030")).changed);
        m_session->setSelection({other});
        m_session->undo();
        QCOMPARE(m_session->selection(), QList<DesignerObject*>{lamp});
        m_session->setSelection({});
        m_session->redo();
        QCOMPARE(m_session->selection(), QList<DesignerObject*>{lamp});
    }

    void anOuterSizeThatCannotBeFollowedSnapsBackWithoutAStep()
    {
        DesignerObject* lamp =
            add(QStringLiteral("lamp"), {{QStringLiteral("size"), QStringLiteral("1,1")},
                                         {QStringLiteral("border"), QStringLiteral("width: 3; color: #000000;")}});
        QCOMPARE(value(lamp, "boundingSize"), QStringLiteral("4,4"));
        const int before = m_session->undoStack()->count();
        QVERIFY(m_session->setProperty(lamp, QStringLiteral("boundingSize"), QStringLiteral("2,4")).accepted);
        QCOMPARE(value(lamp, "boundingSize"), QStringLiteral("4,4"));
        QCOMPARE(m_session->undoStack()->count(), before);
    }

    void anUnreadableScreenRefusesEdits()
    {
        Screen* screen = m_session->currentScreen();
        screen->setContentError(QStringLiteral("The file of the screen is missing."));
        QVERIFY(!m_session->setProperty(screen, QStringLiteral("color"), QStringLiteral("#102030")).accepted);
        QVERIFY(!add({}, {}));
        QCOMPARE(m_session->undoStack()->count(), 0);
    }

private:
    DesignerObject* add(const QString& id, const QMap<QString, QString>& properties)
    {
        DesignerObject* element = nullptr;
        m_session->addElement(QStringLiteral("Rectangle"), m_session->currentScreen(), id, properties, &element);
        return element;
    }

    QList<DesignerObject*> elements() const { return m_session->currentScreen()->childList()->items(); }

    static QString value(DesignerObject* object, const char* id)
    {
        return object->getProperty(QLatin1String(id))->valueString();
    }

    std::unique_ptr<EditSession> m_session;
};

QTEST_MAIN(tst_EditSession)
#include "tst_EditSession.moc"
