#include "data/DisplayFormat.h"

#include <algorithm>
#include <charconv>

#include <fmt/format.h>

#include "data/Refusal.h"

namespace host {
namespace {

struct NamedFormat {
  std::string_view name;
  int type;
  int widest;
  int mostDecimals;
};

constexpr NamedFormat formats[] = {
    {"A", textFormat, longestText, 0},
    {"COMMA", 3, widestNumber, mostDecimals},
    {"DOLLAR", 4, widestNumber, mostDecimals},
    {"E", 17, widestNumber, mostDecimals},
    {"F", numberFormat, widestNumber, mostDecimals},
    {"PCT", 31, widestNumber, mostDecimals},
};

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

} // namespace

DisplayFormat parseDisplayFormat(std::string_view name) {
  const auto digits = std::ranges::find_if_not(name, isLetter);
  const auto letters = static_cast<std::size_t>(digits - name.begin());
  const auto* known = std::ranges::find_if(
      formats, [&](const NamedFormat& f) { return sameName(f.name, name.substr(0, letters)); });
  if (known == std::end(formats))
    throw Refusal(fmt::format("the display format {} is not known", shown(name)));

  DisplayFormat format{.type = known->type};
  std::string_view rest = name.substr(letters);
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
