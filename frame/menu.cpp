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

// Untitled0 to Untitled3 append the rows of their parts of the table.
#define MENU(function)                                                                                       \
    void Menu::function()                                                                                    \
    {
#define END_MENU() }
#define ITEM(under, name, type, text, shortcut) Add<type>(under, #name, text, shortcut);
#include "frame/menu.def"
