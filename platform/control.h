#pragma once

#include "platform/color.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QWidget;

/// How a control looks. Each kind of control ignores what does not apply to it.
struct ControlStyle {
    int textSize = 12; ///< font height in pixels; 0 is the platform's size
    bool bold = false;
    bool visible = true;
    bool enabled = true;
    bool readOnly = false;                ///< text fields only
    std::optional<Color> background = {}; ///< text fields only; the default is white
};

/// What a form states about a control. Coordinates are device-independent pixels from the top left of the window's
/// content, even inside a group box.
struct ControlProperties {
    int tabIndex; ///< position in the Tab order of its parent, lowest first
    /// What it shows; for a control that shows no caption, its accessible name.
    std::string_view caption;
    int left;
    int top;
    int width;
    int height;
    ControlStyle style;
};

/// A control of a window. It owns its widget, so no event arrives for a deleted control.
class Control {
public:
    virtual ~Control();
    Control(Control const&) = delete;
    Control& operator=(Control const&) = delete;

    /// Sets the text shown while the pointer rests on the control.
    void Tooltip(std::string_view text);

    /// Applies what a form states about the control.
    virtual void Apply(ControlProperties const& properties);

    [[nodiscard]] int TabIndex() const { return tabIndex_; }
    [[nodiscard]] QWidget& Widget() const { return *widget_; }

protected:
    /// Takes ownership of the widget.
    Control(QWidget* widget, std::string const& name);

    /// Sets the font. A caption that is bold or of the platform's size is condensed if it is wider than the control
    /// less these margins, in pixels, and made smaller if that is not enough.
    void ApplyFont(ControlProperties const& properties, int margins);

private:
    std::unique_ptr<QWidget> widget_;
    int tabIndex_ = 0;
};

/// Applies a stored set of properties to a control.
void _SetProperties(Control& control, ControlProperties const& properties);
