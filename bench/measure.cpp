#include "bench/measure.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

#include <malloc.h>

namespace {

double Quantile(std::vector<double> values, double part)
{
    auto const place =
        values.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

} // namespace

double ProcessorTime(Step const& step)
{
    std::clock_t const start = std::clock();
    step();
    return 1e6 * static_cast<double>(std::clock() - start) / static_cast<double>(CLOCKS_PER_SEC);
}

double ClockTime(Step const& step)
{
    auto const start = std::chrono::steady_clock::now();
    step();
    return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
}

void PrintRatio(char const* what, Runs const& runs, double most, char const* unit)
{
    std::vector<double> ratios;
    ratios.reserve(runs.ours.size());
    for (std::size_t i = 0; i < runs.ours.size(); ++i) {
        ratios.push_back(runs.ours[i] / runs.floor[i]);
    }
    double const ours = Quantile(runs.ours, 0.5);
    double const floor = Quantile(runs.floor, 0.5);
    std::printf("%-44s %5.2f of %4.2f%s (%.2f to %.2f in %zu runs; %.0f %s, floor %.0f)\n", what,
                ours / floor, most, ours / floor > most ? " MORE" : "", Quantile(ratios, 0.25),
                Quantile(ratios, 0.75), ratios.size(), ours, unit, floor);
}

void Paint()
{
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

double HeapInKib()
{
    struct mallinfo2 const info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1024.0;
}
