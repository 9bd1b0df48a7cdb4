#pragma once

// These define a window's accessors, one for each row of its form and of the menu bar.

/// To be used as CONTROL: total() returns the control "total".
#define CONTROL_ACCESSOR(tab, type, name, ...)                                                               \
    virtual type& name()                                                                                     \
    {                                                                                                        \
        return Get<type>(#name);                                                                             \
    }

/// To be used as ITEM: FileOpen() returns the item "FileOpen".
#define ITEM_ACCESSOR(under, name, ...)                                                                      \
    virtual MenuItem& name()                                                                                 \
    {                                                                                                        \
        return MenuBar().Item(#name);                                                                        \
    }
