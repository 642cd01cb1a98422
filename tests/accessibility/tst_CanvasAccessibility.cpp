#include "host/core/accessibility/CanvasAnnouncer.h"
#include "host/core/arrange/Grouping.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/Screen.h"
#include "host/core/objects/VisualElement.h"
#include "host/core/plugins/DesignerFactory.h"
#include "host/core/project/Project.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QtTest>

#include <random>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;

namespace {

struct Announced
{
    QAccessible::Event type;
    const QObject* object;
};

QVector<Announced> announced;

void keepEvent(QAccessibleEvent* event)
{
    announced.append({event->type(), event->object()});
}

bool wasAnnounced(QAccessible::Event type, const QObject* object)
{
    return std::any_of(announced.cbegin(), announced.cend(),
                       [type, object](const Announced& event) { return event.type == type && event.object == object; });
}

/// Asks for everything below \a found, as a screen reader does that lists a window; how many there are.
int readAll(QAccessibleInterface* found)
{
    int count = 0;
    for (int i = 0; i < found->childCount(); ++i) {
        QAccessibleInterface* child = found->child(i);
        if (!child || !child->isValid())
            qFatal("a child is not valid");
        if (child->parent() != found || found->indexOfChild(child) != i)
            qFatal("parent and child do not know each other");
        if (child->text(QAccessible::Name).isEmpty())
            qFatal("a child has no name");
        (void)child->rect();
        (void)child->role();
        (void)child->state();
        count += 1 + readAll(child);
    }
    return count;
}

} // namespace

