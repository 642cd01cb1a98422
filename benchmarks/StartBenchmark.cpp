// Starting the command line beside starting a bare application.

#include "benchmarks/RatioReporter.h"

#include <QCoreApplication>
#include <QDir>
#include <QProcess>

using namespace Korvex::Meridane::Benchmarks;

namespace {

void run(benchmark::State& state, const QString& program, const QStringList& arguments)
{
    for (auto _ : state) {
        QProcess process;
        process.setStandardOutputFile(QProcess::nullDevice());
        process.start(program, arguments);
        if (!process.waitForFinished() || process.exitCode() != 0)
            state.SkipWithError("the program failed");
    }
}

QString beside(const char* path)
{
    return QDir(QCoreApplication::applicationDirPath()).filePath(QLatin1String(path));
}

void version(benchmark::State& state)
{
    run(state, beside("../bin/meridane"), {QStringLiteral("--version")});
}

void bareApplication(benchmark::State& state)
{
    run(state, beside("bare-application"), {});
}

} // namespace

BENCHMARK(version)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5);
BENCHMARK(bareApplication)->Unit(benchmark::kMillisecond)->UseRealTime()->Repetitions(5);

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    RatioReporter reporter;
    reporter.addRatio({"meridane --version to a bare QGuiApplication", "version", 1, "bareApplication", 1});
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
