// Loading, exporting and saving projects of 100, 1 000 and 10 000 rectangles.

#include "benchmarks/RatioReporter.h"
#include "benchmarks/RectangleProject.h"

#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/qml/QmlExporter.h"

#include <QDir>
#include <QGuiApplication>
#include <QTemporaryDir>

using namespace Korvex::Meridane;
using namespace Korvex::Meridane::Designer;

namespace {

/// A folder with the project of \a count rectangles, made once.
QString projectFolder(int count)
{
    static QTemporaryDir root;
    const QString folder = root.filePath(QString::number(count));
    if (!QDir(folder).exists()) {
        QDir().mkpath(folder);
        Benchmarks::writeRectangleProject(folder, count);
    }
    return folder;
}

std::unique_ptr<Project> loadAll(int count)
{
    auto loaded = ProjectStore::load(projectFolder(count));
    if (!loaded.project || !ProjectStore::readAllScreens(loaded.project.get()).isEmpty())
        qFatal("the project cannot be loaded");
    return std::move(loaded.project);
}

void countElements(benchmark::State& state)
{
    using benchmark::Counter;
    state.counters["us/element"] =
        Counter(double(state.range(0)), Counter::kIsIterationInvariantRate | Counter::kInvert);
}

void load(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(loadAll(int(state.range(0))));
    countElements(state);
}

void exportQml(benchmark::State& state)
{
    const auto project = loadAll(int(state.range(0)));
    const QTemporaryDir target;
    for (auto _ : state) {
        if (!QmlExporter::exportProject(project.get(), target.filePath(QStringLiteral("out"))).isEmpty())
            state.SkipWithError("the export failed");
    }
    countElements(state);
}

void save(benchmark::State& state)
{
    const auto project = loadAll(int(state.range(0)));
    const QTemporaryDir target;
    int run = 0;
    for (auto _ : state) {
        QString message;
        if (!ProjectStore::save(project.get(), target.filePath(QString::number(run++)), &message))
            state.SkipWithError(qPrintable(message));
    }
    countElements(state);
}

} // namespace

BENCHMARK(load)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(exportQml)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(save)->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond)->UseRealTime();

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    Benchmarks::loadRectanglePlugin();
    benchmark::Initialize(&argc, argv);
    Benchmarks::RatioReporter reporter;
    for (const std::string name : {"load", "exportQml", "save"}) {
        reporter.addRatio(
            {name + ": cost per element at 10 000 to that at 1 000", name + "/10000", 10000, name + "/1000", 1000});
    }
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