/// The elements on the canvas, as screen readers see them.
class tst_CanvasAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(DesignerFactory::instance()->loadInstalledPlugins().isEmpty());
        CanvasAnnouncer::setListener(keepEvent);
    }

    void init()
    {
        auto project = std::make_unique<Project>();
        QVERIFY(project->initialize());
        m_session = std::make_unique<EditSession>(std::move(project));
        QVERIFY(m_session->addScreen(QStringLiteral("main"), QSizeF(400, 300)).accepted);
        m_view = std::make_unique<CanvasView>(m_session.get());
        m_view->resize(500, 400);
        m_view->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
        announced.clear();
    }

    void cleanup()
    {
        m_view.reset();
        m_session.reset();
    }

    void theCanvasHasTheElementsAsChildren()
    {
        QCOMPARE(canvas()->role(), QAccessible::Canvas);
        QVERIFY(!canvas()->text(QAccessible::Name).isEmpty());
        QCOMPARE(canvas()->childCount(), 0);
        QCOMPARE(canvas()->text(QAccessible::Description), QStringLiteral("Screen main with 0 elements"));
        DesignerObject* back = add("Rectangle", 10, 10);
        DesignerObject* front = add("Ellipse", 20, 20);
        QCOMPARE(canvas()->childCount(), 2);
        QCOMPARE(canvas()->child(0)->object(), back);
        QCOMPARE(canvas()->child(1)->object(), front);
        QVERIFY(!canvas()->child(2));
        QVERIFY(!canvas()->child(-1));
        QCOMPARE(canvas()->indexOfChild(of(front)), 1);
        QCOMPARE(of(front)->parent(), canvas());
    }

    void anElementHasNameRoleAndDescription()
    {
        QAccessibleInterface* rectangle = of(add("Rectangle", 10, 20));
        QCOMPARE(rectangle->text(QAccessible::Name), QStringLiteral("rectangle1, Rectangle"));
        QCOMPARE(rectangle->text(QAccessible::Description), QStringLiteral("x 10, y 20, 100 × 75"));
        QCOMPARE(rectangle->role(), QAccessible::Graphic);
        DesignerObject* box = add("TextBox", 0, 0);
        QVERIFY(m_session->setProperty(box, QStringLiteral("text"), QStringLiteral("21 °C")).accepted);
        QCOMPARE(of(box)->text(QAccessible::Name), QStringLiteral("textBox1, Text Box: 21 °C"));
        QCOMPARE(of(box)->text(QAccessible::Value), QStringLiteral("21 °C"));
        QCOMPARE(of(box)->role(), QAccessible::StaticText);
    }

    void theRectangleIsWhereTheElementIsSeen()
    {
        DesignerObject* element = add("Rectangle", 40, 30);
        for (const double zoom : {1., 2.}) {
            m_view->setZoom(zoom);
            const QPoint corner = m_view->viewport()->mapToGlobal(m_view->mapFromScene(QPointF(40, 30)));
            const QRect rect = of(element)->rect();
            QVERIFY(qAbs(rect.left() - corner.x()) <= 1 && qAbs(rect.top() - corner.y()) <= 1);
            QVERIFY(qAbs(rect.width() - 100 * zoom) <= 2);
            QVERIFY(qAbs(rect.height() - 75 * zoom) <= 2);
            QCOMPARE(canvas()->childAt(rect.center().x(), rect.center().y()), of(element));
        }
        const QPoint outside = m_view->viewport()->mapToGlobal(QPoint(-10, -10));
        QVERIFY(!canvas()->childAt(outside.x(), outside.y()));
    }

    void groupsHoldTheirElements()
    {
        DesignerObject* first = add("Rectangle", 10, 10);
        DesignerObject* second = add("Rectangle", 200, 100);
        QVERIFY(Grouping::group(m_session.get(), {first, second}).accepted);
        QCOMPARE(canvas()->childCount(), 1);
        QAccessibleInterface* found = canvas()->child(0);
        QCOMPARE(found->role(), QAccessible::Grouping);
        QCOMPARE(found->childCount(), 2);
        QCOMPARE(found->indexOfChild(of(second)), 1);
        QCOMPARE(found->child(0)->object(), first);
        QCOMPARE(of(first)->parent(), found);
        const QPoint center = of(first)->rect().center();
        QCOMPARE(canvas()->childAt(center.x(), center.y()), found);
        QCOMPARE(found->childAt(center.x(), center.y()), of(first));
    }

    void selectionIsStateAndAction()
    {
        DesignerObject* one = add("Rectangle", 10, 10);
        DesignerObject* other = add("Ellipse", 200, 10);
        m_session->setSelection({one});
        QVERIFY(of(one)->state().selected);
        QVERIFY(of(one)->state().selectable);
        QVERIFY(!of(other)->state().selected);
        announced.clear();
        QAccessibleActionInterface* actions = of(other)->actionInterface();
        QVERIFY(actions);
        QCOMPARE(actions->actionNames(), QStringList{QStringLiteral("select")});
        QCOMPARE(actions->localizedActionName(QStringLiteral("select")), QStringLiteral("Select"));
        actions->doAction(QStringLiteral("press"));
        QCOMPARE(m_session->selection(), QList<DesignerObject*>{one});
        actions->doAction(QStringLiteral("select"));
        QCOMPARE(m_session->selection(), QList<DesignerObject*>{other});
        QVERIFY(of(other)->state().selected);
        QVERIFY(wasAnnounced(QAccessible::Selection, other));
        QVERIFY(wasAnnounced(QAccessible::StateChanged, one));
        QVERIFY(wasAnnounced(QAccessible::StateChanged, other));
    }

    void theSelectedElementHasTheFocusOfTheCanvas()
    {
        DesignerObject* element = add("Rectangle", 10, 10);
        m_session->setSelection({});
        QApplication::setActiveWindow(m_view.get());
        m_view->setFocus();
        QVERIFY(m_view->hasFocus());
        announced.clear();
        m_session->setSelection({element});
        QVERIFY(of(element)->state().focused);
        QCOMPARE(canvas()->focusChild(), of(element));
        QVERIFY(wasAnnounced(QAccessible::Focus, element));
    }

    void hiddenAndLockedElementsSaySo()
    {
        DesignerObject* element = add("Rectangle", 10, 10);
        QVERIFY(!of(element)->state().invisible);
        announced.clear();
        QVERIFY(m_session->setHidden({element}, true).accepted);
        QVERIFY(of(element)->state().invisible);
        QVERIFY(wasAnnounced(QAccessible::StateChanged, element));
        QVERIFY(of(element)->actionInterface()->actionNames().isEmpty());
        QVERIFY(m_session->setHidden({element}, false).accepted);
        QVERIFY(m_session->setLocked({element}, true).accepted);
        QVERIFY(!of(element)->state().selectable);
        QVERIFY(!of(element)->state().movable);
        of(element)->actionInterface()->doAction(QStringLiteral("select"));
        QVERIFY(m_session->selection().isEmpty());
    }

    void anElementOutsideOfTheViewIsOffscreen()
    {
        DesignerObject* element = add("Rectangle", 10, 10);
        QVERIFY(!of(element)->state().offscreen);
        QVERIFY(m_session->setProperty(element, QStringLiteral("position"), QStringLiteral("9000,9000")).accepted);
        QVERIFY(of(element)->state().offscreen);
    }

    void editsAreAnnounced()
    {
        DesignerObject* element = add("TextBox", 10, 10);
        QVERIFY(wasAnnounced(QAccessible::ObjectCreated, element));
        announced.clear();
        QVERIFY(m_session->setProperty(element, QStringLiteral("position"), QStringLiteral("30,40")).accepted);
        QVERIFY(wasAnnounced(QAccessible::LocationChanged, element));
        QVERIFY(!wasAnnounced(QAccessible::NameChanged, element));
        QVERIFY(m_session->setProperty(element, QStringLiteral("text"), QStringLiteral("new")).accepted);
        QVERIFY(wasAnnounced(QAccessible::NameChanged, element));
        announced.clear();
        QVERIFY(m_session->rename(element, QStringLiteral("label")).accepted);
        QVERIFY(wasAnnounced(QAccessible::NameChanged, element));
        announced.clear();
        QVERIFY(m_session->removeElements({element}).accepted);
        QVERIFY(wasAnnounced(QAccessible::ObjectReorder, m_view.get()));
    }

    void aRemovedElementIsNotValidUntilItComesBack()
    {
        DesignerObject* element = add("Rectangle", 10, 10);
        QAccessibleInterface* found = of(element);
        QVERIFY(found->isValid());
        QVERIFY(m_session->removeElements({element}).accepted);
        QVERIFY(!found->isValid());
        QVERIFY(found->state().invalid);
        QVERIFY(!found->parent());
        QCOMPARE(found->rect(), QRect());
        QCOMPARE(found->text(QAccessible::Name), QString());
        found->actionInterface()->doAction(QStringLiteral("select"));
        QVERIFY(m_session->undo().accepted);
        QVERIFY(found->isValid());
        QCOMPARE(found->parent(), canvas());
    }

    void nothingIsMadeBeforeSomebodyAsks()
    {
        CanvasAnnouncer::setListener(nullptr);
        for (int i = 0; i < 2000; ++i)
            add("Rectangle", i % 40 * 10, i / 40 * 6);
        announced.clear();
        QElapsedTimer timer;
        timer.start();
        m_session->setSelection(m_session->currentScreen()->childList()->items());
        m_session->setSelection({});
        QVERIFY(announced.isEmpty());
        CanvasAnnouncer::setListener(keepEvent);
        m_session->setSelection(m_session->currentScreen()->childList()->items());
        QVERIFY(wasAnnounced(QAccessible::SelectionWithin, m_view.get()));
        QVERIFY2(announced.size() < 100, "2 000 elements are not announced one by one");
        QCOMPARE(readAll(canvas()), 2000);
        QVERIFY2(timer.elapsed() < 10000, qPrintable(QString::number(timer.elapsed())));
    }

    void readingWhileSomebodyEditsFindsNothingThatHasGone()
    {
        QVERIFY(rc::check("the tree is whole after every edit", [this](const std::vector<quint32>& edits) {
            cleanup();
            init();
            for (const quint32 edit : edits) {
                editAtRandom(edit);
                (void)readAll(canvas());
                for (const Announced& event : qAsConst(announced))
                    RC_ASSERT(event.object);
                announced.clear();
            }
        }));
    }

