#include "platform/text_field.h"

#include "platform/qt/controls.h"
#include "platform/qt/line_edit.h"
#include "platform/qt/text.h"

TextField::TextField(QWidget* parent, std::string const& name) : Control(new LineEdit(parent), name)
{
    auto& field = static_cast<LineEdit&>(Widget());
    field.keyDown = [this](QString const& key) { return KeyDown && KeyDown(*this, FromQt(key)); };
    field.gotFocus = [this] {
        if (GotFocus) {
            GotFocus(*this);
        }
    };
    field.userChange = [this] {
        if (TextChange) {
            TextChange(*this);
        }
    };
}

std::string TextField::Text() const
{
    return FromQt(static_cast<LineEdit const&>(Widget()).text());
}

void TextField::Text(std::string_view text)
{
    static_cast<LineEdit&>(Widget()).writeByProgram(ToQt(text));
}

void TextField::MaximumCharactersAllowed(int count)
{
    static_cast<LineEdit&>(Widget()).limitUserTo(count);
}

void TextField::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    auto& field = static_cast<LineEdit&>(Widget());
    field.setFont(ControlFont(properties, 8));
    field.setReadOnly(properties.readOnly);
    if (properties.background) {
        field.setPalette(FieldPalette(field.palette(), *properties.background));
    }
}
