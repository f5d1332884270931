#include "resolve/NumberFormat.h"

#include <algorithm>
#include <charconv>

#include <fmt/format.h>

#include "text/Expression.h"

namespace render {
namespace {

/// More decimals than any display format has; further ones would only crowd the
/// picture.
constexpr int mostDecimals = 16;

std::optional<int> digits(const Node& node, std::string_view name, Notes& notes) {
  const std::string_view text = node.attribute(name);
  if (text.empty()) return std::nullopt;
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc() && end == text.data() + text.size() && value >= 0)
    return std::min(value, mostDecimals);
  notes.add(fmt::format("numberFormat: {}=\"{}\" is not a number of digits", name, text));
  return std::nullopt;
}

/// The specifier of Vega's format() for a plain number.
std::string specifier(const NumberFormat& format, int least, int most) {
  const char* const grouping = format.grouping ? "," : "";
  switch (format.scientific) {
  case NumberFormat::Scientific::always:
    return format.minimumFractionDigits ? fmt::format(".{}e", least) : "~e";
  case NumberFormat::Scientific::automatic:
    return ".6~g";
  case NumberFormat::Scientific::never:
    // Vega either pads a number to its decimals or trims all of its zeros.
    return least == 0 && most > 0 ? fmt::format("{}.{}~f", grouping, most)
                                  : fmt::format("{}.{}f", grouping, least);
  }
  return {};
}

std::string affixed(const NumberFormat& format, std::string_view value,
                    const std::string& specifier) {
  const auto text = [&](std::string_view number) {
    return fmt::format("format({},{})", number, literal(specifier));
  };
  const auto joined = [&](const std::string& number) {
    std::string expression = number;
    if (!format.prefix.empty())
      expression = fmt::format("{}+{}", literal(format.prefix), expression);
    if (!format.suffix.empty())
      expression = fmt::format("{}+{}", expression, literal(format.suffix));
    return expression;
  };
  if (format.negative == NumberFormat::Negative::inside) return joined(text(value));

  const std::string absolute = joined(text(fmt::format("abs({})", value)));
  if (format.negative == NumberFormat::Negative::parentheses)
    return fmt::format("({} < 0 ? \"(\"+{}+\")\" : {})", value, absolute, absolute);
  return fmt::format("({} < 0 ? \"\\u2212\" : \"\")+{}", value, absolute);
}

} // namespace

NumberFormat NumberFormat::read(const Node& node, Notes& notes) {
  NumberFormat format;
  format.minimumFractionDigits = digits(node, "minimumFractionDigits", notes);
  format.maximumFractionDigits = digits(node, "maximumFractionDigits", notes);
  format.grouping = node.attribute("useGrouping") != "false";
  format.prefix = node.attribute("prefix");
  format.suffix = node.attribute("suffix");
  if (node.attribute("scientific") == "always") format.scientific = Scientific::always;
  if (node.attribute("scientific") == "auto") format.scientific = Scientific::automatic;
  if (node.attribute("negativesOutside") == "true") format.negative = Negative::outside;
  if (node.attribute("negativesInParentheses") == "true") format.negative = Negative::parentheses;
  return format;
}

std::string numberText(const std::optional<NumberFormat>& format, std::string_view value) {
  if (!format) return fmt::format("format({},\".6~g\")", value);
  constexpr int usualMost = 3;
  const int least = format->minimumFractionDigits.value_or(0);
  const int most = format->maximumFractionDigits.value_or(std::max(least, usualMost));
  return affixed(*format, value, specifier(*format, std::min(least, most), most));
}

std::string tickText(const std::optional<NumberFormat>& format, std::string_view value,
                     int tickDecimals, double magnitude) {
  constexpr double longestPlain = 1e12;
  constexpr int mostPlainDecimals = 9;
  NumberFormat used = format.value_or(NumberFormat{.grouping = false});
  const bool isLong = magnitude >= longestPlain || tickDecimals > mostPlainDecimals;
  if (isLong) used.scientific = NumberFormat::Scientific::always;
  if (used.scientific == NumberFormat::Scientific::always) return affixed(used, value, "~e");

  const int most = used.maximumFractionDigits.value_or(mostDecimals);
  const int decimals =
      std::min(std::max(used.minimumFractionDigits.value_or(0), tickDecimals), most);
  return affixed(used, value, specifier(used, decimals, decimals));
}

} // namespace render
