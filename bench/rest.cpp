#include "bench/measure.h"
#include "frame/mainscreen.h"

#include <QApplication>
#include <QTimer>

#include <cstdio>
#include <map>

namespace {

/// Counts the events while it lives, by type and receiver.
class Counter final : public QObject {
public:
    Counter() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* receiver, QEvent* event) override
    {
        ++counts[{event->type(), receiver->metaObject()->className()}];
        return false;
    }

    std::map<std::pair<int, std::string>, int> counts;
};

} // namespace

/// Work at rest: all events of some seconds in which nobody does anything.
void MeasureRest()
{
    constexpr int kSeconds = 6;
    ::mainscreen();
    Paint();
    Counter const counter;
    double const time = ProcessorTime([] {
        QTimer::singleShot(1000 * kSeconds, qApp, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    });
    std::printf("at rest for %d seconds: %.0f us; events by type and receiver:", kSeconds, time);
    for (auto const& [what, count] : counter.counts) {
        std::printf(" %d %s: %d;", what.first, what.second.c_str(), count);
    }
    std::printf("\n");
}
