#include "frame/mainscreen.h"

#include "frame/form_styles.h"
#include "frame/menu.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr int kMaxLengthOfAmax = 3;

// Row one is the frame of the grading scale, which lies behind everything and comes last in the order of the keyboard.
// All other rows stand in that order, and so do those in the box.
constexpr int kTabs[] = {
#define CONTROL(tab, ...) tab,
#define CHILD(...)
#include "frame/mainscreen.def"
};
static_assert(IsRising(std::span(kTabs).subspan(1)) && kTabs[0] > kTabs[std::size(kTabs) - 1]);

constexpr int kTabsInBox[] = {
#define CHILD(tab, ...) tab,
#include "frame/mainscreen.def"
};
static_assert(IsRising(kTabsInBox));

constexpr std::string_view kFormOrder[] = {
#define BAND_ROW(tab, maximum, l1, t1, w1, h1, minimum, ...) #maximum, #minimum,
#include "frame/mainscreen.def"
};

constexpr std::string_view kScaleOrder[] = {
#define SCALE_FIELD(name, ...) #name,
#include "frame/bands.def"
};

static_assert(std::ranges::equal(kFormOrder, kScaleOrder),
              "the form must have the fields of the scale, in the order of the scale");

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
    WindowProperties const properties = {
        .title = "Gradeloom X",
        .width = 705,
        .height = 438,
        .hasMinimizeButton = true,
        .background = Color{93, 186, 202},
    };
    _SetProperties(*this, properties);
}

void mainscreen::CreateControls()
{
    _CreateControls0();
    _CreateControls1();
    _CreateControls2();
    _CreateControls3();

#define SCALE_FIELD(name, defaultValue) name().Text(#defaultValue);
#include "frame/bands.def"

    ListBox1().ColumnCount(2);
    ListBox1().SpokenHeaders("Student,Percentage");
    ListBox1().RowSelectionType(1);
    amax().MaximumCharactersAllowed(kMaxLengthOfAmax);
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
#define SCALE_FIELD(name, ...)                                                                               \
    name().KeyDown = [this](TextField& sender, auto const& key) { return name##_KeyDown(sender, key); };     \
    name().GotFocus = [this](TextField& sender) { name##_GotFocus(sender); };                                \
    name().TextChange = [this](TextField& sender) { name##_TextChange(sender); };
#include "frame/bands.def"
}

// _CreateControls0 to _CreateControls3 create the rows of their sections.
#define CREATE(tab, type, name, caption, left, top, width, height, style, parent)                            \
    _SetProperties(Add<type>(#name, parent), {tab, caption, left, top, width, height, form_style::style});
#define SECTION(function)                                                                                    \
    void mainscreen::function()                                                                              \
    {
#define END_SECTION() }
#define CONTROL(tab, type, name, caption, left, top, width, height, style)                                   \
    CREATE(tab, type, name, caption, left, top, width, height, style, nullptr)
#define CHILD(tab, type, name, caption, left, top, width, height, style)                                     \
    CREATE(tab, type, name, caption, left, top, width, height, style, &GroupBox1())
#include "frame/mainscreen.def"
#undef CREATE
