#pragma once

#include "platform/color.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QWidget;

/// A control ignores what does not apply to its kind.
struct ControlStyle {
    int textSize = 12; ///< font height in pixels; 0 is the platform's size
    bool bold = false;
    bool visible = true;
    bool enabled = true;
    bool readOnly = false;                ///< text fields only
    std::optional<Color> background = {}; ///< text fields only; without one a field is white
};

/// Coordinates are device-independent pixels from the top left of the window's content, inside a group box too.
struct ControlProperties {
    int tabIndex; ///< keyboard order within the parent, lowest first
    /// What the control shows, else its accessible name.
    std::string_view caption;
    int left;
    int top;
    int width;
    int height;
    ControlStyle style;
};

/// Owns its widget, so no event arrives for a control that is gone.
class Control {
public:
    virtual ~Control();
    Control(Control const&) = delete;
    Control& operator=(Control const&) = delete;

    void Tooltip(std::string_view text);

    virtual void Apply(ControlProperties const& properties);

    [[nodiscard]] int TabIndex() const { return tabIndex_; }
    [[nodiscard]] QWidget& Widget() const { return *widget_; }

protected:
    /// Takes ownership of the widget.
    Control(QWidget* widget, std::string const& name);

    /// Sets the font that the properties ask for. A bold caption that is too wide for its place, less these
    /// margins in pixels, is condensed to fit.
    void ApplyFont(ControlProperties const& properties, int margins);

private:
    std::unique_ptr<QWidget> widget_;
    int tabIndex_ = 0;
};

/// Applies a stored set of properties to a control.
void _SetProperties(Control& control, ControlProperties const& properties);
