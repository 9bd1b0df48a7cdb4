#pragma once

#include "frame/accessors.h"
#include "frame/instances.h"
#include "platform/buttons.h"
#include "platform/label.h"
#include "platform/listbox.h"
#include "platform/text_field.h"
#include "platform/window.h"

/// The Presenter: for a number of points it charts the percentage for each possible number missed. It shares
/// nothing with a session.
///
///   The form and the menu  presenter/presenter.def, presenter/presenter.cpp
///   The chart              presenter/chart.cpp
class Window1 final : public Window {
public:
    virtual void Layout();
    virtual void CreateControls();
    virtual void _CreateControls0();

#define CONTROL CONTROL_ACCESSOR
#include "presenter/presenter.def"

    virtual void PushButton1_Action(); // presenter/chart.cpp

#define ITEM ITEM_ACCESSOR
#include "frame/menu.def"

    virtual void AddMenuHandlers();
    virtual void Event_EnableMenuItems();
    virtual bool _FileClose_Action();

private:
    friend class Window1& ::Window1();

    Window1();
};
