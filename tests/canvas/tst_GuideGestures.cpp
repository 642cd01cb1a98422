#include "tests/canvas/CanvasFixture.h"

#include "host/core/canvas/CanvasGuides.h"
#include "host/core/canvas/CanvasRuler.h"
#include "host/core/project/ProjectChecker.h"

#include <QApplication>
#include <QMouseEvent>
#include <QScrollBar>
#include <QSignalSpy>
#include <QtTest>

using namespace Korvex::Meridane::Designer;
using Test::CanvasFixture;

namespace {

/// A canvas with rulers; it does not snap.
struct RuledCanvas : CanvasFixture
{
    RuledCanvas()
    {
        CanvasAids aids;
        aids.rulers = true;
        view->setAids(aids);
        QApplication::processEvents();
    }

    [[nodiscard]] CanvasRuler* ruler(Qt::Orientation orientation) const
    {
        const QList<CanvasRuler*> rulers = view->findChildren<CanvasRuler*>();
        for (CanvasRuler* ruler : rulers) {
            if ((ruler->width() > ruler->height()) == (orientation == Qt::Horizontal))
                return ruler;
        }
        return nullptr;
    }

    /// Sends the ruler a mouse event at a point of the screen, as the desktop does while a button is held down over it.
    void onRuler(Qt::Orientation orientation, QEvent::Type type, const QPointF& scenePos,
                 Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        CanvasRuler* target = ruler(orientation);
        const QPointF global = view->viewport()->mapToGlobal(view->viewportTransform().map(scenePos));
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, target->mapFromGlobal(global), global, button, held, modifiers);
        QApplication::sendEvent(target, &event);
    }

    void dragOut(Qt::Orientation orientation, const QPointF& to) const
    {
        const QPointF from = view->viewportTransform().inverted().map(QPointF(-5, -5));
        onRuler(orientation, QEvent::MouseButtonPress,
                orientation == Qt::Horizontal ? QPointF(to.x(), from.y()) : QPointF(from.x(), to.y()));
        onRuler(orientation, QEvent::MouseMove, to);
        onRuler(orientation, QEvent::MouseButtonRelease, to);
    }

    void setGuides(const QString& text) { screen->setEditorMark(QStringLiteral("guides"), text); }
    [[nodiscard]] QString guides() const { return screen->editorMark(QStringLiteral("guides")); }

    /// Whether the picture of the viewport has the colour of guides at a point of the screen.
    [[nodiscard]] bool showsGuideAt(const QPointF& scenePos) const
    {
        const QImage picture = view->viewport()->grab().toImage();
        const QPointF place = view->viewportTransform().map(scenePos) * picture.devicePixelRatio();
        return picture.pixelColor(int(place.x()), int(place.y())) == CanvasGuides::color();
    }
};

} // namespace

