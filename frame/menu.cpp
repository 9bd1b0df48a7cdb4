#include "frame/menu.h"

class Menu& Menu()
{
    static class Menu& menu = static_cast<class Menu&>(KeepMenuBar(std::unique_ptr<MenuBar>(new class Menu)));
    return menu;
}

Menu::Menu()
{
    Menu::Untitled0();
    Menu::Untitled1();
    Menu::Untitled2();
    Menu::Untitled3();
}

template <class Type>
void Menu::Add(std::string_view under, std::string_view name, std::string_view text,
               std::string_view shortcut)
{
    auto item = std::make_unique<Type>(name, text, shortcut);
    if (under.empty()) {
        Append(std::move(item));
    } else {
        Item(under).Append(std::move(item));
    }
}

#define ITEM(under, name, type, text, shortcut) Add<type>(under, #name, text, shortcut);

void Menu::Untitled0()
{
#define MENU_SECTION 0
#include "frame/menu.def"
#undef MENU_SECTION
}

void Menu::Untitled1()
{
#define MENU_SECTION 1
#include "frame/menu.def"
#undef MENU_SECTION
}

void Menu::Untitled2()
{
#define MENU_SECTION 2
#include "frame/menu.def"
#undef MENU_SECTION
}

void Menu::Untitled3()
{
#define MENU_SECTION 3
#include "frame/menu.def"
#undef MENU_SECTION
}
