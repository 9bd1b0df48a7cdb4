#include "platform/text_field.h"

#include "platform/qt/guarded.h"
#include "platform/qt/text.h"
#include "platform/qt/widgets/form_palette.h"
#include "platform/qt/widgets/line_edit.h"
#include "platform/qt/widgets/program.h"
#include "platform/qt/widgets/top_level.h"

namespace {

LineEdit& Field(Control const& control)
{
    return static_cast<LineEdit&>(control.Widget());
}

/// Moves the focus here and delivers GotFocus at once.
void TakeFocus(LineEdit& field)
{
    field.setFocus(Qt::OtherFocusReason);
    if (auto* const top = dynamic_cast<TopLevel*>(field.window())) {
        top->noteFocus(&field);
        Program::instance().gotFocus.deliver();
    }
}

} // namespace

TextField::TextField(QWidget* parent, std::string const& name) : Control(new LineEdit(parent), name)
{
    LineEdit& field = Field(*this);
    field.keyDown = [this](QString const& key) { return Raise(KeyDown, *this, FromQt(key)); };
    field.gotFocus = [this] { Raise(GotFocus, *this); };
    field.userChange = [this] { Raise(TextChange, *this); };
    field.takeFocus = [&field] { TakeFocus(field); };
}

std::string TextField::Text() const
{
    return FromQt(Field(*this).text());
}

void TextField::Text(std::string_view text)
{
    Field(*this).writeByProgram(ToQt(text));
}

void TextField::MaximumCharactersAllowed(int count)
{
    Field(*this).limitUserTo(count);
}

void TextField::Apply(ControlProperties const& properties)
{
    constexpr int kMargins = 8; // pixels, left and right of the text
    Control::Apply(properties);
    ApplyFont(properties, kMargins);
    LineEdit& field = Field(*this);
    field.setReadOnly(properties.style.readOnly);
    if (properties.style.background) {
        Color const& color = *properties.style.background;
        field.setPalette(FieldPalette(field.palette(), QColor(color.red, color.green, color.blue)));
    }
}
