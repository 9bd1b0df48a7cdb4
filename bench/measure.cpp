#include "bench/measure.h"

#include <QApplication>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <ctime>

double Quantile(std::vector<double> values, double part)
{
    auto const place =
        values.begin() + static_cast<std::ptrdiff_t>(part * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), place, values.end());
    return *place;
}

Figure ProcessorTime(std::function<void()> step)
{
    return [step = std::move(step)] {
        std::clock_t const start = std::clock();
        step();
        return 1e6 * static_cast<double>(std::clock() - start) / static_cast<double>(CLOCKS_PER_SEC);
    };
}

Figure ClockTime(std::function<void()> step)
{
    return [step = std::move(step)] {
        auto const start = std::chrono::steady_clock::now();
        step();
        return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count();
    };
}

void Compare(char const* what, int runs, double most, char const* unit, Figure const& floor,
             Figure const& ours)
{
    std::vector<double> floors;
    std::vector<double> figures;
    std::vector<double> ratios;
    for (int i = 0; i < runs; ++i) {
        floors.push_back(floor());
        figures.push_back(ours());
        ratios.push_back(figures.back() / floors.back());
    }
    double const ratio = Quantile(figures, 0.5) / Quantile(floors, 0.5);
    std::printf("%-44s %5.2f of %4.2f%s (%.2f to %.2f in %d runs; %.0f %s, floor %.0f)\n", what, ratio, most,
                ratio > most ? " MORE" : "", Quantile(ratios, 0.25), Quantile(ratios, 0.75), runs,
                Quantile(figures, 0.5), unit, Quantile(floors, 0.5));
}

void Paint()
{
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}
