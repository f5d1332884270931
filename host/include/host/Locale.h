#pragma once

#include <array>
#include <string>
#include <string_view>

namespace host {

/// What a language calls months and weekdays where they stand alone, UTF-8.
struct DateNames {
  std::array<std::string, 12> months, shortMonths;
  std::array<std::string, 7> days, shortDays; ///< Sunday first
};

/// The signs of a language's numbers, UTF-8.
struct NumberSymbols {
  std::string decimal, grouping;
};

/// The names and signs of a language: en, de, fr, es, it, pl, ru, ja, ko, zh-cn or
/// zh-tw; any other is taken as English. They are made once per language and stay.
const DateNames& dateNames(std::string_view language);
const NumberSymbols& numberSymbols(std::string_view language);

} // namespace host
