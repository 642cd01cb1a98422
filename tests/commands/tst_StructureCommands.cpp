#include "host/core/commands/AddObject.h"
#include "host/core/commands/ChangeProperty.h"
#include "host/core/commands/MoveObject.h"
#include "host/core/commands/RemoveObject.h"
#include "host/core/commands/RenameObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"
#include "tests/support/TestElement.h"

#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Test::TestElement;

class tst_StructureCommands : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_project = std::make_unique<Project>();
        QVERIFY(m_project->initialize());
        m_screen = new Screen;
        QVERIFY(m_screen->initialize());
        QVERIFY(m_project->addListItem(m_project->childList(), m_screen, -1));
    }

    void anAddedElementLeavesAndComesBackAsTheSameObject()
    {
        DesignerObject* element = add();
        QCOMPARE(ids(), QStringList{QStringLiteral("test1")});
        m_project->undoStack()->undo();
        QVERIFY(ids().isEmpty());
        QVERIFY(!m_screen->element(QStringLiteral("test1")));
        m_project->undoStack()->redo();
        QCOMPARE(m_screen->element(QStringLiteral("test1")), element);
    }

    void aRemovedElementComesBackToItsPlace()
    {
        add();
        DesignerObject* middle = add();
        add();
        QVERIFY(execute(std::make_unique<RemoveObject>(middle, nullptr)).changed);
        QCOMPARE(ids(), (QStringList{QStringLiteral("test1"), QStringLiteral("test3")}));
        m_project->undoStack()->undo();
        QCOMPARE(ids(), (QStringList{QStringLiteral("test1"), QStringLiteral("test2"), QStringLiteral("test3")}));
        QCOMPARE(m_screen->element(QStringLiteral("test2")), middle);
        QCOMPARE(m_project->undoStack()->redoCommand()->deletionCandidate(), middle);
    }

    void aRenamedObjectGetsItsOldIdBack()
    {
        DesignerObject* element = add();
        QVERIFY(execute(std::make_unique<RenameObject>(element, QStringLiteral("lamp"), nullptr)).changed);
        QCOMPARE(m_screen->element(QStringLiteral("lamp")), element);
        m_project->undoStack()->undo();
        QCOMPARE(element->getIdName(), QStringLiteral("test1"));
        QVERIFY(!m_screen->element(QStringLiteral("lamp")));
    }

    void anIdThatIsTakenOrNoIdentifierIsRefused()
    {
        DesignerObject* element = add();
        add();
        const EditResult taken = execute(std::make_unique<RenameObject>(element, QStringLiteral("test2"), nullptr));
        QVERIFY(!taken.accepted && !taken.changed);
        QCOMPARE(taken.message, QStringLiteral("The id \"test2\" is already used."));
        QVERIFY(!execute(std::make_unique<RenameObject>(element, QStringLiteral("a b"), nullptr)).accepted);
        QVERIFY(!execute(std::make_unique<RenameObject>(element, QStringLiteral("test1"), nullptr)).changed);
    }

    void movingToTheSamePlaceIsNoStep()
    {
        DesignerObject* first = add();
        add();
        QVERIFY(!execute(std::make_unique<MoveObject>(first, 0, nullptr)).changed);
        QVERIFY(execute(std::make_unique<MoveObject>(first, 99, nullptr)).changed);
        QCOMPARE(ids(), (QStringList{QStringLiteral("test2"), QStringLiteral("test1")}));
        m_project->undoStack()->undo();
        QCOMPARE(ids(), (QStringList{QStringLiteral("test1"), QStringLiteral("test2")}));
    }

    void aRemovedScreenComesBackWithItsElements()
    {
        DesignerObject* element = add();
        QVERIFY(execute(std::make_unique<RemoveObject>(m_screen, nullptr)).changed);
        QVERIFY(m_project->screens().isEmpty());
        m_project->undoStack()->undo();
        QCOMPARE(m_project->screens(), QVector<Screen*>{m_screen});
        QCOMPARE(m_screen->element(QStringLiteral("test1")), element);
    }

    void theProjectIsModifiedUntilItIsSavedOrUndone()
    {
        QSignalSpy modified(m_project.get(), &Project::modifiedChanged);
        QVERIFY(!m_project->isModified());
        add();
        QVERIFY(m_project->isModified());
        m_project->undoStack()->undo();
        QVERIFY(!m_project->isModified());
        m_project->undoStack()->redo();
        m_project->setSaved();
        QVERIFY(!m_project->isModified());
        m_project->undoStack()->undo();
        QVERIFY(m_project->isModified());
        m_project->undoStack()->redo();
        QVERIFY(!m_project->isModified());
        m_project->setModifiedOutsideHistory();
        QVERIFY(m_project->isModified());
        QCOMPARE(modified.size(), 7);
    }

    void whatSeveralItemsMakeOfOneKeyIsOneStepThatSelectsThemAll()
    {
        DesignerObject* first = add();
        DesignerObject* second = add();
        const int before = m_project->undoStack()->count();
        m_project->setUserModificationKey(QStringLiteral("key"));
        for (DesignerObject* element : {first, second})
            m_project->emitUserModified(
                new ChangeProperty(element->getProperty(QStringLiteral("number")), QStringLiteral("7"), true, nullptr));
        m_project->setUserModificationKey({});
        QCOMPARE(m_project->undoStack()->count(), before + 1);
        QCOMPARE(m_project->undoStack()->undoCommand()->selectedItems(), (QList<DesignerObject*>{first, second}));
        m_project->undoStack()->undo();
        QCOMPARE(first->getProperty(QStringLiteral("number"))->valueString(), QStringLiteral("1"));
        QCOMPARE(second->getProperty(QStringLiteral("number"))->valueString(), QStringLiteral("1"));
    }

    void aRefusedModificationIsAnnounced()
    {
        DesignerObject* element = add();
        QSignalSpy refused(m_project.get(), &Project::userModificationRefused);
        m_project->emitUserModified(
            new ChangeProperty(element->getProperty(QStringLiteral("number")), QStringLiteral("11"), true, nullptr));
        QCOMPARE(refused.size(), 1);
        QCOMPARE(refused.first().first().toString(), QStringLiteral("0 to 10 only."));
    }

    void anyStructureEditsAreTakenBackAndRepeatedExactly()
    {
        QVERIFY(rc::check("structure", [this] {
            init();
            QVector<QStringList> states{ids()};
            const auto steps = *rc::gen::container<std::vector<std::pair<int, int>>>(
                rc::gen::pair(rc::gen::inRange(0, 5), rc::gen::inRange(0, 8)));
            for (const auto& [kind, number] : steps) {
                const auto items = m_screen->childList()->items();
                DesignerObject* target = items.isEmpty() ? nullptr : items.at(number % items.size());
                std::unique_ptr<UndoCommand> command;
                if (kind <= 1 || !target)
                    command = std::make_unique<AddObject>(m_screen, makeElement(), number - 1, nullptr);
                else if (kind == 2)
                    command = std::make_unique<RemoveObject>(target, nullptr);
                else if (kind == 3)
                    command = std::make_unique<MoveObject>(target, number, nullptr);
                else
                    command = std::make_unique<RenameObject>(target, QStringLiteral("name%1").arg(number), nullptr);
                if (execute(std::move(command)).changed)
                    states.append(ids());
            }
            for (qsizetype i = states.size() - 2; i >= 0; --i) {
                m_project->undoStack()->undo();
                RC_ASSERT(ids() == states.at(i));
            }
            for (qsizetype i = 1; i < states.size(); ++i) {
                m_project->undoStack()->redo();
                RC_ASSERT(ids() == states.at(i));
            }
        }));
    }

private:
    static std::unique_ptr<DesignerObject> makeElement()
    {
        auto element = std::make_unique<TestElement>();
        element->initialize();
        return element;
    }

    EditResult execute(std::unique_ptr<UndoCommand> command) { return m_project->execute(std::move(command)); }

    DesignerObject* add()
    {
        auto element = makeElement();
        DesignerObject* object = element.get();
        execute(std::make_unique<AddObject>(m_screen, std::move(element), -1, nullptr));
        return object;
    }

    QStringList ids() const
    {
        QStringList names;
        for (const DesignerObject* item : m_screen->childList()->items())
            names << item->getIdName();
        return names;
    }

    std::unique_ptr<Project> m_project;
    Screen* m_screen = nullptr;
};

QTEST_MAIN(tst_StructureCommands)
#include "tst_StructureCommands.moc"
