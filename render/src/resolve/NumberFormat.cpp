#include "resolve/NumberFormat.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include <fmt/format.h>

#include "text/Expression.h"

namespace render {
namespace {

/// More decimals than any display format has; further ones would only crowd the
/// picture.
constexpr int mostDecimals = 16;
constexpr int mostIntegerDigits = 40;

std::optional<int> digits(const Node& node, std::string_view name, int most, Notes& notes) {
  const std::string_view text = node.attribute(name);
  if (text.empty()) return std::nullopt;
  int value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc() && end == text.data() + text.size() && value >= 0)
    return std::min(value, most);
  notes.add("Not digits^2", {name, text});
  return std::nullopt;
}

std::string formatted(std::string_view value, std::string_view specifier) {
  return fmt::format("format({},\"{}\")", value, specifier);
}

std::string replaced(std::string_view text, std::string_view pattern, std::string_view with) {
  return fmt::format("replace({},/{}/,{})", text, pattern, literal(with));
}

/// "1.5e+5" as "1.5E+05".
std::string exponential(const std::string& text) {
  return replaced(replaced(text, "e", "E"), "E[+-](?=[0-9]$)", "$&0");
}

/// The shortest text in six significant digits, and all digits of an integer part
/// that people still read.
std::string shortest(std::string_view value) {
  const std::string magnitude = fmt::format("abs({})", value);
  return fmt::format("({0} >= 1e6 && {0} < 1e15 ? {1} : {2})", magnitude, formatted(value, ".0f"),
                     exponential(formatted(value, ".6~g")));
}

/// Vega counts signs of grouping, decimal sign, decimals and a minus into the width that it
/// fills with zeros.
std::string filling(const NumberFormat& format, int decimals) {
  const int integer = format.minimumIntegerDigits;
  if (integer <= 1) return {};
  const int groups = format.grouping ? (integer - 1) / 3 : 0;
  return fmt::format("0{}", integer + groups + (decimals > 0 ? decimals + 1 : 0));
}

/// The number with its decimals. Zeros fill the digits alone, the minus comes before them;
/// what rounds to zero has none.
std::string digitsOf(const NumberFormat& format, std::string_view value, int decimals) {
  const std::string zeros = filling(format, decimals);
  const std::string specifier =
      fmt::format("{}{}.{}f", zeros, format.grouping ? "," : "", decimals);
  if (zeros.empty()) return formatted(value, specifier);
  const std::string text = formatted(fmt::format("abs({})", value), specifier);
  return replaced(fmt::format("({}<0?\"-\":\"\")+{}", value, text), "^-(?=[^1-9]*$)", "");
}

/// Vega pads a number to its decimals; the zeros past the least are taken off.
std::string fixed(const NumberFormat& format, std::string_view value, int least, int most) {
  std::string text = digitsOf(format, value, most);
  if (least < most)
    text =
        replaced(text, least == 0 ? "[^0-9]0+$|0+$" : fmt::format("0{{1,{}}}$", most - least), "");
  return format.minimumIntegerDigits == 0 ? replaced(text, "^(-?)0(?=[^0-9])", "$1") : text;
}

/// The value, or, where Vega would round a half away from zero and the formatter rounds
/// to the even digit below, one a little nearer to zero. Times a power of two a half
/// at that decimal is an odd number, and nothing else is.
std::string halfToEven(std::string_view value, int decimals) {
  return fmt::format("(abs({0})*{1}%2==1&&floor(abs({0})*{2})%2==0?{0}*(1-1e-15):{0})", value,
                     std::ldexp(1, decimals + 1), std::pow(10, decimals));
}

/// A text as the replacement of a pattern: a dollar sign stands for itself.
std::string replacement(std::string_view text) {
  std::string result;
  for (const char c : text)
    result.append(c == '$' ? 2 : 1, c);
  return result;
}

/// The sign comes first, whatever stands before the digits.
std::string affixed(const NumberFormat& format, std::string text) {
  if (!format.prefix.empty()) text = replaced(text, "^-?", "$&" + replacement(format.prefix));
  if (!format.suffix.empty()) text = fmt::format("{}+{}", text, literal(format.suffix));
  if (format.prefix.starts_with(' ') || format.suffix.ends_with(' '))
    text = fmt::format("trim({})", text);
  return format.parentheses ? replaced(text, "^-(.*)", "($1)") : text;
}

} // namespace

NumberFormat NumberFormat::read(const Node& node, Notes& notes) {
  NumberFormat format;
  format.minimumFractionDigits = digits(node, "minimumFractionDigits", mostDecimals, notes);
  format.maximumFractionDigits = digits(node, "maximumFractionDigits", mostDecimals, notes);
  format.minimumIntegerDigits =
      digits(node, "minimumIntegerDigits", mostIntegerDigits, notes).value_or(1);
  format.grouping = node.attribute("useGrouping") == "true";
  format.parentheses = node.attribute("negativesInParentheses") == "true";
  format.prefix = node.attribute("prefix");
  format.suffix = node.attribute("suffix");
  if (node.attribute("scientific") == "always") format.scientific = Scientific::always;
  if (node.attribute("scientific") == "auto") format.scientific = Scientific::automatic;
  return format;
}

std::string numberText(const std::optional<NumberFormat>& format, std::string_view value) {
  if (!format) return shortest(value);
  constexpr int usualMost = 3;
  const auto& least = format->minimumFractionDigits;
  const auto& most = format->maximumFractionDigits;
  switch (format->scientific) {
  case NumberFormat::Scientific::always:
    return affixed(*format, exponential(formatted(value, least ? fmt::format(".{}e", *least)
                                                               : std::string("~e"))));
  case NumberFormat::Scientific::automatic:
    return affixed(*format, shortest(value));
  case NumberFormat::Scientific::never:
    break;
  }
  const int atMost = most.value_or(least.value_or(usualMost));
  return affixed(*format, fixed(*format, halfToEven(value, atMost),
                                std::min(least.value_or(0), atMost), atMost));
}

std::string tickText(const std::optional<NumberFormat>& format, std::string_view value,
                     int tickDecimals, double magnitude, bool areAtPowers) {
  constexpr double longestPlain = 1e12;
  constexpr int mostPlainDecimals = 9;
  const NumberFormat used = format.value_or(NumberFormat{});
  const bool isLong = magnitude >= longestPlain || tickDecimals > mostPlainDecimals;
  if (isLong || used.scientific == NumberFormat::Scientific::always)
    return affixed(used, exponential(formatted(value, "~e")));

  const int most = used.maximumFractionDigits.value_or(mostDecimals);
  const int decimals =
      std::min(std::max(used.minimumFractionDigits.value_or(0), tickDecimals), most);
  return affixed(used, fixed(used, value, areAtPowers ? 0 : decimals, decimals));
}

} // namespace render
