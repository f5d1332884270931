#include "resolve/DateFormat.h"

#include <algorithm>
#include <array>

#include <host/Locale.h>

#include "resolve/DateParts.h"
#include "text/Wrap.h"

namespace render {
namespace {

using Part = DateFormat::Part;
using ShownPart = DateFormat::ShownPart;

constexpr double day = 86400;

/// In the order of Part.
constexpr PartRule rules[] = {
    {"dayOfMonth", "d", "00", day},   {"month", "m", "00", 31 * day},
    {"monthName", "b", "", 31 * day}, {"week", "", "00", 7 * day},
    {"dayOfYear", "j", "000", day},   {"dayOfWeek", "a", "", day},
    {"quarter", "q", "0", 92 * day},  {"year", "", "00", 366 * day},
    {"hour", "H", "00", 3600},        {"minute", "M", "00", 60},
    {"second", "S", "00", 1},
};

std::vector<ShownPart> readParts(const Node* parent) {
  std::vector<ShownPart> parts;
  if (parent == nullptr) return parts;
  for (const Node& node : parent->children) {
    const auto* rule = std::ranges::find(rules, node.kind, &PartRule::kind);
    if (rule == std::end(rules)) continue;
    const auto is = [&node](std::string_view flag) { return node.attribute(flag) == "true"; };
    parts.push_back({.part = static_cast<Part>(rule - std::begin(rules)),
                     .fill = is("fill"),
                     .isLong = is("long"),
                     .showCentury = is("showCentury"),
                     .twentyFour = is("twentyFour"),
                     .showAMPM = is("showAMPM"),
                     .milliseconds = is("milliseconds"),
                     .suffix = std::string(node.attribute("suffix"))});
  }
  return parts;
}

template <std::size_t N>
const std::string& widest(const std::array<std::string, N>& names, double fontSize) {
  return *std::ranges::max_element(
      names, {}, [=](const std::string& name) { return textWidth(name, fontSize); });
}

std::string sampleOf(const ShownPart& shown, const host::DateNames& names, double fontSize) {
  std::string sample(ruleOf(shown.part).sample);
  if (shown.part == Part::monthName)
    sample = widest(shown.isLong ? names.months : names.shortMonths, fontSize);
  if (shown.part == Part::dayOfWeek)
    sample = widest(shown.isLong ? names.days : names.shortDays, fontSize);
  if (shown.showCentury) sample += "00";
  if (shown.milliseconds) sample += ".000";
  if (shown.showAMPM) sample += " PM";
  return sample + shown.suffix;
}

} // namespace

const PartRule& ruleOf(Part part) { return rules[static_cast<std::size_t>(part)]; }

std::vector<ShownPart> timeOf(const DateFormat& format) {
  if (!format.date.empty() || !format.time.empty()) return format.time;
  return {{.part = Part::minute, .fill = true}, {.part = Part::second, .fill = true}};
}

DateFormat DateFormat::read(const Node& node, const NumberSigns& signs) {
  return {.date = readParts(node.child("dateFormat")),
          .time = readParts(node.child("timeFormat")),
          .prefix = std::string(node.attribute("prefix")),
          .suffix = std::string(node.attribute("suffix")),
          .decimalSign = signs.decimal};
}

bool DateFormat::isDuration() const {
  const bool countsDays = date.size() == 1 && date.front().part == Part::dayOfYear && !time.empty();
  return date.empty() || countsDays;
}

double DateFormat::resolution() const {
  double finest = ruleOf(Part::year).resolution;
  for (const auto& parts : {date, timeOf(*this)})
    for (const ShownPart& shown : parts)
      finest = std::min(finest, shown.milliseconds ? 0.001 : ruleOf(shown.part).resolution);
  return finest;
}

double widestDate(const DateFormat& format, std::string_view language, double fontSize) {
  const host::DateNames& names = host::dateNames(language);
  std::string sample = format.prefix + format.suffix;
  for (const auto& parts : {format.date, timeOf(format)})
    for (const ShownPart& shown : parts)
      sample += sampleOf(shown, names, fontSize) + "-";
  return textWidth(sample, fontSize);
}

} // namespace render
