#include <algorithm>
#include <charconv>

#include <fmt/format.h>

#include "compute/Bins.h"
#include "text/Expression.h"
#include "text/Show.h"
#include "translate/Encode.h"
#include "translate/Formula.h"
#include "translate/Groups.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"
#include "translate/Translator.h"

namespace render {
namespace {

int pointCount(const Node& guide, Notes& notes) {
  constexpr int usual = 1000;
  constexpr int most = 10000;
  const std::string_view text = parameter(guide, "numPoints");
  if (text.empty()) return usual;
  int count = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), count);
  if (error == std::errc() && end == text.data() + text.size() && count >= 2 && count <= most)
    return count;
  notes.add("Not a number of points^3", {guide.name(), shown(text), fmt::to_string(most)});
  return usual;
}

/// Points over the whole x scale. A value far outside the plot is brought nearer,
/// which keeps the line where it can be seen.
Json functionData(const Node& guide, const std::string& formula, int points,
                  const Context& context) {
  const Dimension& x = context.along("x");
  const Dimension& y = context.along("y");
  const double reach = 10 * (y.high - y.low);
  const std::string atX =
      fmt::format("{} + datum.i * {}", literal(x.low), literal((x.high - x.low) / (points - 1)));
  const std::string nearer = fmt::format("isFinite(datum.y) ? clamp(datum.y, {}, {}) : null",
                                         literal(y.low - reach), literal(y.high + reach));
  return {
      {"name", context.inPanel(guide.id())},
      {"transform",
       {{{"type", "sequence"}, {"start", 0}, {"stop", points}, {"as", "i"}},
        {{"type", "formula"}, {"as", "x"}, {"expr", atX}},
        {{"type", "formula"}, {"as", "y"}, {"expr", formula}},
        {{"type", "formula"}, {"as", "y"}, {"expr", nearer}}}},
  };
}

/// Which of the functions it is; a new one is added.
std::size_t indexOf(const Node& guide, std::vector<const Node*>& functions) {
  const auto found = std::ranges::find(functions, &guide);
  const auto index = static_cast<std::size_t>(found - functions.begin());
  if (found == functions.end()) functions.push_back(&guide);
  return index;
}

std::string nameOf(const Node& guide, const Context& context) {
  const std::string_view name = guide.attribute("name");
  if (!name.empty()) return std::string(name);
  const std::string title = titleAlong("y", context);
  return title.empty() ? "y" : title;
}

/// Its place, its value there, and the formula, unless that is one of seconds.
Json functionTooltip(const Node& guide, std::string_view formula, const Context& context) {
  const Format& x = context.along("x").format();
  const bool isDate = std::holds_alternative<DateFormat>(x);
  const std::string title = titleAlong("x", context);
  std::vector<std::string> entries{
      entry(title.empty() ? "x" : title, valueText(isDate ? x : Format(), "datum.x")),
      entry(nameOf(guide, context), valueAlong("y", nullptr, "datum.y", context))};
  if (formula.find("datetodouble") == formula.npos)
    entries.push_back(
        entry("", literal(roundedFormula(formula, context.chart.folder->manifest.signs))));
  return tooltipOf(entries);
}

} // namespace

/// A function of x as a line across the plot.
void translateFunction(const Node& guide, Context& context) {
  const auto refuse = [&](std::string_view why) {
    context.notes.add("Not drawn^2", {guide.name(), why});
  };
  if (context.along("x").categorical || context.along("y").categorical)
    return refuse(context.notes.text("Function needs numbers"));
  if (context.chart.isPolar || context.chart.space != nullptr)
    return refuse(context.notes.text("Function needs straight scales"));

  const std::string_view text = parameter(guide, "y");
  std::string formula;
  try {
    formula = translateFormula(text, "datum.x");
  } catch (const FormulaError& e) {
    return refuse(context.notes.text("Formula^2", {shown(text), e.what()}));
  }
  const int points = pointCount(guide, context.notes);
  context.parts.data.push_back(functionData(guide, formula, points, context));

  const std::size_t index = indexOf(guide, context.parts.functions);
  Json update{{channelsOf("x", context.chart).start, {{"scale", "x"}, {"field", "x"}}},
              {channelsOf("y", context.chart).start, {{"scale", "y"}, {"field", "y"}}},
              {"defined", {{"signal", "isValid(datum.y)"}}},
              {"stroke", {{"signal", "ink"}}},
              {"strokeWidth", {{"value", theme::lineWidth}}},
              {"strokeDash", {{"value", theme::functionDash(index)}}}};
  update["tooltip"] = functionTooltip(guide, text, context);
  update["description"] = {{"value", nameOf(guide, context)}};
  context.parts.marks.push_back({{"type", "line"},
                                 {"from", {{"data", context.inPanel(guide.id())}}},
                                 {"walk", {{"along", walkAlong("x", context)}, {"curve", true}}},
                                 {"clip", true},
                                 {"encode", {{"update", std::move(update)}}}});
}

} // namespace render
