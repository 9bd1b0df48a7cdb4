#pragma once

// What a window's class defines its accessors with: one for each row of its form and of the menu bar.

/// As CONTROL of a form: total() returns the control "total".
#define CONTROL_ACCESSOR(tab, type, name, ...)                                                               \
    virtual type& name()                                                                                     \
    {                                                                                                        \
        return Get<type>(#name);                                                                             \
    }

/// As ITEM of the menu bar: FileOpen() returns the item "FileOpen".
#define ITEM_ACCESSOR(under, name, ...)                                                                      \
    virtual MenuItem& name()                                                                                 \
    {                                                                                                        \
        return MenuBar().Item(#name);                                                                        \
    }
