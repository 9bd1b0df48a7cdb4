#pragma once

#include <functional>
#include <vector>

// Each of these prints its figures. A ratio has the most that it should be beside it.

void MeasureStart();
void MeasureEntries();
void MeasureRest();
void MeasureGrowth();

using Step = std::function<void()>;

/// The processor time, or the time by the clock, that a step takes, in microseconds.
double ProcessorTime(Step const& step);
double ClockTime(Step const& step);

/// One thing measured several times, each time right after its floor, so that others on the machine slow both.
struct Runs {
    std::vector<double> floor;
    std::vector<double> ours;

    void add(double one, double other)
    {
        floor.push_back(one);
        ours.push_back(other);
    }
};

/// Prints the ratio of the medians, with the quartiles of the ratios of the single runs.
void PrintRatio(char const* what, Runs const& runs, double most, char const* unit);

/// Processes what is pending, painting included.
void Paint();
/// Memory of this process in KiB that was taken from the heap and not given back.
double HeapInKib();
