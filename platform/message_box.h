#pragma once

#include <string_view>

/// What a question answers.
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;

/// The buttons Yes and No (4) with a question icon (32).
inline constexpr int kYesNoQuestion = 36;

/// Shows a notice and returns when the user has dismissed it.
void MsgBox(std::string_view text);

/// Asks a question; the only form of buttons is kYesNoQuestion. Returns kYes or kNo. No is the default, and what
/// Escape and the end of the program answer.
int MsgBox(std::string_view text, int buttons, std::string_view title);
