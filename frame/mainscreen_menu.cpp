#include "frame/mainscreen.h"

#include <initializer_list>
#include <utility>

void mainscreen::AddMenuHandlers()
{
    using Handler = bool (mainscreen::*)();
    for (auto const& [item, handler] : std::initializer_list<std::pair<char const*, Handler>>{
             {"About",       &mainscreen::_About_Action      },
             {"FileClose",   &mainscreen::_FileClose_Action  },
             {"FileReset",   &mainscreen::_FileReset_Action  },
             {"EditUndo",    &mainscreen::_EditUndo_Action   },
             {"FilePrint",   &mainscreen::_FilePrint_Action  },
             {"FileExport",  &mainscreen::_FileExport_Action },
             {"FileOpen",    &mainscreen::_FileOpen_Action   },
             {"filepresent", &mainscreen::_filepresent_Action}
    }) {
        _AddMenuHandler(*this, item, [this, action = handler] { return (this->*action)(); });
    }
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