private:
    QAccessibleInterface* canvas() const { return QAccessible::queryAccessibleInterface(m_view.get()); }
    static QAccessibleInterface* of(DesignerObject* element) { return QAccessible::queryAccessibleInterface(element); }

    DesignerObject* add(const char* className, double x, double y) const
    {
        DesignerObject* added = nullptr;
        const EditResult result =
            m_session->addElement(QString::fromLatin1(className), m_session->currentScreen(), {},
                                  {{QStringLiteral("position"), QStringLiteral("%1,%2").arg(x).arg(y)}}, &added);
        if (!result.accepted)
            qFatal("%s", qPrintable(result.message));
        return added;
    }

    void editAtRandom(quint32 seed) const
    {
        std::minstd_rand random(seed);
        const QVector<DesignerObject*> elements = m_session->currentScreen()->childList()->items();
        DesignerObject* one = elements.isEmpty() ? nullptr : elements.at(int(random() % quint32(elements.size())));
        const quint32 what = random() % 9;
        if (what < 2 || !one) {
            static const char* const classes[] = {"Rectangle", "TextBox", "Ellipse"};
            add(classes[random() % 3], random() % 300, random() % 200);
        } else if (what == 2) {
            m_session->removeElements({one});
        } else if (what == 3) {
            m_session->setSelection({one});
        } else if (what == 4) {
            m_session->undo();
        } else if (what == 5) {
            m_session->redo();
        } else if (what == 6) {
            m_session->setHidden({one}, random() % 2 == 0);
        } else if (what == 7) {
            DesignerObject* other = elements.at(int(random() % quint32(elements.size())));
            if (other->childList() && other != one)
                m_session->moveToParent({one}, other, -1);
            else if (other != one)
                Grouping::group(m_session.get(), {one, other});
        } else {
            m_session->addScreen();
        }
    }

    std::unique_ptr<EditSession> m_session;
    std::unique_ptr<CanvasView> m_view;
};

QTEST_MAIN(tst_CanvasAccessibility)
#include "tst_CanvasAccessibility.moc"
