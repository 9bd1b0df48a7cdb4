#include "frame/startup.h"
#include "platform/runtime.h"

int main(int count, char** arguments)
{
    RuntimeInit(count, arguments);
    RuntimePerformInitializers();
    _Main();
    RuntimePerformFinalizers();
    return RuntimeExit();
}
