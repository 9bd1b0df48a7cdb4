#pragma once

#include "frame/windows.h"
#include "platform/buttons.h"
#include "platform/label.h"
#include "platform/window.h"

/// The about window: it names the program and its author and opens the project's web page.
class Author final : public Window {
public:
    virtual void Layout();
    virtual void CreateControls();
    virtual void _CreateControls0();

#define CONTROL(tab, type, name, caption, left, top, width, height, style) virtual type& name();
#include "frame/author.def"
#undef CONTROL

    virtual bool PushButton1_MouseDown(PushButton& sender, int x, int y);

#define MENU_SECTION -1
#define ITEM(under, name, type, text, shortcut) virtual MenuItem& name();
#include "frame/menu.def"
#undef ITEM
#undef MENU_SECTION

    virtual void AddMenuHandlers();
    virtual void Event_EnableMenuItems();
    virtual bool _FileClose_Action();

private:
    friend class Author& ::Author();

    Author();
};
