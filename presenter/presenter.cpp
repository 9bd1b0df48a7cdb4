#include "presenter/presenter.h"

#include "frame/form_styles.h"
#include "frame/mainscreen.h"
#include "frame/menu.h"

namespace {

constexpr int kTabs[] = {
#define CONTROL(tab, ...) tab,
#include "presenter/presenter.def"
};
static_assert(IsRising(kTabs), "the rows stand in the order of the keyboard");

} // namespace

class Window1& Window1()
{
    if (Window* const open = _GetImplicitWindow("Window1")) {
        return static_cast<class Window1&>(*open);
    }
    return static_cast<class Window1&>(KeepWindow(std::unique_ptr<Window>(new class Window1)));
}

Window1::Window1() : Window("Window1")
{
    Layout();
    CreateControls();
    AddMenuHandlers();
    Show();
}

void Window1::Layout()
{
    MenuBar(::Menu());
    WindowProperties const properties = {
        .title = "Presenter",
        .width = 631,
        .height = 646,
        .hasCloseButton = true,
        .background = Color{96, 186, 202},
    };
    _SetProperties(*this, properties);
}

void Window1::CreateControls()
{
    _CreateControls0();
    for (Listbox* const list : {&ListBox1(), &ListBox2(), &ListBox5()}) {
        list->SpokenHeaders("Number missed,Percentage");
    }
    PushButton1().Default(true);
    PushButton1().Action = [this] { PushButton1_Action(); };
}

void Window1::_CreateControls0()
{
#define CONTROL(tab, type, name, caption, left, top, width, height, style)                                   \
    _SetProperties(Add<type>(#name), {tab, caption, left, top, width, height, form_style::style});
#include "presenter/presenter.def"
}

void Window1::AddMenuHandlers()
{
    _AddMenuHandler(*this, "FileClose", [this] { return _FileClose_Action(); });
    _SetEnableMenuItems(*this, [this] { Event_EnableMenuItems(); });
}

void Window1::Event_EnableMenuItems()
{
    FileClose().Enabled(true);
}

bool Window1::_FileClose_Action()
{
    Close();
    return false;
}

bool mainscreen::_filepresent_Action()
{
    ::Window1().Show();
    return false;
}
