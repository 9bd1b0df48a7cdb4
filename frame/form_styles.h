#pragma once

#include "platform/control.h"

#include <algorithm>
#include <functional>
#include <span>

// The styles that the rows of a form name, and the check of their order.

inline constexpr Color kResultColor = {220, 84, 173};

namespace form_style {

inline constexpr ControlStyle plain = {};
inline constexpr ControlStyle bold = {.bold = true};
inline constexpr ControlStyle platformSize = {.textSize = 0};
inline constexpr ControlStyle result = {.readOnly = true, .background = kResultColor};
inline constexpr ControlStyle hidden = {.visible = false};
inline constexpr ControlStyle hiddenDisabled = {.visible = false, .enabled = false};
inline constexpr ControlStyle hiddenDisabledReadOnly = {.visible = false, .enabled = false, .readOnly = true};

} // namespace form_style

/// Whether each of these tab numbers is higher than the one before it.
constexpr bool IsRising(std::span<int const> tabs)
{
    return std::ranges::adjacent_find(tabs, std::greater_equal()) == tabs.end();
}
