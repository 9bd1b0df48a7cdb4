#pragma once

#include "frame/accessors.h"
#include "frame/instances.h"
#include "platform/buttons.h"
#include "platform/group_box.h"
#include "platform/label.h"
#include "platform/listbox.h"
#include "platform/text_field.h"
#include "platform/window.h"

/// The main window, in which a teacher grades a class. Its controls hold the whole state of a session as
/// text, the hidden ones included; it has no other data, and its handlers share nothing else.
///
///   The form: controls, layout, wiring             frame/mainscreen.def, frame/mainscreen.cpp
///   The menu: items, which are on, Close           frame/menu.def, frame/mainscreen_menu.cpp
///   The other windows' menu commands               frame/author.cpp, presenter/presenter.cpp
///   What is cleared after a session                frame/clear_results.h
///   The scale: fields, default                     frame/bands.def, scale/default_scale.cpp
///   The scale's repair                             scale/scale_repair.cpp
///   The scale's files, the event of opening        scale/scale_files.cpp
///   The guard of the scale fields                  scale/edit_guard.cpp
///   A press of Grade                               session/score_entry.cpp
///   The letter and the tallies                     session/letter_grade.cpp
///   The list of entries                            session/history.cpp
///   Undo                                           session/undo.cpp
///   Resets, changes of the number of points        session/reset.cpp
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

    // One accessor for each control, total() and so on.
#define CONTROL CONTROL_ACCESSOR
#include "frame/mainscreen.def"

    // The events of the controls.
    virtual void total_TextChange(TextField& sender); // session/reset.cpp
    virtual void PushButton1_Action();                // session/score_entry.cpp

    // Three handlers for each scale field, amin_KeyDown and so on. All are in scale/edit_guard.cpp.
#define SCALE_FIELD(name, ...)                                                                               \
    virtual bool name##_KeyDown(TextField& sender, std::string const& key);                                  \
    virtual void name##_GotFocus(TextField& sender);                                                         \
    virtual void name##_TextChange(TextField& sender);
#include "frame/bands.def"

    virtual void PushButton2_Action();  // scale/scale_files.cpp
    virtual void PushButton3_Action();  // scale/default_scale.cpp
    virtual void BevelButton1_Action(); // session/reset.cpp
    virtual void PushButton4_Action();  // scale/scale_files.cpp

    // One accessor for each menu item, FileOpen() and so on.
#define ITEM ITEM_ACCESSOR
#include "frame/menu.def"

    virtual void AddMenuHandlers();
    virtual void Event_EnableMenuItems();
    virtual void Event_Open(); // scale/scale_files.cpp

    // The menu commands. All return false, so the platform may act too.
    virtual bool _About_Action(); // frame/author.cpp
    virtual bool _FileClose_Action();
    virtual bool _FileReset_Action();   // session/reset.cpp
    virtual bool _EditUndo_Action();    // session/undo.cpp
    virtual bool _FilePrint_Action();   // reports/print_report.cpp
    virtual bool _FileExport_Action();  // reports/export.cpp
    virtual bool _FileOpen_Action();    // scale/scale_files.cpp
    virtual bool _filepresent_Action(); // presenter/presenter.cpp

    virtual void getprefs();         // scale/scale_files.cpp
    virtual void percenttest();      // session/letter_grade.cpp
    virtual void results();          // session/letter_grade.cpp
    virtual void gradingscaletest(); // scale/scale_repair.cpp
    virtual void shouldreset();      // scale/edit_guard.cpp

private:
    friend class mainscreen& ::mainscreen();

    mainscreen();
};

/// How a table names a field of the window.
using FieldAccessor = TextField& (mainscreen::*)();
