#include "platform/qt/controls.h"

#include "platform/buttons.h"
#include "platform/group_box.h"
#include "platform/label.h"
#include "platform/qt/button_widgets.h"
#include "platform/qt/guard.h"
#include "platform/qt/text.h"
#include "platform/qt/top_level.h"

#include <QApplication>
#include <QCheckBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>

namespace {

constexpr int kMostCondensed = 70; // per cent of the font's width; narrower can't be read

/// Connects a button's press to what it does, as a command of its window.
void ConnectAction(QAbstractButton& button, std::function<void()> const& action)
{
    QObject::connect(&button, &QAbstractButton::clicked, &button, [&button, &action] {
        if (auto* const top = dynamic_cast<TopLevel*>(button.window())) {
            top->beginCommand();
        }
        if (action) {
            Guarded(action);
        }
    });
}

} // namespace

QFont ControlFont(ControlProperties const& properties, int margins)
{
    QFont font = QApplication::font();
    if (properties.textSize > 0) {
        font.setPixelSize(properties.textSize);
    }
    if (properties.bold) {
        font.setBold(true);
        int const available = properties.width - margins;
        for (int stretch = QFont::Unstretched; stretch > kMostCondensed; --stretch) {
            if (QFontMetrics(font).horizontalAdvance(ToQt(properties.caption)) < available) {
                break;
            }
            font.setStretch(stretch);
        }
    }
    return font;
}

QPalette FormPalette(Color background)
{
    QColor const grey(128, 128, 128);
    QPalette palette(QColor(239, 239, 239), QColor(background.red, background.green, background.blue));
    for (QPalette::ColorRole const role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, grey);
    }
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, Qt::white);
    palette.setColor(QPalette::PlaceholderText, grey);
    palette.setColor(QPalette::Highlight, QColor(20, 90, 160));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QApplication::palette().color(QPalette::ToolTipBase));
    palette.setColor(QPalette::ToolTipText, QApplication::palette().color(QPalette::ToolTipText));
    return palette;
}

QPalette FieldPalette(QPalette palette, Color background)
{
    palette.setColor(QPalette::Base, QColor(background.red, background.green, background.blue));
    return palette;
}

Control::Control(QWidget* widget, std::string const& name) : widget_(widget)
{
    widget->setObjectName(ToQt(name));
}

Control::~Control() = default;

QWidget& Control::Widget() const
{
    return *widget_;
}

void Control::Tooltip(std::string_view text)
{
    widget_->setToolTip(ToQt(text));
}

void Control::Apply(ControlProperties const& properties)
{
    QPoint place(properties.left, properties.top);
    for (QWidget* parent = widget_->parentWidget(); parent != nullptr; parent = parent->parentWidget()) {
        if (qobject_cast<QGroupBox*>(parent) == nullptr) {
            break;
        }
        place -= parent->pos();
    }
    widget_->setGeometry(QRect(place, QSize(properties.width, properties.height)));
    widget_->setEnabled(properties.enabled);
    widget_->setVisible(properties.visible);
    widget_->setAccessibleName(ToQt(properties.accessibleName).simplified());
    tabIndex_ = properties.tabIndex;
}

void _SetProperties(Control& control, ControlProperties const& properties)
{
    control.Apply(properties);
}

Label::Label(QWidget* parent, std::string const& name) : Control(new QLabel(parent), name) {}

void Label::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    auto& label = static_cast<QLabel&>(Widget());
    label.setTextFormat(Qt::PlainText);
    label.setFont(ControlFont(properties, 0));
    label.setText(ToQt(properties.caption).replace(u'\r', u'\n'));
}

void Label::Multiline()
{
    static_cast<QLabel&>(Widget()).setAlignment(Qt::AlignHCenter | Qt::AlignTop);
}

PushButton::PushButton(QWidget* parent, std::string const& name) : Control(new PushButtonWidget(parent), name)
{
    auto& button = static_cast<PushButtonWidget&>(Widget());
    ConnectAction(button, Action);
    button.mouseDown = [this](QPoint place) {
        return MouseDown && Guarded(MouseDown, *this, place.x(), place.y());
    };
}

void PushButton::Default(bool isDefault)
{
    auto& button = static_cast<PushButtonWidget&>(Widget());
    button.setDefault(isDefault);
    if (auto* const top = dynamic_cast<TopLevel*>(button.window())) {
        top->defaultButton = isDefault ? &button : nullptr;
    }
}

void PushButton::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    auto& button = static_cast<QPushButton&>(Widget());
    button.setFont(ControlFont(properties, 8));
    button.setText(ToQt(properties.caption));
}

BevelButton::BevelButton(QWidget* parent, std::string const& name) : Control(new QPushButton(parent), name)
{
    auto& button = static_cast<QPushButton&>(Widget());
    button.setFocusPolicy(Qt::NoFocus);
    ConnectAction(button, Action);
}

void BevelButton::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    auto& button = static_cast<QPushButton&>(Widget());
    button.setFont(ControlFont(properties, 8));
    button.setText(ToQt(properties.caption));
}

CheckBox::CheckBox(QWidget* parent, std::string const& name) : Control(new CheckBoxWidget(parent), name) {}

bool CheckBox::Value() const
{
    return static_cast<QCheckBox const&>(Widget()).isChecked();
}

void CheckBox::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    auto& box = static_cast<QCheckBox&>(Widget());
    box.setFont(ControlFont(properties, 20));
    box.setText(ToQt(properties.caption));
}

GroupBox::GroupBox(QWidget* parent, std::string const& name) : Control(new QGroupBox(parent), name) {}

void GroupBox::Apply(ControlProperties const& properties)
{
    Control::Apply(properties);
    auto& box = static_cast<QGroupBox&>(Widget());
    box.setFont(ControlFont(properties, 8));
    box.setTitle(ToQt(properties.caption));
}
