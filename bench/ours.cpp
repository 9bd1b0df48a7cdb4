#include "bench/measure.h"
#include "frame/startup.h"
#include "platform/runtime.h"

/// The program as its own main starts it.
int main()
{
    RuntimeInit(0, nullptr);
    EndAtFirstPaint();
    RuntimePerformInitializers();
    _Main();
    return 0;
}
