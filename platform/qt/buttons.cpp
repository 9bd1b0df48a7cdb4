#include "platform/buttons.h"

#include "platform/qt/guarded.h"
#include "platform/qt/text.h"
#include "platform/qt/widgets/button_widgets.h"
#include "platform/qt/widgets/top_level.h"

namespace {

constexpr int kButtonMargins = 8;
constexpr int kCheckMargins = 20; // the box is left of the caption

/// Runs the action as a command of the button's window, once for a double click.
PushButtonWidget& ConnectAction(Control const& control, std::function<void()> const& action)
{
    auto& button = static_cast<PushButtonWidget&>(control.Widget());
    button.hasAction = [&action] { return static_cast<bool>(action); };
    QObject::connect(&button, &QAbstractButton::clicked, &button, [&button, &action] {
        if (auto* const top = dynamic_cast<TopLevel*>(button.window())) {
            top->beginCommand();
        }
        Raise(action);
    });
    return button;
}

} // namespace

Button::Button(QWidget* widget, std::string const& name, int margins)
    : Control(widget, name), margins_(margins)
{
}

void Button::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    ApplyFont(properties, margins_);
    static_cast<QAbstractButton&>(Widget()).setText(ToQt(properties.caption));
}

PushButton::PushButton(QWidget* parent, std::string const& name)
    : Button(new PushButtonWidget(parent), name, kButtonMargins)
{
    ConnectAction(*this, Action).mouseDown = [this](QPoint position) {
        return Raise(MouseDown, *this, position.x(), position.y());
    };
}

void PushButton::Default(bool isDefault)
{
    auto& button = static_cast<QPushButton&>(Widget());
    button.setDefault(isDefault);
    if (auto* const top = dynamic_cast<TopLevel*>(button.window())) {
        top->defaultButton = isDefault ? &button : nullptr;
    }
}

BevelButton::BevelButton(QWidget* parent, std::string const& name)
    : Button(new PushButtonWidget(parent), name, kButtonMargins)
{
    ConnectAction(*this, Action).setFocusPolicy(Qt::NoFocus);
}

CheckBox::CheckBox(QWidget* parent, std::string const& name)
    : Button(new CheckBoxWidget(parent), name, kCheckMargins)
{
}

bool CheckBox::Value() const
{
    return static_cast<QCheckBox const&>(Widget()).isChecked();
}
