#pragma once

#include "frame/windows.h"
#include "platform/buttons.h"
#include "platform/group_box.h"
#include "platform/label.h"
#include "platform/listbox.h"
#include "platform/text_field.h"
#include "platform/window.h"

/// The main window, in which a teacher grades a class. Its controls hold the whole state of a session as
/// text, the hidden ones included; it has no data besides, and its handlers meet only in its controls.
///
///   The form: controls, layout, wiring             frame/mainscreen.def, frame/mainscreen.cpp
///   The menu: items, handlers of windows           frame/menu.def, frame/mainscreen_menu.cpp
///   The scale's fields and its default             scale/scale_fields.def, scale/default_scale.cpp
///   The scale's repair                             scale/scale_repair.cpp
///   The scale's files, the event of opening        scale/scale_files.cpp
///   The guard of the scale fields                  scale/edit_guard.cpp
///   A press of Grade                               session/score_entry.cpp
///   The letter and the tallies                     session/letter_grade.cpp
///   The list of entries                            session/history.cpp
///   Undo                                           session/undo.cpp
///   Resets, and the guard of the number of points  session/reset.cpp
///   Print and Export                               reports/print_report.cpp, reports/export.cpp
class mainscreen final : public Window {
public:
    // frame/mainscreen.cpp
    virtual void Layout();
    virtual void CreateControls();
    virtual void _CreateControls0();
    virtual void _CreateControls1();
    virtual void _CreateControls2();
    virtual void _CreateControls3();

    // One accessor for each control: total(), missed(), correct() and so on, as frame/mainscreen.def has
    // them.
#define FORM_SECTION -1
#define CONTROL(tab, type, name, caption, left, top, width, height, style) virtual type& name();
#define CHILD CONTROL
#define BAND(tab, maximum, l1, t1, w1, h1, minimum, l2, t2, w2, h2, label, caption, l3, t3, to, l4, t4)      \
    virtual TextField& maximum();                                                                            \
    virtual TextField& minimum();                                                                            \
    virtual Label& label();                                                                                  \
    virtual Label& to();
#include "frame/mainscreen.def"
#undef BAND
#undef CHILD
#undef CONTROL
#undef FORM_SECTION

    // The events of the controls.
    virtual void total_TextChange(TextField& sender); // session/reset.cpp
    virtual void PushButton1_Action();                // session/score_entry.cpp

    // Three handlers for each scale field: amin_KeyDown and so on, in scale/edit_guard.cpp.
#define FIELD(field, text, check)                                                                            \
    virtual bool field##_KeyDown(TextField& sender, std::string const& key);                                 \
    virtual void field##_GotFocus(TextField& sender);                                                        \
    virtual void field##_TextChange(TextField& sender);
#include "scale/scale_fields.def"
#undef FIELD

    virtual void PushButton2_Action();  // scale/scale_files.cpp
    virtual void PushButton3_Action();  // scale/default_scale.cpp
    virtual void BevelButton1_Action(); // session/reset.cpp
    virtual void PushButton4_Action();  // scale/scale_files.cpp

    // One accessor for each menu item: FileOpen(), EditUndo() and so on, as frame/menu.def has them.
#define MENU_SECTION -1
#define ITEM(under, name, type, text, shortcut) virtual MenuItem& name();
#include "frame/menu.def"
#undef ITEM
#undef MENU_SECTION

    virtual void AddMenuHandlers();
    virtual void Event_EnableMenuItems();
    virtual void Event_Open(); // scale/scale_files.cpp

    // The menu commands. The result is false on every path.
    virtual bool _About_Action();
    virtual bool _FileClose_Action();
    virtual bool _FileReset_Action();  // session/reset.cpp
    virtual bool _EditUndo_Action();   // session/undo.cpp
    virtual bool _FilePrint_Action();  // reports/print_report.cpp
    virtual bool _FileExport_Action(); // reports/export.cpp
    virtual bool _FileOpen_Action();   // scale/scale_files.cpp
    virtual bool _filepresent_Action();

    virtual void getprefs();         // scale/scale_files.cpp
    virtual void percenttest();      // session/letter_grade.cpp
    virtual void results();          // session/letter_grade.cpp
    virtual void gradingscaletest(); // scale/scale_repair.cpp
    virtual void shouldreset();      // scale/edit_guard.cpp

private:
    friend class mainscreen& ::mainscreen();

    mainscreen();
};
