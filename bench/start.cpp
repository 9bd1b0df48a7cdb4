#include "bench/measure.h"

#include <QCoreApplication>
#include <QProcess>

#include <utility>

namespace {

/// The time and the memory that a program needs up to its first painted window.
std::pair<double, double> Start(char const* program)
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + QLatin1String(program), QStringList());
    process.waitForFinished();
    QByteArrayList const figures = process.readAllStandardOutput().trimmed().split(' ');
    return {figures.value(0).toDouble(), figures.value(1).toDouble()};
}

} // namespace

void MeasureStart()
{
    constexpr int kRuns = 41;
    Runs times;
    Runs memories;
    for (int i = 0; i <= kRuns; ++i) {
        auto const [floorTime, floorMemory] = Start("/bench_bare");
        auto const [time, memory] = Start("/bench_ours");
        if (i > 0) { // the first finds no file in memory yet
            times.add(floorTime, time);
            memories.add(floorMemory, memory);
        }
    }
    PrintRatio("start to the first painted window", times, 1.10, "us");
    PrintRatio("memory at the first painted window", memories, 1.10, "KiB");
}
