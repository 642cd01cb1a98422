#include "tests/canvas/CanvasFixture.h"

#include <QtTest>

#include <rapidcheck.h>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

namespace {

struct Action
{
    int kind;
    QPointF from;
    QPointF to;
    int modifiers;
};

/// From \a low to below \a high, evenly in every case: RapidCheck's own range begins with the small numbers.
int anyNumber(int low, int high)
{
    return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange(low, high));
}

Action anyAction()
{
    const auto point = [] { return QPointF(anyNumber(0, 800), anyNumber(0, 480)); };
    Action action;
    action.kind = anyNumber(0, 10);
    action.from = point();
    action.to = point();
    action.modifiers = *rc::gen::element(0, 0, 0, int(Qt::ShiftModifier), int(Qt::ControlModifier));
    return action;
}

/// The values that undo and redo are answerable for: those of the objects that are in the project.
using Values = QMap<QString, QString>;

} // namespace

/// Whatever is done on the canvas, undoing it all gives back every value string, and redoing it all the same again.
class tst_GestureSequences : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void undoingAndRedoingAllGivesEveryValueBack()
    {
        const bool held = rc::check("gestures", [] {
            CanvasFixture canvas;
            DesignerObject* first = canvas.addRectangle(QRectF(100.5, 100, 133.3, 80), 3);
            canvas.set(first, "keepRatio", QStringLiteral("1.5"));
            canvas.addRectangle(QRectF(300, 150, 90, 120));
            DesignerObject* ellipse = canvas.addShape("Ellipse", QRectF(60, 300.25, 140, 100), 5);
            canvas.set(ellipse, "keepRatio", QStringLiteral("0.7"));
            canvas.addShape("Polygon", QRectF(250, 300, 111.1, 0), 3);
            DesignerObject* turned = canvas.addShape("Polygon", QRectF(600, 250, 90, 0));
            canvas.set(turned, "edges", QStringLiteral("8"));
            canvas.set(turned, "rotation", QStringLiteral("angle: 20; fixedPoint: BottomLeft;"));
            canvas.add("PointElement", {{QStringLiteral("position"), QStringLiteral("450,200")}});
            DesignerObject* third = canvas.addRectangle(QRectF(500, 50, 60, 60), 1);
            canvas.addGroup({480, 40}, {third});
            canvas.stack()->clear();

            QList<Values> states = {canvas.values()};
            const int count = anyNumber(1, 40);
            for (int i = 0; i < count; ++i) {
                const Action action = anyAction();
                const Qt::KeyboardModifiers modifiers(action.modifiers);
                // Mostly at something: a random point is empty ground.
                const QList<DesignerObject*> elements = canvas.scene()->selectableElements();
                QPointF from = action.from;
                if (!elements.isEmpty() && action.kind > 1) {
                    // A corner, the middle of a side, the centre, or the knob above.
                    const QGraphicsItem* item = canvas.graphic(elements.at(int(action.from.x()) % elements.size()));
                    const QRectF frame = item->boundingRect();
                    const int cell = int(action.from.y()) % 10;
                    const QPointF knob(frame.center().x(), frame.top() - 22 / canvas.view->zoom());
                    from = item->mapToScene(
                        cell == 9
                            ? knob
                            : frame.topLeft() + QPointF(frame.width() * (cell % 3), frame.height() * (cell / 3)) / 2);
                }
                const int stepsBefore = canvas.stack()->index();
                switch (action.kind) {
                case 0:
                    canvas.drag(from, action.to, modifiers);
                    break;
                case 1:
                    canvas.key(*rc::gen::element(int(Qt::Key_Right), int(Qt::Key_Delete), int(Qt::Key_Tab)), modifiers);
                    break;
                case 2:
                    canvas.click(from, modifiers);
                    break;
                case 3:
                    canvas.press(from, modifiers);
                    canvas.move(action.to, modifiers);
                    canvas.key(Qt::Key_Escape);
                    canvas.release(action.to, modifiers);
                    RC_ASSERT(canvas.values() == states.last());
                    break;
                case 4:
                    canvas.view->setZoom(*rc::gen::element(0.5, 1.0, 1.7));
                    break;
                default:
                    canvas.click(from);
                    canvas.press(from);
                    canvas.move(0.5 * (from + action.to), modifiers);
                    canvas.release(action.to, modifiers);
                }
                RC_ASSERT(!canvas.stack()->isBlocked());
                const int steps = canvas.stack()->index() - stepsBefore;
                RC_ASSERT(steps == 0 || steps == 1);
                if (steps == 1)
                    states.append(canvas.values());
                else
                    RC_ASSERT(canvas.values() == states.last());
            }
            const int last = canvas.stack()->index();
            RC_TAG(last);
            RC_ASSERT(states.size() == last + 1);
            for (int round = 0; round < 2; ++round) {
                for (int i = last; i > 0; --i) {
                    canvas.session->undo();
                    RC_ASSERT(canvas.values() == states.at(i - 1));
                }
                for (int i = 0; i < last; ++i) {
                    canvas.session->redo();
                    RC_ASSERT(canvas.values() == states.at(i + 1));
                }
            }
        });
        QVERIFY(held);
    }
};

QTEST_MAIN(tst_GestureSequences)
#include "tst_GestureSequences.moc"
