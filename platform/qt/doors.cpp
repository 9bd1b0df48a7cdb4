#include "platform/qt/doors.h"

Doors& PlatformDoors()
{
    static Doors doors;
    return doors;
}
