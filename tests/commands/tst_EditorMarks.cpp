#include "host/core/commands/ChangeEditorMark.h"
#include "host/core/objects/EditorMarks.h"
#include "host/core/objects/Group.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/ElementJson.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QJsonArray>
#include <QSignalSpy>
#include <QtTest>

using namespace Korvex::Meridane::Designer;

class tst_EditorMarks : public QObject
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
        m_outer = add(m_screen);
        m_inner = add(m_outer);
    }

    void lockingIsOneStepThatUndoTakesBack()
    {
        QSignalSpy marked(m_project.get(), &Project::objectMarked);
        QVERIFY(lock(m_inner).changed);
        QCOMPARE(m_project->undoStack()->count(), 1);
        QVERIFY(EditorMarks::isLocked(m_inner));
        m_project->undoStack()->undo();
        QVERIFY(!EditorMarks::isLocked(m_inner));
        m_project->undoStack()->redo();
        QVERIFY(EditorMarks::isLocked(m_inner));
        QCOMPARE(marked.size(), 3);
        QCOMPARE(marked.last().at(0).value<DesignerObject*>(), m_inner);
        QCOMPARE(marked.last().at(1).toString(), EditorMarks::locked());
    }

    void lockingWhatIsLockedIsNoStep()
    {
        QVERIFY(lock(m_inner).changed);
        QVERIFY(!lock(m_inner).changed);
        QCOMPARE(m_project->undoStack()->count(), 1);
    }

    void aGroupPassesItsMarksOnToWhatIsInIt()
    {
        QVERIFY(m_outer->setEditorMark(EditorMarks::hidden(), EditorMarks::setValue()));
        QVERIFY(EditorMarks::isHidden(m_inner));
        QVERIFY(!EditorMarks::isLocked(m_inner));
        QVERIFY(m_inner->editorMark(EditorMarks::hidden()).isEmpty());
    }

    void marksThatAClassDoesNotHaveAreRefused()
    {
        QVERIFY(!m_screen->setEditorMark(EditorMarks::locked(), EditorMarks::setValue()));
        QVERIFY(!m_inner->setEditorMark(EditorMarks::guides(), QStringLiteral("x 10")));
        QVERIFY(!ChangeEditorMark(m_screen, EditorMarks::locked(), EditorMarks::setValue(), nullptr).isValid());
    }

    void marksAreSavedInTheEditorSectionAndReadBack()
    {
        QVERIFY(m_outer->setEditorMark(EditorMarks::locked(), EditorMarks::setValue()));
        QVERIFY(m_inner->setEditorMark(EditorMarks::hidden(), EditorMarks::setValue()));
        const QJsonObject entry = ElementJson::write(m_outer);
        QCOMPARE(entry.value(QLatin1String("editor")).toObject().value(QLatin1String("locked")).toString(),
                 QStringLiteral("true"));
        const std::unique_ptr<DesignerObject> read = ElementJson::read(entry);
        QVERIFY(EditorMarks::isLocked(read.get()));
        QVERIFY(EditorMarks::isHidden(read->childList()->items().first()));
        QVERIFY(read->unknownKeys().isEmpty());
        QCOMPARE(ElementJson::write(read.get()), entry);
    }

    void anEntryWithoutMarksHasNoEditorSection()
    {
        QVERIFY(!ElementJson::write(m_outer).contains(QLatin1String("editor")));
    }

    void aMarkThatIsNoTextIsKeptAsItStands()
    {
        QJsonObject entry = ElementJson::write(m_inner);
        entry.insert(QLatin1String("editor"), QJsonObject{{QStringLiteral("locked"), true}});
        const std::unique_ptr<DesignerObject> read = ElementJson::read(entry);
        QVERIFY(!EditorMarks::isLocked(read.get()));
        QCOMPARE(ElementJson::write(read.get()), entry);
    }

private:
    static Group* add(DesignerObject* parent)
    {
        auto* group = new Group;
        const bool added = group->initialize() && parent->addListItem(parent->childList(), group, -1);
        return added ? group : nullptr;
    }

    EditResult lock(DesignerObject* object)
    {
        return m_project->execute(
            std::make_unique<ChangeEditorMark>(object, EditorMarks::locked(), EditorMarks::setValue(), nullptr));
    }

    std::unique_ptr<Project> m_project;
    Screen* m_screen = nullptr;
    Group* m_outer = nullptr;
    Group* m_inner = nullptr;
};

QTEST_MAIN(tst_EditorMarks)
#include "tst_EditorMarks.moc"
