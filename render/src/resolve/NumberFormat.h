#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "read/Node.h"
#include "resolve/Notes.h"

namespace render {

/// How the numbers of a variable are shown.
struct NumberFormat {
  enum class Scientific { never, automatic, always };
  /// How a negative number stands to its prefix and suffix: $-1, -$1, ($1).
  enum class Negative { inside, outside, parentheses };

  std::optional<int> minimumFractionDigits{};
  std::optional<int> maximumFractionDigits{};
  bool grouping = true;
  Scientific scientific = Scientific::never;
  Negative negative = Negative::inside;
  std::string prefix{};
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
/// apart. `magnitude` is the largest absolute value on the axis.
std::string tickText(const std::optional<NumberFormat>& format, std::string_view value,
                     int tickDecimals, double magnitude);

} // namespace render
