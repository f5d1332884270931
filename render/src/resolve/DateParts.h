#pragma once

#include <string_view>
#include <vector>

#include "resolve/DateFormat.h"

namespace render {

/// What is known of a part of dates or times.
struct PartRule {
  std::string_view kind;      ///< of its node
  std::string_view specifier; ///< of Vega's utcFormat(); empty: none does
  std::string_view sample;    ///< as wide as its text; empty: the text is a name
  double resolution;          ///< seconds
};
const PartRule& ruleOf(DateFormat::Part part);

/// The parts of a format's time: minutes and seconds for a format without any parts.
std::vector<DateFormat::ShownPart> timeOf(const DateFormat& format);

} // namespace render
