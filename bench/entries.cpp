#include "frame/mainscreen.h"
#include "platform/qt/widgets/list_model.h"
#include "platform/runtime.h"
#include "session/history.h"

#include <QApplication>
#include <QStandardPaths>
#include <QWidget>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <vector>

// What one more entry costs, with few and with many entries in the list: writing the score, pressing Grade
// and painting the window. The floors of the same run are painting the empty form and a row in a bare list.

namespace {

/// The median time of a step in microseconds of this process, so that others on the machine count little.
double Median(int repetitions, std::function<void()> const& step)
{
    std::vector<double> times;
    for (int i = 0; i < repetitions; ++i) {
        std::clock_t const start = std::clock();
        step();
        times.push_back(1e6 * static_cast<double>(std::clock() - start) /
                        static_cast<double>(CLOCKS_PER_SEC));
    }
    auto const middle = times.begin() + repetitions / 2;
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

void Paint()
{
    QApplication::processEvents();
    for (QWidget* const window : QApplication::topLevelWidgets()) {
        if (window->objectName() == QLatin1String("mainscreen")) {
            window->grab();
        }
    }
}

void FillTo(Integer entries)
{
    class mainscreen& form = ::mainscreen();
    for (Integer entry = form.ListBox1().ListCount() + 1; entry <= entries; ++entry) {
        form.numstudents().Text(Str(entry));
        AppendEntry(form, entry, 90.0, 3.0, 90);
    }
}

void Report(Integer entries, double painting, double row)
{
    constexpr int kRepetitions = 300;
    class mainscreen& form = ::mainscreen();
    FillTo(entries);
    auto const grade = [&] {
        form.missed().Text("3");
        form.PushButton1_Action();
    };
    double const unpainted = Median(kRepetitions, grade);
    double const entry = Median(kRepetitions, [&] {
        grade();
        Paint();
    });
    std::printf(
        "an entry behind %6lld: %6.0f us, %.2f times painting; without painting %5.0f us, %.0f bare rows\n",
        static_cast<long long>(entries), entry, entry / painting, unpainted, unpainted / row);
}

} // namespace

int main()
{
    QStandardPaths::setTestModeEnabled(true); // no user's scale file is read
    RuntimeInit(0, nullptr);
    RuntimePerformInitializers();
    ::mainscreen().total().Text("30");
    Paint();

    double const painting = Median(300, Paint);
    constexpr int kRows = 1000; // one alone is below what the clock shows
    ListModel bare;
    double const row = Median(100,
                              [&] {
                                  for (int i = 0; i < kRows; ++i) {
                                      bare.append(QStringLiteral("1"));
                                  }
                              }) /
                       kRows;
    std::printf("painting the empty form: %.0f us; a row in a bare list: %.2f us\n", painting, row);
    Report(10, painting, row);
    Report(100000, painting, row);
    RuntimePerformFinalizers();
    return 0;
}
