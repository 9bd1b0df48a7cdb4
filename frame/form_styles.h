#pragma once

#include "platform/control.h"

#include <algorithm>
#include <functional>
#include <span>

// How the controls of a form look: the styles that the rows of its table name.

inline constexpr Color kResultColor = {220, 84, 173};

namespace form_style {

inline constexpr ControlProperties plain = {};
inline constexpr ControlProperties bold = {.bold = true};
inline constexpr ControlProperties platformSize = {.textSize = 0};
inline constexpr ControlProperties result = {.readOnly = true, .background = kResultColor};
inline constexpr ControlProperties hidden = {.visible = false};
inline constexpr ControlProperties hiddenDisabled = {.visible = false, .enabled = false};
inline constexpr ControlProperties hiddenReadOnly = {.visible = false, .enabled = false, .readOnly = true};

} // namespace form_style

/// Whether each of these tab numbers is higher than the one before it.
constexpr bool IsRising(std::span<int const> tabs)
{
    return std::ranges::adjacent_find(tabs, std::greater_equal()) == tabs.end();
}

/// The properties of one row: those of its style, with its own caption, place and tab number.
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
