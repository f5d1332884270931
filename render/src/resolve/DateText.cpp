#include <algorithm>
#include <cctype>
#include <cstdint>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "resolve/DateParts.h"
#include "resolve/NumberFormat.h"
#include "text/Expression.h"

namespace render {
namespace {

using Part = DateFormat::Part;
using ShownPart = DateFormat::ShownPart;

bool has(const std::vector<ShownPart>& parts, Part part) {
  return std::ranges::find(parts, part, &ShownPart::part) != parts.end();
}

/// What stands between a part of a date and the next: 05-Jan-2000, 05.01.2000,
/// 005/2000, Jan 2000, WK 1 2000; a quarter brings its own.
std::string_view separator(const std::vector<ShownPart>& date, std::size_t i) {
  const Part part = date[i].part;
  const Part next = date[i + 1].part;
  if (part == Part::quarter) return "";
  if (part == Part::dayOfYear) return "/";
  if (part == Part::month || next == Part::month) return ".";
  const bool isNamed = part == Part::dayOfMonth || next == Part::year;
  return isNamed && has(date, Part::dayOfMonth) ? "-" : " ";
}

std::string padded(std::string_view number, int width) {
  return fmt::format("pad({},{},\"0\",\"left\")", number, width);
}

// What a number cannot tell apart from a whole millisecond is that one.
constexpr const char* wholeMilliseconds = "floor({0}*1000+abs({1})*2.22e-13)";

/// Terms of a sum of texts. Parts that Vega's utcFormat() knows share one call.
class Terms {
public:
  /// `instant` is an expression for milliseconds since 1970.
  explicit Terms(std::string instant = {}) : instant_(std::move(instant)) {}

  void specifier(std::string_view text) { specifiers_ += text; }
  void text(std::string_view text) {
    if (text.empty()) return;
    if (!specifiers_.empty() && text.find('%') == text.npos)
      specifiers_ += text;
    else
      term(literal(text));
  }
  void term(std::string expression) {
    endSpecifiers();
    terms_.push_back(std::move(expression));
  }
  std::string sum() && {
    endSpecifiers();
    return fmt::format("{}", fmt::join(terms_, "+"));
  }

private:
  void endSpecifiers() {
    if (specifiers_.empty()) return;
    terms_.push_back(fmt::format("utcFormat({},{})", instant_, literal(specifiers_)));
    specifiers_.clear();
  }

  std::string instant_;
  std::string specifiers_;
  std::vector<std::string> terms_;
};

// Points in time

std::string yearText(const std::string& instant, bool showCentury) {
  const std::string year = fmt::format("utcyear({})", instant);
  if (!showCentury) return padded(fmt::format("abs({})%100", year), 2);
  return fmt::format("({0}<0?\"-\":\"\")+{1}", year, padded(fmt::format("abs({})", year), 4));
}

std::string specifierOf(const ShownPart& shown) {
  const auto& [kind, usual, sample, resolution] = ruleOf(shown.part);
  if (sample.empty()) return fmt::format("%{:c}", shown.isLong ? std::toupper(usual[0]) : usual[0]);
  const bool isHalfDay = shown.part == Part::hour && !shown.twentyFour;
  return fmt::format("%{}{}", shown.fill ? "" : "-", isHalfDay ? "I" : usual);
}

void addPart(const ShownPart& shown, const std::string& instant, std::string_view decimalSign,
             Terms& terms) {
  if (shown.part == Part::year) {
    terms.term(yearText(instant, shown.showCentury));
  } else if (shown.part == Part::week) {
    // Vega's utcdayofyear() takes the first hundred years for those after 1900.
    const std::string week = fmt::format("ceil(toNumber(utcFormat({},\"%j\"))/7)", instant);
    terms.term(shown.fill ? padded(week, 2) : fmt::format("\"\"+{}", week));
  } else {
    terms.specifier(specifierOf(shown));
  }
  if (shown.milliseconds) {
    terms.text(decimalSign);
    terms.specifier("%L");
  }
  if (shown.showAMPM) terms.specifier(" %p");
  terms.text(shown.suffix);
}

std::string pointText(const DateFormat& format, std::string_view seconds) {
  const std::string since1970 = fmt::format("({}-12219379200)", seconds);
  const std::string instant = fmt::format(wholeMilliseconds, since1970, seconds);
  Terms terms(instant);
  for (std::size_t i = 0; i < format.date.size(); ++i) {
    addPart(format.date[i], instant, format.decimalSign, terms);
    if (i + 1 < format.date.size()) terms.text(separator(format.date, i));
  }
  for (std::size_t i = 0; i < format.time.size(); ++i) {
    terms.text(i == 0 ? " " : ":");
    addPart(format.time[i], instant, format.decimalSign, terms);
  }
  return std::move(terms).sum();
}

// Lengths of time

/// A part as the rest of the part above it, or counting on when there is none.
std::string countOf(Part part, bool isRest, const std::string& length) {
  const auto unit = static_cast<std::int64_t>(ruleOf(part).resolution) * 1000;
  std::string count = fmt::format("floor({}/{})", length, unit);
  if (!isRest) return count;
  return fmt::format("{}%{}", count, part == Part::hour ? 24 : 60);
}

std::string lengthText(const DateFormat& format, std::string_view seconds) {
  const std::string length =
      fmt::format(wholeMilliseconds, fmt::format("abs({})", seconds), seconds);
  const std::vector<ShownPart> time = timeOf(format);
  const bool showsMilliseconds = !time.empty() && time.back().milliseconds;
  const double shownTo = showsMilliseconds ? 1 : ruleOf(time.back().part).resolution * 1000;

  Terms terms;
  terms.term(fmt::format("({}<0&&{}>={}?\"-\":\"\")", seconds, length, shownTo));
  if (!format.date.empty()) {
    terms.term(padded(countOf(Part::dayOfYear, false, length), 3));
    terms.text(" ");
  }
  bool isRest = !format.date.empty();
  for (std::size_t i = 0; i < time.size(); ++i) {
    if (i > 0) terms.text(":");
    const std::string count = countOf(time[i].part, isRest, length);
    terms.term(time[i].fill ? padded(count, 2) : count);
    isRest = true;
  }
  if (showsMilliseconds) {
    terms.text(format.decimalSign);
    terms.term(padded(length + "%1000", 3));
  }
  return std::move(terms).sum();
}

} // namespace

std::string dateText(const DateFormat& format, std::string_view seconds) {
  // A browser's calendar ends 8.64e15 milliseconds around 1970.
  constexpr double most = 8.6e12;
  const std::string text =
      format.isDuration() ? lengthText(format, seconds) : pointText(format, seconds);
  std::string affixed = text;
  if (!format.prefix.empty()) affixed = fmt::format("{}+{}", literal(format.prefix), affixed);
  if (!format.suffix.empty()) affixed = fmt::format("{}+{}", affixed, literal(format.suffix));
  if (affixed != text) affixed = fmt::format("trim({})", affixed);
  const NumberFormat scientific{.scientific = NumberFormat::Scientific::always};
  return fmt::format("(abs({})<{}?{}:{})", seconds, most, affixed, numberText(scientific, seconds));
}

} // namespace render
