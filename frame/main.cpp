#include "frame/startup.h"
#include "platform/runtime.h"

int main()
{
    RuntimeInit();
    RuntimePerformInitializers();
    _Main();
    RuntimePerformFinalizers();
    return RuntimeExit();
}
