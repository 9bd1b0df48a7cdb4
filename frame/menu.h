#pragma once

#include "frame/instances.h"
#include "platform/menu_bar.h"

/// The one menu bar, shown by all three windows. Its items never change; which are enabled depends on the
/// window in front. What they do is defined by the windows: see frame/mainscreen.h.
class Menu final : public MenuBar {
private:
    friend class Menu& ::Menu();

    Menu();
    virtual void Untitled0();
    virtual void Untitled1();
    virtual void Untitled2();
    virtual void Untitled3();

    template <class Type>
    void Add(std::string_view under, std::string_view name, std::string_view text, std::string_view shortcut);
};
