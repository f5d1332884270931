#pragma once

#include <string_view>

namespace host {

/// A display format as data packages name it, "F8.2", "A20" or "DATE11".
struct DisplayFormat {
  int type = 0;
  int width = 0;
  int decimals = 0;
};

/// The format codes that descriptions without a format get.
constexpr int textFormat = 1;
constexpr int numberFormat = 5;
constexpr DisplayFormat usualDate{20, 11, 0};

constexpr int longestText = 32767; ///< bytes of one string value
constexpr int widestNumber = 40;
constexpr int mostDecimals = 16;

/// Reads a format's name: letters, width, and for a number decimals after a
/// point; letters in either case. FORMAT38.10 names a number or date by its code,
/// here 38, with decimals after a second point. Throws Refusal.
DisplayFormat parseDisplayFormat(std::string_view name);

} // namespace host
