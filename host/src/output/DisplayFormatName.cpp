#include "output/DisplayFormatName.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

#include <fmt/format.h>

#include "data/DisplayFormat.h"

namespace host {
namespace {

/// What a date and a time show, by the names of their parts.
struct DateLayout {
  std::string_view parts;
  std::string_view name;
};

constexpr DateLayout dateLayouts[] = {
    {"dayOfMonth monthName year", "DATE11"},
    {"dayOfMonth month year", "NUMERICDATE10"},
    {"dayOfMonth monthName year hour minute", "DATETIME17"},
    {"dayOfMonth monthName year hour minute second", "DATETIME20"},
    {"dayOfMonth month year minute second", "DATEMINUTE20"},
    {"dayOfYear year", "YEARDAY8"},
    {"dayOfYear hour minute", "DAYTIME9"},
    {"dayOfYear hour minute second", "DAYTIME13"},
    {"dayOfWeek", "WEEKDAY9"},
    {"monthName", "MONTH9"},
    {"monthName year", "MONTHYEAR8"},
    {"quarter year", "QUARTERYEAR8"},
    {"week year", "WEEKYEAR10"},
    {"hour minute", "TIME5"},
    {"hour minute second", "TIME8"},
};

constexpr std::string_view usualDateName = "DATETIME20";

const std::string* attributeOf(const CTFormatType& format, std::string_view name) {
  const auto found =
      std::ranges::find(format.attributes, name, &std::pair<std::string, std::string>::first);
  return found == format.attributes.end() ? nullptr : &found->second;
}

bool hasValue(const CTFormatType& format, std::string_view name, std::string_view value) {
  const std::string* found = attributeOf(format, name);
  return found && *found == value;
}

std::string dateFormatName(const CTFormatType& format) {
  std::string shown;
  for (const CTFormatType& half : format.parts)
    for (const CTFormatType& part : half.parts)
      shown.append(shown.empty() ? "" : " ").append(part.kind);
  const auto* known = std::ranges::find(dateLayouts, shown, &DateLayout::parts);
  return std::string(known == std::end(dateLayouts) ? usualDateName : known->name);
}

int decimalsOf(const CTFormatType& format) {
  int decimals = 0;
  for (const char* name : {"maximumFractionDigits", "minimumFractionDigits"})
    if (const std::string* text = attributeOf(format, name))
      std::from_chars(text->data(), text->data() + text->size(), decimals);
  return std::clamp(decimals, 0, mostDecimals);
}

std::string_view numberKind(const CTFormatType& format) {
  if (hasValue(format, "scientific", "always")) return "E";
  if (hasValue(format, "prefix", "$")) return "DOLLAR";
  if (hasValue(format, "suffix", "%")) return "PCT";
  return "F";
}

} // namespace

std::string displayFormatName(const std::vector<CTFormatType>& formats) {
  if (formats.empty()) return {};
  const CTFormatType& format = formats.back();
  if (format.kind == "dateTimeFormat") return dateFormatName(format);
  if (format.kind != "numberFormat") return {};
  return fmt::format("{}{}.{}", numberKind(format), widestNumber, decimalsOf(format));
}

} // namespace host
