#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "read/Node.h"
#include "resolve/Notes.h"

namespace render {

/// How the numbers of a variable are shown: as the formatter of the texts shows
/// them, so that a number reads the same in a footnote and on an axis.
struct NumberFormat {
  enum class Scientific { never, automatic, always };

  std::optional<int> minimumFractionDigits{};
  std::optional<int> maximumFractionDigits{};
  int minimumIntegerDigits = 1; ///< with 0 a number below one begins with the decimal sign
  bool grouping = false;
  bool parentheses = false; ///< around negative numbers, in place of the sign
  Scientific scientific = Scientific::never;
  std::string prefix{}; ///< stands behind the sign: -$1
  std::string suffix{};

  /// Reads a "numberFormat" node; an attribute with a value that is not known is
  /// noted and left out.
  static NumberFormat read(const Node& node, Notes& notes);
};

/// A Vega expression that gives the text of the number `value` (itself an
/// expression). No format is the shortest text in six significant digits.
std::string numberText(const std::optional<NumberFormat>& format, std::string_view value);

/// The same for the labels of an axis whose ticks differ from the given decimal
/// onward: as many decimals as the format wants, and enough to tell the ticks
/// apart. `magnitude` is the largest absolute value on the axis. Ticks at powers have as
/// many decimals as each needs: 0.01, 0.1, 1.
std::string tickText(const std::optional<NumberFormat>& format, std::string_view value,
                     int tickDecimals, double magnitude, bool areAtPowers = false);

} // namespace render
