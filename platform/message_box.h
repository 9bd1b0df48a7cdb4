#pragma once

#include <string_view>

/// The answers to a question.
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;

/// The buttons Yes and No (4) with a question icon (32).
inline constexpr int kYesNoQuestion = 36;

/// Returns when the user has closed the notice.
void MsgBox(std::string_view text);

/// Returns kYes or kNo; buttons must be kYesNoQuestion. No is the default, and Escape and the end of the program answer
/// No.
int MsgBox(std::string_view text, int buttons, std::string_view title);
