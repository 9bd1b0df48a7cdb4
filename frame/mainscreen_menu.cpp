#include "frame/mainscreen.h"

void mainscreen::AddMenuHandlers()
{
    _AddMenuHandler(*this, "About", [this] { return _About_Action(); });
    _AddMenuHandler(*this, "FileClose", [this] { return _FileClose_Action(); });
    _AddMenuHandler(*this, "FileReset", [this] { return _FileReset_Action(); });
    _AddMenuHandler(*this, "EditUndo", [this] { return _EditUndo_Action(); });
    _AddMenuHandler(*this, "FilePrint", [this] { return _FilePrint_Action(); });
    _AddMenuHandler(*this, "FileExport", [this] { return _FileExport_Action(); });
    _AddMenuHandler(*this, "FileOpen", [this] { return _FileOpen_Action(); });
    _AddMenuHandler(*this, "filepresent", [this] { return _filepresent_Action(); });
    _SetEnableMenuItems(*this, [this] { Event_EnableMenuItems(); });
}

void mainscreen::Event_EnableMenuItems()
{
    for (MenuItem* const item :
         {&About(), &FileReset(), &EditUndo(), &FilePrint(), &FileExport(), &FileOpen(), &filepresent()}) {
        item->Enabled(true);
    }
}

bool mainscreen::_FileClose_Action()
{
    Close();
    return false;
}
