// The list of gradient stops in the property sheet: adding a stop to a short and to a long list, and showing a long one,
// beside a bare Qt list of as many rows.

#include "benchmarks/RatioReporter.h"
#include "benchmarks/RectangleProject.h"

#include "host/core/canvas/EditSession.h"
#include "host/core/editors/PropertyEditor.h"
#include "host/core/objects/DesignerObject.h"
#include "host/core/objects/Screen.h"
#include "host/core/project/Project.h"
#include "host/core/project/ProjectStore.h"
#include "host/core/properties/DesignerProperty.h"
#include "host/core/sheet/PropertySheet.h"
#include "host/core/values/ValueConversion.h"
#include "host/core/widgets/ItemButton.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QScrollArea>
#include <QToolButton>

#include <chrono>
#include <functional>

using namespace Korvex::Meridane;
using namespace Korvex::Meridane::Designer;

namespace {

constexpr int Most = 101;

/// \a count stops at 0, 1, 2 … percent.
QString stops(int count)
{
    QVector<QPair<double, QColor>> list;
    for (int i = 0; i < count; ++i)
        list.append({i / 100.0, QColor::fromHsv(i * 7 % 360, 200, 220)});
    return ValueConversion::toString(list);
}

/// Until everything is laid out and painted: nested layouts pass a new size on event by event.
void settle()
{
    constexpr int Passes = 12;
    for (int pass = 0; pass < Passes; ++pass)
        QCoreApplication::processEvents();
}

double seconds(const std::function<void()>& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Two gradients on a screen, and the sheet that shows the first one.
struct Sheet
{
    Sheet()
        : session(ProjectStore::create(QStringLiteral("gradients"), QSizeF(800, 480)))
        , sheet(&session)
    {
        for (DesignerObject*& element : elements)
            session.addElement(QStringLiteral("LinearGradientElement"), session.currentScreen(), {}, {}, &element);
        sheet.resize(280, 900);
        sheet.show();
        session.setSelection({elements[0]});
        settle();
    }

    void set(DesignerObject* element, int count)
    {
        session.setProperty(element, QStringLiteral("gradientStops"), stops(count));
        settle();
    }
    static qsizetype count(const DesignerObject* element)
    {
        const auto property = element->getProperty(QStringLiteral("gradientStops"));
        return ValueConversion::toGradientStops(property->valueString()).size();
    }

    EditSession session;
    PropertySheet sheet;
    DesignerObject* elements[2] = {};
};

/// A click on the button that adds a stop at 100 %, until everything is painted.
void add(benchmark::State& state)
{
    const int count = int(state.range(0));
    Sheet shown;
    auto* button =
        shown.sheet.editor(QStringLiteral("gradientStops"))->findChild<ItemButton*>(QStringLiteral("addItem"));
    for (auto _ : state) {
        shown.set(shown.elements[0], count);
        state.SetIterationTime(seconds([button] {
            button->click();
            settle();
        }));
        if (Sheet::count(shown.elements[0]) != count + 1)
            state.SkipWithError("nothing was added");
    }
}

/// Selecting an element with many stops after one with two.
void show(benchmark::State& state)
{
    Sheet shown;
    shown.set(shown.elements[1], int(state.range(0)));
    for (auto _ : state) {
        shown.session.setSelection({shown.elements[0]});
        settle();
        state.SetIterationTime(seconds([&shown] {
            shown.session.setSelection({shown.elements[1]});
            settle();
        }));
    }
}

/// Rows of a number, a button for the colour and one to remove, as Qt has them.
void bareRows(benchmark::State& state)
{
    QScrollArea area;
    area.setWidgetResizable(true);
    area.resize(280, 900);
    area.show();
    settle();
    for (auto _ : state) {
        state.SetIterationTime(seconds([&] {
            auto* content = new QWidget;
            auto* column = new QVBoxLayout(content);
            for (int i = 0; i < state.range(0); ++i) {
                auto* row = new QHBoxLayout;
                row->addWidget(new QDoubleSpinBox, 1);
                row->addWidget(new QToolButton);
                row->addWidget(new QToolButton);
                column->addLayout(row);
            }
            area.setWidget(content);
            settle();
        }));
        delete area.takeWidget();
    }
}

} // namespace

BENCHMARK(add)->Arg(2)->Arg(Most - 1)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(show)->Arg(3)->Arg(Most)->Unit(benchmark::kMillisecond)->UseManualTime();
BENCHMARK(bareRows)->Arg(3)->Arg(Most)->Unit(benchmark::kMillisecond)->UseManualTime();

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    Benchmarks::loadRectanglePlugin();
    benchmark::Initialize(&argc, argv);
    Benchmarks::RatioReporter reporter;
    reporter.addRatio({"adding the 101st stop to adding the 3rd", "add/100", 1, "add/2", 1});
    reporter.addRatio({"showing 101 stops to 101 bare rows", "show/101", 1, "bareRows/101", 1});
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
