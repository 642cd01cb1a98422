#include "host/core/objects/Group.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"
#include "tests/support/TestElement.h"

#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::TestElement;

/// The tree: project, screens, elements; who holds whom and the ids that come with it.
class tst_ObjectLists : public QObject
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

    void elementsGetFreeIdsInTheirScreen()
    {
        TestElement* first = add(m_screen);
        TestElement* second = add(m_screen);
        QCOMPARE(first->getIdName(), QStringLiteral("test1"));
        QCOMPARE(second->getIdName(), QStringLiteral("test2"));
        QCOMPARE(m_screen->element(QStringLiteral("test2")), second);
        QCOMPARE(Project::parentProject(first), m_project.get());
        QCOMPARE(m_screen->getIdName(), QStringLiteral("screen1"));
        QCOMPARE(m_project->screen(QStringLiteral("screen1")), m_screen);
    }

    void idsAreUniqueInAScreenAlsoInGroupsAndFreeInAnother()
    {
        auto* group = new Group;
        QVERIFY(group->initialize());
        QVERIFY(m_screen->addListItem(m_screen->childList(), group, -1));
        TestElement* inner = add(group);
        TestElement* outer = add(m_screen);
        QCOMPARE(inner->getIdName(), QStringLiteral("test1"));
        QCOMPARE(outer->getIdName(), QStringLiteral("test2"));
        QVERIFY(!outer->setIdName(QStringLiteral("test1")));
        auto* other = new Screen;
        QVERIFY(other->initialize());
        QVERIFY(m_project->addListItem(m_project->childList(), other, -1));
        QCOMPARE(add(other)->getIdName(), QStringLiteral("test1"));
    }

    void removingAGroupFreesTheIdsBelowItAndAddingItTakesThemAgain()
    {
        auto* group = new Group;
        QVERIFY(group->initialize());
        QVERIFY(m_screen->addListItem(m_screen->childList(), group, -1));
        TestElement* inner = add(group);
        QVERIFY(m_screen->removeListItem(m_screen->childList(), group));
        QVERIFY(!m_screen->element(QStringLiteral("test1")));
        QVERIFY(m_screen->addListItem(m_screen->childList(), group, 0));
        QCOMPARE(m_screen->element(QStringLiteral("test1")), inner);
    }

    void theOrderIsThatOfTheListAndMovesAreAnnounced()
    {
        TestElement* a = add(m_screen);
        TestElement* b = add(m_screen);
        TestElement* c = add(m_screen);
        QSignalSpy reordered(m_project.get(), &Project::objectReordered);
        m_screen->moveListItem(m_screen->childList(), 0, 2);
        QCOMPARE(m_screen->childList()->items(), (QVector<DesignerObject*>{b, c, a}));
        QCOMPARE(reordered.size(), 1);
        m_screen->moveListItem(m_screen->childList(), 1, 1);
        m_screen->moveListItem(m_screen->childList(), 5, 0);
        QCOMPARE(reordered.size(), 1);
    }

    void anObjectThatIsNotInTheListIsNotRemoved()
    {
        TestElement stranger;
        QVERIFY(stranger.initialize());
        QVERIFY(!m_screen->removeListItem(m_screen->childList(), &stranger));
        QVERIFY(!m_screen->addListItem(nullptr, &stranger, 0));
    }

    void theScreensQmlHoldsItsElementsAndNoIdOfItsOwn()
    {
        add(m_screen);
        const QString qml = m_screen->toQml(0);
        QVERIFY(qml.startsWith(QLatin1String("Screen {\n\twidth: 800\n\theight: 480\n\tcolor: \"#ffffff\"\n")));
        QVERIFY(qml.contains(QLatin1String("\tTestElement {\n\t\tid: test1\n")));
        QVERIFY(qml.endsWith(QLatin1String("\t}\n}")));
        QVERIFY(!qml.contains(QLatin1String("id: screen1")));
    }

    void aScreensContentIsReadWhenItIsFirstNeeded()
    {
        int reads = 0;
        auto* lazy = new Screen;
        QVERIFY(lazy->initialize());
        lazy->setContentReader([&](Screen* screen) {
            ++reads;
            auto* element = new TestElement;
            QVERIFY(element->initialize());
            QVERIFY(screen->addListItem(screen->childList(), element, -1));
        });
        QVERIFY(m_project->addListItem(m_project->childList(), lazy, -1));
        QCOMPARE(reads, 0);
        QCOMPARE(lazy->childList()->items().size(), 1);
        QVERIFY(lazy->element(QStringLiteral("test1")));
        QCOMPARE(reads, 1);
    }

private:
    TestElement* add(DesignerObject* parent)
    {
        auto* element = new TestElement;
        element->initialize();
        parent->addListItem(parent->childList(), element, -1);
        return element;
    }

    std::unique_ptr<Project> m_project;
    Screen* m_screen = nullptr;
};

QTEST_MAIN(tst_ObjectLists)
#include "tst_ObjectLists.moc"
