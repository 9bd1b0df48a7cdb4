#pragma once

#include "frame/windows.h"
#include "platform/text_field.h"

#include <array>
#include <string_view>

/// A letter grade and the field that counts the grades of its family.
struct Letter {
    std::string_view text;
    TextField& (mainscreen::*bucket)();
};

/// The thirteen letters, best first. The first twelve are the bands of the scale, in its order; F has none.
extern std::array<Letter, 13> const kLetters;

/// The bucket of a letter; null for a text that is none of the thirteen.
[[nodiscard]] TextField* BucketOf(class mainscreen& window, std::string_view letter);
