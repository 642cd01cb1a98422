// One property change with its repaint, and the memory of an element with its canvas item, beside a bare
// QGraphicsScene that shows the same rectangles.

#include "benchmarks/RatioReporter.h"
#include "benchmarks/RectangleProject.h"

#include "host/core/canvas/CanvasScene.h"
#include "host/core/canvas/CanvasView.h"
#include "host/core/canvas/EditSession.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/ObjectListProperty.h"

#include <QApplication>
#include <QDir>
#include <QGraphicsRectItem>
#include <QGraphicsView>
#include <QTemporaryDir>

#include <malloc.h>

using namespace Korvex::Meridane;
using namespace Korvex::Meridane::Designer;

namespace {

double heapBytes()
{
    const auto info = mallinfo2();
    return double(info.uordblks + info.hblkhd);
}

/// An open project of \a count rectangles, shown.
struct Shown
{
    explicit Shown(int count)
    {
        const QTemporaryDir folder;
        Benchmarks::writeRectangleProject(folder.path(), count);
        const double before = heapBytes();
        session = std::make_unique<EditSession>(ProjectStore::load(folder.path()).project);
        session->scene(session->currentScreen());
        bytesPerElement = (heapBytes() - before) / count;
        view = std::make_unique<CanvasView>(session.get());
        view->resize(800, 480);
        view->show();
        QCoreApplication::processEvents();
    }

    std::unique_ptr<EditSession> session;
    std::unique_ptr<CanvasView> view;
    double bytesPerElement = 0;
};

/// An index that jumps about, and a width that is another one each time an index comes round again.
qsizetype scattered(qint64 step, int count)
{
    return step * 7919 % count;
}

int width(qint64 step)
{
    return 12 + int(step % 41);
}

void change(benchmark::State& state)
{
    const int count = int(state.range(0));
    Shown shown(count);
    const auto elements = shown.session->currentScreen()->childList()->items();
    qint64 step = 0;
    for (auto _ : state) {
        DesignerObject* element = elements.at(scattered(step, count));
        if (!shown.session->setProperty(element, QStringLiteral("size"), QStringLiteral("%1,30").arg(width(step++)))
                 .changed)
            state.SkipWithError("nothing changed");
        QCoreApplication::processEvents();
    }
    state.counters["bytes/element"] = shown.bytesPerElement;
}

void bareChange(benchmark::State& state)
{
    const int count = int(state.range(0));
    QGraphicsScene scene(0, 0, 800, 480);
    QVector<QGraphicsRectItem*> items;
    const double before = heapBytes();
    for (int i = 0; i < count; ++i) {
        auto* item = scene.addRect(0, 0, 12 + i % 40, 9 + i % 31 * 0.5, QPen(Qt::black, i % 3),
                                   QColor::fromHsv(i * 7 % 360, 160, 220));
        item->setPos(i * 37 % 780, i * 53 % 460);
        items.append(item);
    }
    state.counters["bytes/element"] = (heapBytes() - before) / count;
    QGraphicsView view(&scene);
    view.setRenderHint(QPainter::Antialiasing);
    view.resize(800, 480);
    view.show();
    QCoreApplication::processEvents();
    qint64 step = 0;
    for (auto _ : state) {
        items.at(scattered(step, count))->setRect(0, 0, width(step), 30);
        ++step;
        QCoreApplication::processEvents();
    }
}

} // namespace

BENCHMARK(change)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond)->UseRealTime();
BENCHMARK(bareChange)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond)->UseRealTime();

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Benchmarks::loadRectanglePlugin();
    benchmark::Initialize(&argc, argv);
    Benchmarks::RatioReporter reporter;
    for (const std::string count : {"100", "1000", "10000"})
        reporter.addRatio({"property change with repaint to a bare scene's, " + count + " items", "change/" + count, 1,
                           "bareChange/" + count, 1});
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
