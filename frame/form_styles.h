#pragma once

#include "platform/control.h"
#include "platform/window.h"

// How the controls of a form look, and how one row of a form's table becomes a control.

inline constexpr Color kResultColor = {220, 84, 173};

/// What the rows of a form call their styles.
namespace form_style {

inline constexpr ControlProperties plain = {};
inline constexpr ControlProperties bold = {.bold = true};
inline constexpr ControlProperties platformSize = {.textSize = 0};
inline constexpr ControlProperties input = {};
inline constexpr ControlProperties result = {.readOnly = true, .background = kResultColor};
inline constexpr ControlProperties hiddenEnabled = {.visible = false};
inline constexpr ControlProperties hiddenField = {.visible = false, .enabled = false};
inline constexpr ControlProperties hiddenSum = {.visible = false, .enabled = false, .readOnly = true};
inline constexpr ControlProperties hiddenList = {.visible = false};
inline constexpr ControlProperties hiddenOff = {.visible = false, .enabled = false};

} // namespace form_style

/// The properties of one row: the style's, with the row's own caption, place and tab number.
constexpr ControlProperties RowProperties(ControlProperties style, std::string_view caption, int left,
                                          int top, int width, int height, int tab)
{
    style.caption = caption;
    style.accessibleName = caption;
    style.left = left;
    style.top = top;
    style.width = width;
    style.height = height;
    style.tabIndex = tab;
    return style;
}
