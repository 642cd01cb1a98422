// The search for the direction of a line in its bounding box, beside the loop over all its 8999 steps that it stands for.
// Both go round the same boxes; the ratio is what every move of a frame drag saves.

#include "benchmarks/RatioReporter.h"

#include "lines/LineDirection.h"

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <vector>

using namespace Korvex::Meridane;

namespace {

struct Task
{
    QSizeF box;
    double thickness;
};

enum Kind
{
    Usual, ///< lines of a screen: up to 500 pixels long, up to 5 thick
    Thick, ///< up to 100 pixels thick
    Flat, ///< as short as they are thick: f is flat, and the search sees most
    Nowhere ///< boxes at random, most of which are of no line
};

const char* const KindNames[] = {"usual lines", "thick lines", "short thick lines", "any boxes"};

std::vector<Task> tasks(int kind)
{
    constexpr int Count = 256;
    std::mt19937 generator(1);
    const auto real = [&generator](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(generator);
    };
    std::vector<Task> made;
    made.reserve(Count);
    for (int i = 0; i < Count; ++i) {
        const double thickness = std::floor(kind == Usual ? real(1, 6) : kind == Flat ? real(80, 101) : real(1, 101));
        const double length = kind == Flat ? real(1, 100) : real(20, 500);
        const double angle = real(0, 0.5 * M_PI);
        const QSizeF box(length * std::cos(angle) + thickness * std::sin(angle),
                         length * std::sin(angle) + thickness * std::cos(angle));
        made.push_back({kind == Nowhere ? QSizeF(real(10, 800), real(10, 480)) : box, thickness});
    }
    return made;
}

QPointF plainSearch(const QSizeF& box, double thickness)
{
    double smallest = std::numeric_limits<double>::infinity();
    double best = 0;
    for (int i = 1; i <= 8999; ++i) {
        const double angle = i * M_PI / 18000;
        const double c = std::cos(angle);
        const double s = std::sin(angle);
        const double f = std::abs(c * (box.width() - c * thickness) - s * (box.height() - thickness * s));
        if (f < smallest) {
            smallest = f;
            best = angle;
        }
    }
    return {thickness * std::cos(best), thickness * std::sin(best)};
}

template <typename Search>
void measure(benchmark::State& state, Search search)
{
    const std::vector<Task> all = tasks(int(state.range(0)));
    std::size_t next = 0;
    for (auto _ : state) {
        const Task& task = all[next++ % all.size()];
        benchmark::DoNotOptimize(search(task.box, task.thickness));
    }
}

void direction(benchmark::State& state)
{
    measure(state, [](const QSizeF& box, double thickness) { return Designer::lineDirection(box, thickness); });
}

void plainDirection(benchmark::State& state)
{
    measure(state, plainSearch);
}

} // namespace

BENCHMARK(direction)->DenseRange(Usual, Nowhere)->Unit(benchmark::kMicrosecond);
BENCHMARK(plainDirection)->DenseRange(Usual, Nowhere)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    Benchmarks::RatioReporter reporter;
    for (int kind = Usual; kind <= Nowhere; ++kind) {
        const std::string name = std::to_string(kind);
        reporter.addRatio({std::string("the plain loop to the search, ") + KindNames[kind], "plainDirection/" + name, 1,
                           "direction/" + name, 1});
    }
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
