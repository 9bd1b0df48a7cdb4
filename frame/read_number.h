#pragma once

#include "frame/conversions.h"

/// The number at the start of a text, 0 if there is none: see Val and CDbl, which differ in the exponent.
[[nodiscard]] Double ReadNumber(std::string_view typed, bool withExponent);
