#include "bench/measure.h"
#include "frame/mainscreen.h"
#include "platform/qt/doors.h"
#include "platform/runtime.h"

#include <QGuiApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#include <cstdio>

namespace {

/// What a program needs up to its first painted window: its processor time, or its memory.
double Start(char const* program, qsizetype figure)
{
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + QLatin1String(program), QStringList());
    process.waitForFinished();
    return process.readAllStandardOutput().trimmed().split(' ').value(figure).toDouble();
}

void CompareStarts(char const* what, int runs, char const* unit, qsizetype figure)
{
    auto const bare = [=] { return Start("/bench_bare", figure); };
    auto const ours = [=] { return Start("/bench_ours", figure); };
    bare(); // the first start of each finds no file in memory yet
    ours();
    Compare(what, runs, 1.10, unit, bare, ours);
}

/// All that runs while nobody does anything is the blinking cursor.
void MeasureRest()
{
    constexpr int kSeconds = 6;
    ::mainscreen();
    Paint();
    double const time = ProcessorTime([] {
        QTimer::singleShot(1000 * kSeconds, qApp, [] { QCoreApplication::exit(); });
        QCoreApplication::exec();
    })();
    std::printf("at rest for %d seconds: %.0f us\n", kSeconds, time);
}

} // namespace

/// Run it from a release build on a machine that does little else; bench/run does.
int main()
{
    static_cast<void>(std::setvbuf(stdout, nullptr, _IONBF, 0)); // each line when it is known
    QStandardPaths::setTestModeEnabled(true);                    // no user's scale file is read
    RuntimeInit(0, nullptr);
    RuntimePerformInitializers();
    PlatformDoors().messageBox = [](auto const&) { return 0; };
    std::printf("on %s\n", qPrintable(QGuiApplication::platformName()));
    CompareStarts("start to the first painted window", 41, "us", 0);
    CompareStarts("memory at the first painted window", 11, "KiB", 1);
    MeasureRest(); // in a form that nothing has been done in yet
    MeasureGrowth();
    MeasureEntries();
    RuntimePerformFinalizers();
    return 0;
}
