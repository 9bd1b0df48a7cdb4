#include "frame/mainscreen.h"

#include "frame/author.h"
#include "presenter/presenter.h"

// The accessors: MenuItem& mainscreen::FileOpen() and so on.
#define MENU_SECTION -1
#define ITEM(under, name, type, text, shortcut)                                                              \
    MenuItem& mainscreen::name()                                                                             \
    {                                                                                                        \
        return MenuBar().Item(#name);                                                                        \
    }
#include "frame/menu.def"
#undef ITEM
#undef MENU_SECTION

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
    About().Enabled(true);
    FileReset().Enabled(true);
    EditUndo().Enabled(true);
    FilePrint().Enabled(true);
    FileExport().Enabled(true);
    FileOpen().Enabled(true);
    filepresent().Enabled(true);
}

bool mainscreen::_About_Action()
{
    ::Author().Show();
    return false;
}

bool mainscreen::_FileClose_Action()
{
    Close();
    return false;
}

bool mainscreen::_filepresent_Action()
{
    ::Window1().Show();
    return false;
}
