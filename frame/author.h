#pragma once

#include "frame/accessors.h"
#include "frame/instances.h"
#include "platform/buttons.h"
#include "platform/label.h"
#include "platform/window.h"

/// The about window: it names the program and its author and opens the project's web page.
class Author final : public Window {
public:
    virtual void Layout();
    virtual void CreateControls();
    virtual void _CreateControls0();

#define CONTROL CONTROL_ACCESSOR
#include "frame/author.def"

    virtual bool PushButton1_MouseDown(PushButton& sender, int x, int y);

#define ITEM ITEM_ACCESSOR
#include "frame/menu.def"

    virtual void AddMenuHandlers();
    virtual void Event_EnableMenuItems();
    virtual bool _FileClose_Action();

private:
    friend class Author& ::Author();

    Author();
};
