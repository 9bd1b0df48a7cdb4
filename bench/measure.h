#pragma once

#include <functional>
#include <vector>

// What the bench prints beside the starts and the rest.
void MeasureEntries();
void MeasureGrowth();

using Figure = std::function<double()>;

/// The processor time, or the time by the clock, that a step takes, in microseconds.
Figure ProcessorTime(std::function<void()> step);
Figure ClockTime(std::function<void()> step);

/// The value below which a part of all lies: 0.5 gives the median.
double Quantile(std::vector<double> values, double part);

/// Takes two figures in turn, so that others on the machine slow both. Prints the ratio of their medians, the most that
/// it should be, and the quartiles of the single ratios.
void Compare(char const* what, int runs, double most, char const* unit, Figure const& floor,
             Figure const& ours);

/// Processes what is pending, painting included.
void Paint();

/// Ends the process once the first window has been painted, and prints the processor time in microseconds since its
/// start and its memory in KiB. Memory shared with other processes is divided among them.
void EndAtFirstPaint();
