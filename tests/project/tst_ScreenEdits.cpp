#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/canvas/ScreenRenderer.h"
#include "host/core/commands/AddObject.h"
#include "host/core/objects/Group.h"
#include "host/core/objects/Screen.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/ElementJson.h"
#include "host/core/project/ObjectTree.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/values/ValueConversion.h"
#include "tests/project/ProjectTestSupport.h"

#include <QGraphicsItem>
#include <QJsonArray>
#include <QJsonDocument>
#include <QtTest>

#include <rapidcheck.h>

#include <cmath>

using namespace Korvex::Meridane::Designer;
using namespace Korvex::Meridane::Designer::Test;

namespace {

int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

QByteArray written(Project* project)
{
    QJsonArray screens;
    for (const Screen* screen : project->screens())
        screens.append(ElementJson::write(screen));
    return QJsonDocument(screens).toJson();
}

/// The outline of every element of \a screen on the screen, corner by corner.
QMap<const DesignerObject*, QPolygonF> outlines(const Screen* screen)
{
    QMap<const DesignerObject*, QPolygonF> all;
    ObjectTree::visitRead(screen, [&all](const DesignerObject* object) {
        const GraphicsItem* item = object->graphicsItem();
        if (item && !qobject_cast<const Group*>(object) && !qobject_cast<const Screen*>(object))
            all.insert(object, item->graphic()->mapToScene(item->outerRect()));
    });
    return all;
}

bool isSame(const QPolygonF& one, const QPolygonF& other)
{
    for (qsizetype i = 0; i < one.size() && one.size() == other.size(); ++i) {
        if (std::hypot(one.at(i).x() - other.at(i).x(), one.at(i).y() - other.at(i).y()) > 1e-6)
            return false;
    }
    return one.size() == other.size();
}

DesignerObject* addGroup(Project* project, Screen* screen, const char* id, const char* position)
{
    std::unique_ptr<DesignerObject> group(
        DesignerFactory::instance()->createDataObject(QStringLiteral("Group"), nullptr));
    group->setIdName(QString::fromLatin1(id));
    group->getProperty(QStringLiteral("position"))->fill(QString::fromLatin1(position));
    DesignerObject* added = group.get();
    project->execute(std::make_unique<AddObject>(screen, std::move(group), -1, nullptr));
    return added;
}

/// A session of a project with groups that turn, on two screens.
std::unique_ptr<EditSession> sessionOfGroups()
{
    auto session = std::make_unique<EditSession>(ProjectStore::create(QStringLiteral("Oven"), QSizeF(320, 240)));
    for (const char* id : {"main", "second"}) {
        Screen* screen = session->project()->screen(QString::fromLatin1(id));
        if (!screen)
            session->addScreen(QString::fromLatin1(id), {}, &screen);
        DesignerObject* outer = addGroup(session->project(), screen, "outer", "40,30");
        DesignerObject* inner = addGroup(session->project(), screen, "inner", "20,10");
        QList<DesignerObject*> rectangles;
        for (int i = 0; i < 5; ++i) {
            DesignerObject* made = nullptr;
            session->addElement(
                QStringLiteral("Rectangle"), screen, {},
                {{QStringLiteral("position"), QStringLiteral("%1,%2").arg(i * 31).arg(i * 17)},
                 {QStringLiteral("size"), QStringLiteral("%1,20").arg(20 + 7 * i)},
                 {QStringLiteral("rotation"), QStringLiteral("angle: %1; fixedPoint: TopRight;").arg(i * 15)}},
                &made);
            rectangles.append(made);
        }
        session->moveToParent({rectangles.at(0), rectangles.at(1)}, inner, -1);
        session->moveToParent({rectangles.at(2), inner}, outer, -1);
        session->setProperty(inner, QStringLiteral("rotation"), QStringLiteral("angle: 30; fixedPoint: Center;"));
        session->setProperty(outer, QStringLiteral("rotation"), QStringLiteral("angle: 200; fixedPoint: BottomRight;"));
    }
    return session;
}

} // namespace

