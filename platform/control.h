#pragma once

#include "platform/color.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class QWidget;

/// How a control looks. Each kind of control ignores what it has no use for.
struct ControlStyle {
    int textSize = 12; ///< height of the font in pixels; 0 leaves it to the platform
    bool bold = false;
    bool visible = true;
    bool enabled = true;
    bool readOnly = false;                ///< text fields only
    std::optional<Color> background = {}; ///< text fields only; without one a field is white
};

/// What a form states of a control. Places are device-independent pixels from the top left of the window's
/// content, also for a control inside a group box.
struct ControlProperties {
    int tabIndex; ///< order of the keyboard, lowest first, counted within the parent
    /// What it shows; for a control that shows no caption, its accessible name.
    std::string_view caption;
    int left;
    int top;
    int width;
    int height;
    ControlStyle style;
};

/// One control of a window. It owns the widget that the user sees and deletes it, so no event comes for a
/// control that is gone.
class Control {
public:
    virtual ~Control();
    Control(Control const&) = delete;
    Control& operator=(Control const&) = delete;

    /// The text that appears while the pointer rests on the control.
    void Tooltip(std::string_view text);

    /// Applies what a form states of the control.
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
