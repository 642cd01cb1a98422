// The property sheet: selecting another element of the same kind, selecting very many with different values, and counting
// the colours of a project, beside the selection alone.

#include "benchmarks/RatioReporter.h"
#include "benchmarks/RectangleProject.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/ObjectListProperty.h"
#include "host/core/sheet/ProjectColors.h"
#include "host/core/sheet/PropertySheet.h"

#include <QApplication>
#include <QTemporaryDir>

#include <chrono>
#include <functional>
#include <memory>

using namespace Korvex::Meridane;
using namespace Korvex::Meridane::Designer;

namespace {

constexpr int Many = 2000;

double seconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// A screen with very many different rectangles; the sheet is shown where it is asked for.
struct Selection
{
    explicit Selection(bool withSheet)
        : session(ProjectStore::load(written(folder.path())).project)
    {
        const auto& items = session.project()->screens().constFirst()->childList()->items();
        elements = QList<DesignerObject*>(items.cbegin(), items.cend());
        session.setSelection({elements.constFirst()});
        if (!withSheet)
            return;
        sheet = std::make_unique<PropertySheet>(&session);
        sheet->resize(320, 900);
        sheet->show();
        settle();
    }

    static QString written(const QString& folder)
    {
        Benchmarks::writeRectangleProject(folder, Many);
        return folder;
    }
    static void settle()
    {
        constexpr int Passes = 6;
        for (int pass = 0; pass < Passes; ++pass)
            QCoreApplication::processEvents();
    }
    double select(const QList<DesignerObject*>& objects)
    {
        return seconds([this, &objects] {
            session.setSelection(objects);
            settle();
        });
    }

    QTemporaryDir folder;
    EditSession session;
    QList<DesignerObject*> elements;
    std::unique_ptr<PropertySheet> sheet;
};

void selectMany(benchmark::State& state)
{
    Selection selection(state.range(0) != 0);
    selection.select(selection.elements); // the rows are built
    for ([[maybe_unused]] const auto _ : state) {
        selection.select({selection.elements.constFirst()});
        state.SetIterationTime(selection.select(selection.elements));
    }
}

void selectAnother(benchmark::State& state)
{
    Selection selection(state.range(0) != 0);
    qsizetype next = 0;
    for ([[maybe_unused]] const auto _ : state) {
        next = (next + 1) % selection.elements.size();
        state.SetIterationTime(selection.select({selection.elements.at(next)}));
    }
}

void colors(benchmark::State& state)
{
    const Selection selection(false);
    for ([[maybe_unused]] const auto _ : state)
        benchmark::DoNotOptimize(projectColors(*selection.session.project(), 16));
}

} // namespace

BENCHMARK(selectMany)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(selectAnother)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(colors)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Benchmarks::loadRectanglePlugin();
    benchmark::Initialize(&argc, argv);
    Benchmarks::RatioReporter reporter;
    reporter.addRatio({"selecting 2000 with the sheet to selecting them", "selectMany/1", 1, "selectMany/0", 1});
    reporter.addRatio({"selecting 2000 to selecting one, with the sheet", "selectMany/1", 1, "selectAnother/1", 1});
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
