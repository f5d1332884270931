#include "data/DisplayFormat.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include <fmt/format.h>

#include "data/Refusal.h"
#include "text/FormatKind.h"

namespace host {
namespace {

struct NamedFormat {
  std::string_view name;
  int type;
  int widest = widestNumber;
  int mostDecimals = 0;
};

constexpr NamedFormat number(std::string_view name, int type) {
  return {name, type, widestNumber, mostDecimals};
}

constexpr NamedFormat formats[] = {
    {"A", textFormat, longestText},
    number("COMMA", 3),
    number("CURRENCYA", 33),
    number("CURRENCYB", 34),
    number("CURRENCYC", 35),
    number("CURRENCYD", 36),
    number("CURRENCYE", 37),
    {"DATE", 20},
    {"DATEMINUTE", 86},
    {"DATETIME", 22},
    {"DAYTIME", 25},
    number("DOLLAR", 4),
    number("E", 17),
    number("F", numberFormat),
    {"MINUTE", 85},
    {"MONTH", 27},
    {"MONTHYEAR", 28},
    {"NUMERICDATE", 23},
    number("PCT", 31),
    {"QUARTERYEAR", 29},
    {"TIME", 21},
    {"WEEKDAY", 26},
    {"WEEKYEAR", 30},
    {"YEARDAY", 24},
};

constexpr std::string_view byCode = "FORMAT";

constexpr char upper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool isLetter(char c) { return upper(c) >= 'A' && upper(c) <= 'Z'; }

bool sameName(std::string_view a, std::string_view b) {
  return std::ranges::equal(a, b, {}, upper, upper);
}

/// Takes a number off the front of `text`; false when there is none.
bool takeNumber(std::string_view& text, int& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || text.front() == '-') return false;
  text.remove_prefix(static_cast<std::size_t>(end - text.data()));
  return true;
}

/// Finds the format that the name begins with and takes that off, up to the width.
/// A name that is not known gives nothing.
std::optional<NamedFormat> takeFormat(std::string_view& name) {
  const auto letters =
      static_cast<std::size_t>(std::ranges::find_if_not(name, isLetter) - name.begin());
  const std::string_view word = name.substr(0, letters);
  name.remove_prefix(letters);
  const auto* known = std::ranges::find_if(
      formats, [&](const NamedFormat& format) { return sameName(format.name, word); });
  if (known != std::end(formats)) return *known;

  int code = 0;
  if (!sameName(word, byCode) || !takeNumber(name, code) || !name.starts_with('.'))
    return std::nullopt;
  name.remove_prefix(1);
  const FormatKind kind = formatKind(code);
  if (kind == FormatKind::unknown || kind == FormatKind::text) return std::nullopt;
  return NamedFormat{byCode, code, widestNumber, kind == FormatKind::number ? mostDecimals : 0};
}

} // namespace

DisplayFormat parseDisplayFormat(std::string_view name) {
  std::string_view rest = name;
  const auto known = takeFormat(rest);
  if (!known) throw Refusal(fmt::format("the display format {} is not known", shown(name)));

  DisplayFormat format{.type = known->type};
  bool wellFormed = takeNumber(rest, format.width);
  if (wellFormed && rest.starts_with('.')) {
    rest.remove_prefix(1);
    wellFormed = takeNumber(rest, format.decimals);
  }
  if (!wellFormed || !rest.empty())
    throw Refusal(fmt::format("the display format {} is not a name, a width and decimals like F8.2",
                              shown(name)));
  if (format.width < 1 || format.width > known->widest || format.decimals > known->mostDecimals)
    throw Refusal(fmt::format("the display format {} needs a width of 1 to {} and 0 to {} decimals",
                              shown(name), known->widest, known->mostDecimals));
  return format;
}

} // namespace host