/// Screens as a whole, and elements that change their place in the tree.
class tst_ScreenEdits : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const QStringList refused = DesignerFactory::instance()->loadInstalledPlugins();
        QVERIFY2(refused.isEmpty(), qPrintable(refused.join(QLatin1Char('\n'))));
        QVERIFY(DesignerFactory::instance()->elementClassNames().contains(QStringLiteral("Rectangle")));
    }
    void init() { m_session = sessionOfGroups(); }
    void cleanup() { m_session.reset(); }

    void aDuplicateIsTheSameScreenBehindTheOriginal()
    {
        const int steps = m_session->undoStack()->count();
        Screen* copy = nullptr;
        QVERIFY(m_session->duplicateScreen(screen("main"), {}, &copy).changed);
        QCOMPARE(m_session->undoStack()->count(), steps + 1);
        QCOMPARE(copy->getIdName(), QStringLiteral("main1"));
        QCOMPARE(project()->screens().indexOf(copy), 1);
        QCOMPARE(m_session->currentScreen(), copy);
        QJsonObject original = ElementJson::write(screen("main"));
        QJsonObject copied = ElementJson::write(copy);
        original.remove(QLatin1String("id"));
        copied.remove(QLatin1String("id"));
        QCOMPARE(copied, original);
        QCOMPARE(ScreenRenderer::render(m_session->scene(copy)),
                 ScreenRenderer::render(m_session->scene(screen("main"))));
        // They share nothing.
        const QString before = valueOf(screen("main")->element(QStringLiteral("rectangle4")), "size");
        m_session->setProperty(copy->element(QStringLiteral("rectangle4")), QStringLiteral("size"),
                               QStringLiteral("9,9"));
        QCOMPARE(valueOf(screen("main")->element(QStringLiteral("rectangle4")), "size"), before);
        m_session->undo();
        m_session->undo();
        QCOMPARE(project()->screens().size(), 2);
        m_session->redo();
        QCOMPARE(project()->screens().size(), 3);
    }

    void aDuplicateTakesTheIdThatIsAskedForIfItIsFree()
    {
        QVERIFY(m_session->duplicateScreen(screen("main"), QStringLiteral("third")).changed);
        QVERIFY(screen("third"));
        for (const char* id : {"second", "1st"}) {
            const EditResult result = m_session->duplicateScreen(screen("main"), QString::fromLatin1(id));
            QVERIFY(!result.accepted && !result.message.isEmpty());
        }
        QCOMPARE(project()->screens().size(), 3);
    }

    void resizingLeavesOrScalesTheContent()
    {
        DesignerObject* rectangle = screen("main")->element(QStringLiteral("rectangle4"));
        const QString place = valueOf(rectangle, "position");
        const int steps = m_session->undoStack()->count();
        QVERIFY(m_session->resizeScreen(screen("main"), QSizeF(640, 480), ScreenEdits::Content::Leave).changed);
        QCOMPARE(screen("main")->size(), QSizeF(640, 480));
        QCOMPARE(valueOf(rectangle, "position"), place);
        m_session->undo();
        m_session->setProperty(rectangle, QStringLiteral("rotation"), QStringLiteral("angle: 0; fixedPoint: Center;"));
        const QSizeF outer = ValueConversion::toSize(valueOf(rectangle, "boundingSize"));
        QVERIFY(m_session->resizeScreen(screen("main"), QSizeF(640, 480), ScreenEdits::Content::Scale).changed);
        QCOMPARE(m_session->undoStack()->count(), steps + 2);
        QCOMPARE(ValueConversion::toPoint(valueOf(rectangle, "position")), ValueConversion::toPoint(place) * 2);
        QCOMPARE(ValueConversion::toSize(valueOf(rectangle, "boundingSize")), outer * 2);
        m_session->undo();
        QCOMPARE(valueOf(rectangle, "position"), place);
        QVERIFY(!m_session->resizeScreen(screen("main"), screen("main")->size(), ScreenEdits::Content::Scale).changed);
        QVERIFY(!m_session->resizeScreen(screen("main"), QSizeF(0, 10), ScreenEdits::Content::Leave).accepted);
    }

    void anElementThatGoesIntoAGroupStaysWhereItIs()
    {
        const auto before = outlines(screen("main"));
        DesignerObject* moved = screen("main")->element(QStringLiteral("rectangle5"));
        DesignerObject* inner = screen("main")->element(QStringLiteral("inner"));
        QVERIFY(m_session->moveToParent({moved}, inner, 0).changed);
        QCOMPARE(moved->parentObject(), inner);
        QCOMPARE(inner->childList()->items().constFirst(), moved);
        QCOMPARE(m_session->selection(), QList<DesignerObject*>{moved});
        const auto after = outlines(screen("main"));
        for (auto outline = before.cbegin(); outline != before.cend(); ++outline)
            QVERIFY2(isSame(outline.value(), after.value(outline.key())), qPrintable(outline.key()->getIdName()));
    }

    void idsThatAreTakenOnTheOtherScreenGiveWay()
    {
        DesignerObject* moved = screen("main")->element(QStringLiteral("rectangle5"));
        const QByteArray before = written(project());
        QVERIFY(m_session->moveToParent({moved}, screen("second"), -1).changed);
        QCOMPARE(moved->getIdName(), QStringLiteral("rectangle6"));
        QCOMPARE(m_session->currentScreen(), screen("second"));
        const QByteArray after = written(project());
        m_session->undo();
        QCOMPARE(moved->getIdName(), QStringLiteral("rectangle5"));
        QCOMPARE(written(project()), before);
        m_session->redo();
        QCOMPARE(written(project()), after);
    }

    void nothingGoesIntoItself()
    {
        DesignerObject* outer = screen("main")->element(QStringLiteral("outer"));
        DesignerObject* inner = screen("main")->element(QStringLiteral("inner"));
        QVERIFY(!m_session->moveToParent({outer}, inner, -1).accepted);
        QVERIFY(!m_session->moveToParent({outer}, outer, -1).accepted);
        const int steps = m_session->undoStack()->count();
        const int place = int(outer->parentObject()->childList()->items().indexOf(outer));
        QVERIFY(!m_session->moveToParent({outer}, screen("main"), place).changed);
        QCOMPARE(m_session->undoStack()->count(), steps);
    }

    void anyMovesKeepThePictureAndAreTakenBackByteForByte()
    {
        const bool held = rc::check("moves in the tree", [] {
            const auto session = sessionOfGroups();
            Project* project = session->project();
            session->undoStack()->clear();
            const QByteArray start = written(project);
            const int count = anyNumber(1, 12);
            for (int i = 0; i < count; ++i) {
                QList<DesignerObject*> elements;
                QList<DesignerObject*> owners;
                for (Screen* screen : project->screens()) {
                    ObjectTree::visitRead(screen, [&](const DesignerObject* visited) {
                        auto* object = const_cast<DesignerObject*>(visited);
                        if (object != screen)
                            elements.append(object);
                        if (object->childList())
                            owners.append(object);
                    });
                }
                QList<DesignerObject*> moved;
                const int wanted = anyNumber(1, 4);
                for (int k = 0; k < wanted; ++k) {
                    DesignerObject* chosen = elements.at(anyNumber(0, int(elements.size())));
                    const auto stands = [](const DesignerObject* object, const DesignerObject* above) {
                        for (; object; object = object->parentObject()) {
                            if (object == above)
                                return true;
                        }
                        return false;
                    };
                    if (std::none_of(moved.cbegin(), moved.cend(), [&](const DesignerObject* other) {
                            return stands(chosen, other) || stands(other, chosen);
                        }))
                        moved.append(chosen);
                }
                DesignerObject* owner = owners.at(anyNumber(0, int(owners.size())));
                QMap<const DesignerObject*, QPolygonF> before;
                for (Screen* screen : project->screens()) {
                    (void)session->scene(screen);
                    before.insert(outlines(screen));
                }
                const EditResult result = session->moveToParent(moved, owner, anyNumber(-1, 4));
                if (!result.accepted)
                    continue; // into itself
                QMap<const DesignerObject*, QPolygonF> after;
                for (const Screen* screen : project->screens())
                    after.insert(outlines(screen));
                RC_ASSERT(after.size() == before.size());
                for (auto outline = before.cbegin(); outline != before.cend(); ++outline)
                    RC_ASSERT(isSame(outline.value(), after.value(outline.key())));
            }
            const QByteArray end = written(project);
            session->undoStack()->goTo(0);
            const bool isStart = written(project) == start;
            RC_ASSERT(isStart);
            session->undoStack()->goTo(session->undoStack()->count());
            const bool isEnd = written(project) == end;
            RC_ASSERT(isEnd);
        });
        QVERIFY(held);
    }

private:
    Project* project() const { return m_session->project(); }
    Screen* screen(const char* id) const { return project()->screen(QString::fromLatin1(id)); }

    std::unique_ptr<EditSession> m_session;
};

QTEST_MAIN(tst_ScreenEdits)
#include "tst_ScreenEdits.moc"
