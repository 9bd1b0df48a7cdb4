#include "platform/doors.h"

Doors& PlatformDoors()
{
    static Doors doors;
    return doors;
}