/// Guides with the mouse. Every change is one undo step.
class tst_GuideGestures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void guidesAreDraggedOutOfTheRulers()
    {
        RuledCanvas canvas;
        canvas.dragOut(Qt::Vertical, {120, 200});
        QCOMPARE(canvas.guides(), QStringLiteral("x 120"));
        canvas.dragOut(Qt::Horizontal, {300, 77});
        QCOMPARE(canvas.guides(), QStringLiteral("x 120, y 77"));
        QVERIFY(canvas.showsGuideAt({120, 300}));
        QVERIFY(canvas.showsGuideAt({400, 77}));
        QCOMPARE(canvas.steps(), 2);
        QCOMPARE(canvas.stack()->text(0), QStringLiteral("Add Guide"));
        canvas.session->undo();
        canvas.session->undo();
        QCOMPARE(canvas.guides(), QString());
        QVERIFY(!canvas.showsGuideAt({120, 300}));
        canvas.session->redo();
        canvas.session->redo();
        QCOMPARE(canvas.guides(), QStringLiteral("x 120, y 77"));
    }

    void aGuideLetGoOverTheRulerDoesNotComeToBe()
    {
        RuledCanvas canvas;
        const QPointF outside = canvas.view->viewportTransform().inverted().map(QPointF(-3, 100));
        canvas.dragOut(Qt::Vertical, outside);
        QCOMPARE(canvas.guides(), QString());
        QCOMPARE(canvas.steps(), 0);
    }

    void aGuideIsMovedAndDraggedBackToTheRuler()
    {
        RuledCanvas canvas;
        canvas.setGuides(QStringLiteral("x 120, y 50.5"));
        canvas.press({121, 300});
        canvas.move({180, 310});
        QVERIFY(canvas.showsGuideAt({179, 20}) || canvas.showsGuideAt({180, 20}));
        QVERIFY(!canvas.showsGuideAt({120, 20}));
        canvas.release({180, 310});
        QCOMPARE(canvas.guides(), QStringLiteral("x 180, y 50.5"));
        QCOMPARE(canvas.stack()->text(0), QStringLiteral("Move Guide"));
        const QPointF above = canvas.view->viewportTransform().inverted().map(QPointF(300, -4));
        canvas.drag({300, 51}, above);
        QCOMPARE(canvas.guides(), QStringLiteral("x 180"));
        QCOMPARE(canvas.stack()->text(1), QStringLiteral("Remove Guide"));
        canvas.session->undo();
        canvas.session->undo();
        QCOMPARE(canvas.guides(), QStringLiteral("x 120, y 50.5"));
        QCOMPARE(canvas.steps(), 2);
    }

    void escapeTakesTheGuideBack()
    {
        RuledCanvas canvas;
        canvas.setGuides(QStringLiteral("x 120"));
        canvas.press({120, 300});
        canvas.move({180, 300});
        canvas.key(Qt::Key_Escape);
        QVERIFY(!canvas.view->isGestureRunning());
        QVERIFY(canvas.showsGuideAt({120, 20}));
        canvas.release({180, 300});
        QCOMPARE(canvas.guides(), QStringLiteral("x 120"));

        canvas.onRuler(Qt::Vertical, QEvent::MouseButtonPress, {-20, 100});
        canvas.onRuler(Qt::Vertical, QEvent::MouseMove, {60, 100});
        QVERIFY(canvas.view->isGestureRunning());
        QVERIFY(canvas.stack()->isBlocked());
        canvas.key(Qt::Key_Escape);
        canvas.onRuler(Qt::Vertical, QEvent::MouseButtonRelease, {60, 100});
        QCOMPARE(canvas.guides(), QStringLiteral("x 120"));
        QCOMPARE(canvas.steps(), 0);
        QVERIFY(!canvas.stack()->isBlocked());
    }

    void aClickOnAGuideChangesNothing()
    {
        RuledCanvas canvas;
        canvas.setGuides(QStringLiteral("x 120.25"));
        canvas.click({120, 300});
        QCOMPARE(canvas.guides(), QStringLiteral("x 120.25"));
        QCOMPARE(canvas.steps(), 0);
    }

    void lockedGuidesAreNotTakenHoldOf()
    {
        RuledCanvas canvas;
        DesignerObject* below = canvas.addRectangle(QRectF(100, 280, 60, 60));
        canvas.setGuides(QStringLiteral("x 120"));
        CanvasAids aids = canvas.view->aids();
        aids.guidesLocked = true;
        canvas.view->setAids(aids);
        canvas.drag({120, 300}, {150, 300});
        QCOMPARE(canvas.guides(), QStringLiteral("x 120"));
        QCOMPARE(canvas.value(below, "position"), QStringLiteral("130,280"));
        // New ones can be made all the same.
        canvas.dragOut(Qt::Horizontal, {200, 30});
        QCOMPARE(canvas.guides(), QStringLiteral("x 120, y 30"));
    }

    void handlesComeBeforeGuides()
    {
        RuledCanvas canvas;
        DesignerObject* element = canvas.addRectangle(QRectF(120, 100, 100, 80));
        canvas.setGuides(QStringLiteral("x 120"));
        canvas.select({element});
        canvas.drag({120, 140}, {110, 140});
        QCOMPARE(canvas.value(element, "size"), QStringLiteral("110,80"));
        QCOMPARE(canvas.guides(), QStringLiteral("x 120"));
    }

    void guidesSnapToElements()
    {
        RuledCanvas canvas;
        canvas.addRectangle(QRectF(203, 100, 100, 80));
        CanvasAids aids = canvas.view->aids();
        aids.snapping = true;
        canvas.view->setAids(aids);
        canvas.setGuides(QStringLiteral("x 50"));
        canvas.drag({50, 400}, {200, 400});
        QCOMPARE(canvas.guides(), QStringLiteral("x 203"));
        canvas.drag({203, 400}, {199, 400}, Qt::ControlModifier);
        QCOMPARE(canvas.guides(), QStringLiteral("x 199"));
    }

    void aDoubleClickAsksForTheExactPosition()
    {
        RuledCanvas canvas;
        canvas.setGuides(QStringLiteral("x 120, y 60"));
        QSignalSpy activated(canvas.view.get(), &CanvasView::guideActivated);
        QTest::mouseDClick(canvas.view->viewport(), Qt::LeftButton, {},
                           canvas.view->viewportTransform().map(QPointF(300, 60)).toPoint());
        QCOMPARE(activated.count(), 1);
        QCOMPARE(activated.first().first().toInt(), 1);
        QVERIFY(!canvas.view->isGestureRunning());
    }

    void whatCannotBeReadIsKept()
    {
        RuledCanvas canvas;
        canvas.setGuides(QStringLiteral("slanted, x 120"));
        canvas.drag({120, 300}, {130, 300});
        QCOMPARE(canvas.guides(), QStringLiteral("slanted, x 130"));
        canvas.view->guides()->clear();
        QCOMPARE(canvas.guides(), QStringLiteral("slanted"));
        QCOMPARE(canvas.stack()->text(1), QStringLiteral("Clear Guides"));
        canvas.view->guides()->clear();
        QCOMPARE(canvas.steps(), 2);
    }

    void whatCannotBeReadIsAProblem()
    {
        RuledCanvas canvas;
        canvas.setGuides(QStringLiteral("x 1, slanted, y 2"));
        const QList<Problem> problems = ProjectChecker::check(canvas.project);
        QCOMPARE(problems.size(), 1);
        QCOMPARE(problems.first().severity, Problem::Severity::Warning);
        QCOMPARE(problems.first().object, QStringLiteral("main"));
        QVERIFY2(problems.first().message.contains(QStringLiteral("\"slanted\"")),
                 qPrintable(problems.first().message));
        canvas.setGuides(QStringLiteral("x 1, y 2"));
        QVERIFY(ProjectChecker::check(canvas.project).isEmpty());
    }

    void theCursorTellsWhereAGuideGoes()
    {
        RuledCanvas canvas;
        canvas.setGuides(QStringLiteral("x 120, y 60"));
        canvas.move({120, 300});
        QCOMPARE(canvas.view->viewport()->cursor().shape(), Qt::SplitHCursor);
        canvas.move({300, 60});
        QCOMPARE(canvas.view->viewport()->cursor().shape(), Qt::SplitVCursor);
        canvas.move({300, 300});
        QCOMPARE(canvas.view->viewport()->cursor().shape(), Qt::ArrowCursor);
    }

    void theLabelsOfARulerAreFarEnoughApartAndRound()
    {
        for (double zoom = 0.1; zoom <= 32; zoom *= 1.07) {
            const double step = CanvasRuler::labelStep(zoom);
            QVERIFY(step * zoom >= 56 || qFuzzyCompare(step * zoom, 56));
            QVERIFY(step >= 1);
            const double mantissa = step / std::pow(10, std::floor(std::log10(step) + 1e-9));
            QVERIFY2(qAbs(mantissa - 1) < 1e-6 || qAbs(mantissa - 2) < 1e-6 || qAbs(mantissa - 5) < 1e-6,
                     qPrintable(QString::number(step)));
        }
    }

    void rulersMarkTheMouseAndTheSelection()
    {
        RuledCanvas canvas;
        DesignerObject* element = canvas.addRectangle(QRectF(200, 100, 100, 80));
        const CanvasRuler* top = canvas.ruler(Qt::Horizontal);
        const auto colorAt = [&](double x) {
            const QImage picture = const_cast<CanvasRuler*>(top)->grab().toImage();
            return picture.pixelColor(int(canvas.view->viewportTransform().map(QPointF(x, 0)).x()), 2);
        };
        const QColor plain = colorAt(273);
        canvas.select({element});
        QApplication::processEvents();
        QVERIFY(colorAt(273) != plain);
        QCOMPARE(colorAt(333), plain);
        canvas.press({250, 140});
        canvas.move({320, 140});
        QApplication::processEvents();
        QVERIFY(colorAt(333) != plain);
        canvas.key(Qt::Key_Escape);
        canvas.release({320, 140});
        canvas.select({});
        QApplication::processEvents();
        canvas.move({273, 300});
        QCOMPARE(colorAt(273), canvas.view->palette().color(QPalette::Highlight));
        QEvent leave(QEvent::Leave);
        QApplication::sendEvent(canvas.view->viewport(), &leave);
        QCOMPARE(colorAt(273), plain);
    }

    void rulersMakeRoomAndGiveItBack()
    {
        RuledCanvas canvas;
        const CanvasRuler* top = canvas.ruler(Qt::Horizontal);
        QVERIFY(top->isVisible());
        QCOMPARE(top->geometry().bottom() + 1, canvas.view->viewport()->geometry().top());
        QCOMPARE(top->width(), canvas.view->viewport()->width());
        canvas.view->setAids({});
        QVERIFY(!top->isVisible());
        QCOMPARE(canvas.view->viewport()->geometry().topLeft(), QPoint(0, 0));
    }
};

QTEST_MAIN(tst_GuideGestures)
#include "tst_GuideGestures.moc"
