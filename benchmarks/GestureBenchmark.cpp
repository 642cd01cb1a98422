// The frames of a gesture among 2 000 elements: the time from a move of the mouse to the repainted view, with snapping on.

#include "benchmarks/MixedScreen.h"
#include "benchmarks/RectangleProject.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/canvas/GraphicsItem.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"

#include <benchmark/benchmark.h>

#include <QApplication>
#include <QGraphicsItem>
#include <QMouseEvent>

#include <algorithm>
#include <chrono>
#include <ctime>

using namespace Korvex::Meridane;
using namespace Korvex::Meridane::Designer;

namespace {

constexpr int ElementCount = 2000;
constexpr int Frames = 240;

/// The time in milliseconds that this process has worked, which other programs on the machine do not add to.
double workedTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) * 1e3 + double(time.tv_nsec) * 1e-6;
}

/// The value below which \a share of \a values lies.
double quantile(std::vector<double> values, double share)
{
    const auto place = values.begin() + std::ptrdiff_t(share * double(values.size() - 1));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

/// The canvas of the application, as large as in a usual window.
class Canvas
{
public:
    Canvas()
        : m_session(Benchmarks::makeMixedScreen(ElementCount))
        , m_view(m_session.get())
    {
        CanvasAids aids;
        aids.snapping = true;
        aids.rulers = true;
        aids.readout = true;
        m_view.setAids(aids);
        m_view.resize(1280, 800);
        m_view.show();
        QCoreApplication::processEvents();
        m_view.zoomToFit();
        QCoreApplication::processEvents();
    }

    [[nodiscard]] CanvasView& view() { return m_view; }
    /// Elements of a medium size from all over the screen.
    [[nodiscard]] QList<DesignerObject*> elements(int count) const
    {
        QList<DesignerObject*> chosen;
        const QList<DesignerObject*> all = m_view.canvasScene()->selectableElements();
        for (qsizetype i = 0; chosen.size() < count; ++i)
            chosen.append(all.at((i * 97 + 11) % all.size()));
        return chosen;
    }

    void mouse(QEvent::Type type, const QPointF& viewPos, bool held)
    {
        const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, viewPos, m_view.viewport()->mapToGlobal(viewPos), button,
                          held ? Qt::LeftButton : Qt::NoButton, Qt::NoModifier);
        QCoreApplication::sendEvent(m_view.viewport(), &event);
        // What the move has asked for is painted now, as the next frame would.
        QCoreApplication::processEvents();
    }

    /// Drags from \a from along a curve and measures each frame.
    void drag(benchmark::State& state, const QPointF& from)
    {
        using Clock = std::chrono::steady_clock;
        std::vector<double> frames; // ms
        std::vector<double> work; // ms
        for ([[maybe_unused]] const auto _ : state) {
            mouse(QEvent::MouseButtonPress, from, true);
            for (int frame = 1; frame <= Frames; ++frame) {
                const double angle = frame * 0.05;
                const QPointF there = from + QPointF(std::round(200 * std::sin(angle)), std::round(frame * 0.8));
                const auto before = Clock::now();
                const double workBefore = workedTime();
                mouse(QEvent::MouseMove, there, true);
                frames.push_back(std::chrono::duration<double, std::milli>(Clock::now() - before).count());
                work.push_back(workedTime() - workBefore);
            }
            if (!m_view.isGestureRunning())
                state.SkipWithError("there was nothing to drag");
            m_view.cancelGesture();
            mouse(QEvent::MouseButtonRelease, from, false);
        }
        state.counters["median_ms"] = quantile(frames, 0.5);
        state.counters["p95_ms"] = quantile(frames, 0.95);
        state.counters["median_work_ms"] = quantile(work, 0.5);
        state.counters["p95_work_ms"] = quantile(work, 0.95);
    }

    void select(const QList<DesignerObject*>& elements) { m_session->setSelection(elements); }

    /// The middle of \a element on the view.
    [[nodiscard]] QPointF middle(const DesignerObject* element) const
    {
        return m_view.viewportTransform().map(element->graphicsItem()->graphic()->sceneBoundingRect().center());
    }

private:
    std::unique_ptr<EditSession> m_session;
    CanvasView m_view;
};

void moveElements(benchmark::State& state)
{
    Canvas canvas;
    const QList<DesignerObject*> moved = canvas.elements(int(state.range(0)));
    canvas.select(moved);
    // Whatever lies in front of it is not what is dragged.
    moved.first()->graphicsItem()->graphic()->setZValue(1e6);
    canvas.drag(state, canvas.middle(moved.first()));
}

void resizeElement(benchmark::State& state)
{
    Canvas canvas;
    // One that is large enough for handles at this zoom.
    const QList<DesignerObject*> elements = canvas.elements(200);
    DesignerObject* resized = nullptr;
    for (DesignerObject* element : elements) {
        const GraphicsItem* item = element->graphicsItem();
        if (item->hasFrameHandles()
            && (!resized || item->outerRect().width() > resized->graphicsItem()->outerRect().width()))
            resized = element;
    }
    if (!resized) {
        state.SkipWithError("No element has handles at this zoom.");
        return;
    }
    canvas.select({resized});
    const QGraphicsItem* graphic = resized->graphicsItem()->graphic();
    const QPointF corner = graphic->mapToScene(resized->graphicsItem()->outerRect().bottomRight());
    canvas.drag(state, canvas.view().viewportTransform().map(corner));
}

void rubberBand(benchmark::State& state)
{
    Canvas canvas;
    canvas.select({});
    // From beside the screen over much of it.
    const QRectF screen = canvas.view().viewportTransform().mapRect(canvas.view().canvasScene()->sceneRect());
    canvas.drag(state, QPointF(screen.center().x(), screen.top() - 8));
}

void hover(benchmark::State& state)
{
    Canvas canvas;
    int step = 0;
    for ([[maybe_unused]] const auto _ : state) {
        ++step;
        canvas.mouse(QEvent::MouseMove, QPointF(200 + step * 37 % 800, 100 + step * 23 % 600), false);
    }
}

} // namespace

BENCHMARK(moveElements)->Arg(1)->Arg(20)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();
BENCHMARK(resizeElement)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();
BENCHMARK(rubberBand)->Unit(benchmark::kMillisecond)->Iterations(1)->UseRealTime();
BENCHMARK(hover)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QPA_UPDATE_IDLE_TIME", "0");
    QApplication application(argc, argv);
    Benchmarks::loadRectanglePlugin();
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
