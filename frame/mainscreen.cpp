#include "frame/mainscreen.h"

#include "frame/form_styles.h"
#include "frame/menu.h"
#include "scale/scale_fields.h"

namespace {

constexpr int kBandLabelWidth = 30;
constexpr int kBandLabelHeight = 20;
constexpr int kWordLabelWidth = 26;
constexpr int kWordLabelHeight = 21;
constexpr int kMostCharactersOfAMaximum = 3;

} // namespace

class mainscreen& mainscreen()
{
    if (Window* const open = _GetImplicitWindow("mainscreen")) {
        return static_cast<class mainscreen&>(*open);
    }
    return static_cast<class mainscreen&>(KeepWindow(std::unique_ptr<Window>(new class mainscreen)));
}

mainscreen::mainscreen() : Window("mainscreen")
{
    Layout();
    CreateControls();
    AddMenuHandlers();
    Show();
    Event_Open();
}

void mainscreen::Layout()
{
    MenuBar(::Menu());
    _SetProperties(*this, {
                              .title = "Gradeloom X",
                              .width = 705,
                              .height = 438,
                              .hasMinimizeButton = true,
                              .background = Color{93, 186, 202}
    });
}

void mainscreen::CreateControls()
{
    _CreateControls0();
    _CreateControls1();
    _CreateControls2();
    _CreateControls3();

    WriteDefaultScale(*this);
    ListBox1().ColumnCount(2);
    ListBox1().RowSelectionType(1);
    amax().MaximumCharactersAllowed(kMostCharactersOfAMaximum);
    PushButton1().Default(true);
    PushButton2().Tooltip(
        "\"Save Alternative Grading Scale\" allows the user to save multiple grading scales "
        "which you can reopen from the file menu.");
    PushButton4().Tooltip("\"Save Current Settings\" will cause the current grading scale to open the next "
                          "time the program is launched.");

    total().TextChange = [this](TextField& sender) { total_TextChange(sender); };
    PushButton1().Action = [this] { PushButton1_Action(); };
    PushButton2().Action = [this] { PushButton2_Action(); };
    PushButton3().Action = [this] { PushButton3_Action(); };
    BevelButton1().Action = [this] { BevelButton1_Action(); };
    PushButton4().Action = [this] { PushButton4_Action(); };

    // amin().KeyDown calls amin_KeyDown, and so on for each scale field.
#define FIELD(field, text, check)                                                                            \
    field().KeyDown = [this](TextField& sender, auto const& key) { return field##_KeyDown(sender, key); };   \
    field().GotFocus = [this](TextField& sender) { field##_GotFocus(sender); };                              \
    field().TextChange = [this](TextField& sender) { field##_TextChange(sender); };
#include "scale/scale_fields.def"
#undef FIELD
}

// The accessors: TextField& mainscreen::total() and so on.
#define FORM_SECTION -1
#define CONTROL(tab, type, name, caption, left, top, width, height, style)                                   \
    type& mainscreen::name()                                                                                 \
    {                                                                                                        \
        return Get<type>(#name);                                                                             \
    }
#define CHILD CONTROL
#define BAND(tab, maximum, l1, t1, w1, h1, minimum, l2, t2, w2, h2, label, caption, l3, t3, to, l4, t4)      \
    TextField& mainscreen::maximum()                                                                         \
    {                                                                                                        \
        return Get<TextField>(#maximum);                                                                     \
    }                                                                                                        \
    TextField& mainscreen::minimum()                                                                         \
    {                                                                                                        \
        return Get<TextField>(#minimum);                                                                     \
    }                                                                                                        \
    Label& mainscreen::label()                                                                               \
    {                                                                                                        \
        return Get<Label>(#label);                                                                           \
    }                                                                                                        \
    Label& mainscreen::to()                                                                                  \
    {                                                                                                        \
        return Get<Label>(#to);                                                                              \
    }
#include "frame/mainscreen.def"
#undef BAND
#undef CHILD
#undef CONTROL
#undef FORM_SECTION

// The creation of the controls, a row of the form each.
#define CREATE(tab, type, name, caption, left, top, width, height, style, parent)                            \
    _SetProperties(Add<type>(#name, parent),                                                                 \
                   RowProperties(form_style::style, caption, left, top, width, height, tab));
#define CONTROL(tab, type, name, caption, left, top, width, height, style)                                   \
    CREATE(tab, type, name, caption, left, top, width, height, style, nullptr)
#define CHILD(tab, type, name, caption, left, top, width, height, style)                                     \
    CREATE(tab, type, name, caption, left, top, width, height, style, &GroupBox1())
#define BAND(tab, maximum, l1, t1, w1, h1, minimum, l2, t2, w2, h2, label, caption, l3, t3, to, l4, t4)      \
    CONTROL(tab, TextField, maximum, caption " maximum", l1, t1, w1, h1, input)                              \
    CONTROL(tab + 1, TextField, minimum, caption " minimum", l2, t2, w2, h2, input)                          \
    CONTROL(tab + 2, Label, label, caption, l3, t3, kBandLabelWidth, kBandLabelHeight, plain)                \
    CONTROL(tab + 3, Label, to, "to ", l4, t4, kWordLabelWidth, kWordLabelHeight, plain)

void mainscreen::_CreateControls0()
{
#define FORM_SECTION 0
#include "frame/mainscreen.def"
#undef FORM_SECTION
}

void mainscreen::_CreateControls1()
{
#define FORM_SECTION 1
#include "frame/mainscreen.def"
#undef FORM_SECTION
}

void mainscreen::_CreateControls2()
{
#define FORM_SECTION 2
#include "frame/mainscreen.def"
#undef FORM_SECTION
}

void mainscreen::_CreateControls3()
{
#define FORM_SECTION 3
#include "frame/mainscreen.def"
#undef FORM_SECTION
}
