#pragma once

#include "frame/windows.h"
#include "platform/buttons.h"
#include "platform/label.h"
#include "platform/listbox.h"
#include "platform/text_field.h"
#include "platform/window.h"

/// The Presenter: for a number of points it charts the percentage that each possible number missed gives. It
/// shares nothing with a session.
///
///   The form and the menu  presenter/presenter.def, presenter/presenter.cpp
///   The chart              presenter/chart.cpp
class Window1 final : public Window {
public:
    virtual void Layout();
    virtual void CreateControls();
    virtual void _CreateControls0();

#define CONTROL(tab, type, name, caption, left, top, width, height, style) virtual type& name();
#include "presenter/presenter.def"
#undef CONTROL

    virtual void PushButton1_Action(); // presenter/chart.cpp

#define MENU_SECTION -1
#define ITEM(under, name, type, text, shortcut) virtual MenuItem& name();
#include "frame/menu.def"
#undef ITEM
#undef MENU_SECTION

    virtual void AddMenuHandlers();
    virtual void Event_EnableMenuItems();
    virtual bool _FileClose_Action();

private:
    friend class Window1& ::Window1();

    Window1();
};
