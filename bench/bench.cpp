#include "bench/measure.h"
#include "platform/qt/doors.h"
#include "platform/runtime.h"

#include <QGuiApplication>
#include <QStandardPaths>

#include <cstdio>

/// Run it from a release build on a machine that does little else; bench/run does.
int main()
{
    static_cast<void>(std::setvbuf(stdout, nullptr, _IONBF, 0)); // each line when it is known
    QStandardPaths::setTestModeEnabled(true);                    // no user's scale file is read
    RuntimeInit(0, nullptr);
    RuntimePerformInitializers();
    PlatformDoors().messageBox = [](auto const&) { return 0; };
    std::printf("on %s\n", qPrintable(QGuiApplication::platformName()));
    MeasureStart();
    MeasureRest(); // in a form that nothing has been done in yet
    MeasureGrowth();
    MeasureEntries();
    RuntimePerformFinalizers();
    return 0;
}
