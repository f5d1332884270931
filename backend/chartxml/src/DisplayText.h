#pragma once

#include <string>
#include <string_view>

#include <host/Data.h>

/// A value of a variable in the variable's display format with `moreDecimals` more
/// decimals, at most 16. A text is shown to its format's width, but never past the
/// cells that it has, whatever width the format claims.
std::string displayText(const KORVA_Variable& variable, const OBS& value, int moreDecimals = 0,
                        std::string_view separator = {});
