#include "platform/buttons.h"

#include "platform/qt/guarded.h"
#include "platform/qt/text.h"
#include "platform/qt/widgets/button_widgets.h"
#include "platform/qt/widgets/dialogs.h"
#include "platform/qt/widgets/top_level.h"

namespace {

constexpr int kButtonMargins = 8; // pixels, left and right of the caption
constexpr int kCheckMargins = 20; // the box is left of the caption

/// Makes an action a command of the button's window. A double click runs it once.
PushButtonWidget& ConnectAction(Control const& control, std::function<void()> const& action)
{
    auto& button = static_cast<PushButtonWidget&>(control.Widget());
    button.hasAction = [&action] { return static_cast<bool>(action); };
    QObject::connect(&button, &QAbstractButton::clicked, &button, [&button, &action] {
        if (IsDialogOpen()) {
            return;
        }
        if (auto* const top = dynamic_cast<TopLevel*>(button.window())) {
            top->beginCommand();
        }
        Raise(action);
    });
    return button;
}

} // namespace

PushButton::PushButton(QWidget* parent, std::string const& name) : Control(new PushButtonWidget(parent), name)
{
    ConnectAction(*this, Action).mouseDown = [this](QPoint point) {
        return Raise(MouseDown, *this, point.x(), point.y());
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

void PushButton::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    ApplyFont(properties, kButtonMargins);
    static_cast<QPushButton&>(Widget()).setText(ToQt(properties.caption));
}

BevelButton::BevelButton(QWidget* parent, std::string const& name)
    : Control(new PushButtonWidget(parent), name)
{
    ConnectAction(*this, Action).setFocusPolicy(Qt::NoFocus);
}

void BevelButton::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    ApplyFont(properties, kButtonMargins);
    static_cast<QPushButton&>(Widget()).setText(ToQt(properties.caption));
}

CheckBox::CheckBox(QWidget* parent, std::string const& name) : Control(new CheckBoxWidget(parent), name) {}

bool CheckBox::Value() const
{
    return static_cast<QCheckBox const&>(Widget()).isChecked();
}

void CheckBox::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    ApplyFont(properties, kCheckMargins);
    static_cast<QCheckBox&>(Widget()).setText(ToQt(properties.caption));
}
