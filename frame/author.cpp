#include "frame/author.h"

#include "frame/form_styles.h"
#include "frame/mainscreen.h"
#include "frame/menu.h"
#include "platform/browser.h"

class Author& Author()
{
    if (Window* const open = _GetImplicitWindow("Author")) {
        return static_cast<class Author&>(*open);
    }
    return static_cast<class Author&>(KeepWindow(std::unique_ptr<Window>(new class Author)));
}

Author::Author() : Window("Author")
{
    Layout();
    CreateControls();
    AddMenuHandlers();
    Show();
}

void Author::Layout()
{
    MenuBar(::Menu());
    _SetProperties(*this, {.title = "About Gradeloom", .width = 229, .height = 178, .hasCloseButton = true});
}

void Author::CreateControls()
{
    _CreateControls0();
    StaticText1().Multiline();
    PushButton1().Default(true);
    PushButton1().MouseDown = [this](PushButton& sender, int x, int y) {
        return PushButton1_MouseDown(sender, x, y);
    };
}

void Author::_CreateControls0()
{
#define CONTROL(tab, type, name, caption, left, top, width, height, style)                                   \
    Add<type>(#name, {tab, caption, left, top, width, height, form_style::style});
#include "frame/author.def"
}

bool Author::PushButton1_MouseDown(PushButton& /*sender*/, int /*x*/, int /*y*/)
{
    ShowURL(GRADELOOM_WEB_PAGE);
    return false;
}

void Author::AddMenuHandlers()
{
    _AddMenuHandler(*this, "FileClose", [this] { return _FileClose_Action(); });
    _SetEnableMenuItems(*this, [this] { Event_EnableMenuItems(); });
}

void Author::Event_EnableMenuItems()
{
    FileClose().Enabled(true);
}

bool Author::_FileClose_Action()
{
    Close();
    return false;
}

bool mainscreen::_About_Action()
{
    ::Author().Show();
    return false;
}
