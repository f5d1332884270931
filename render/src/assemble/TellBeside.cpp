#include <algorithm>

#include <fmt/format.h>

#include "assemble/Telling.h"
#include "compute/Bins.h"
#include "translate/Style.h"

namespace render {
namespace {

/// Elements that are called the same, with the names that they have.
struct Marks {
  std::string_view word;
  std::vector<std::string> names{};
};

/// The name of an element. How far error bars reach and where an even line stands is told
/// with it: the axes tell of what these are about.
std::string nameOf(const Element& element, const Telling& telling) {
  std::string name(element.node->attribute("name"));
  const bool areErrorBars = lookOf(*element.node) == Look::capped;
  if (!areErrorBars && (name.empty() || !element.isLine())) return name;
  std::vector<double> ends;
  for (const Panel& panel : telling.chart.panels)
    for (const Item& item : panel.items[element.index])
      ends.insert(ends.end(), {item.low, item.high});
  if (ends.empty()) return name;
  const auto [low, high] = std::ranges::minmax(ends);
  if (!areErrorBars && low != high) return name;
  const std::string reach = low == high ? telling.value(element.measure(), low)
                                        : telling.span(element.measure(), low, high);
  return name.empty() ? reach : telling.pair(name, reach);
}

std::vector<Marks> marksOf(const Telling& telling) {
  std::vector<Marks> all;
  for (const Element& element : telling.chart.elements) {
    const std::string_view word = markOf(element);
    if (word.empty() || lookOf(*element.node) == Look::hidden) continue;
    auto marks = std::ranges::find(all, word, &Marks::word);
    if (marks == all.end()) marks = all.insert(marks, {.word = word});
    if (std::string name = nameOf(element, telling); !name.empty())
      marks->names.push_back(std::move(name));
  }
  return all;
}

/// The value of a reference line, as the axis shows it.
std::string placeOf(std::string_view text, const Dimension& dimension, const Telling& telling) {
  const double number = numberOf(text);
  if (dimension.categorical || dimension.variables.empty() || number != number)
    return std::string(text);
  return telling.value(dimension.variables.front(), number);
}

/// "Mean: 1.58", or "y = 0" of a line without a name.
std::vector<std::string> referenceLines(const Telling& telling) {
  const Chart& chart = telling.chart;
  std::vector<std::string> lines;
  for (const Node& child : chart.plot->children) {
    if (child.kind != "guide" || child.attribute("type") != "line") continue;
    const std::string_view name = child.attribute("name");
    for (const std::string_view role : {"x", "y"}) {
      const std::string_view text = parameter(child, role);
      if (text.empty()) continue;
      const std::string place = placeOf(text, chart.panels.front().along(role), telling);
      const bool isAcross = (role == "x") != chart.isTransposed;
      lines.push_back(name.empty() ? fmt::format("{} = {}", isAcross ? "x" : "y", place)
                                   : telling.pair(name, place));
    }
  }
  return lines;
}

std::vector<std::string> namesOf(const std::vector<const Node*>& guides) {
  std::vector<std::string> names;
  names.reserve(guides.size());
  for (const Node* guide : guides)
    names.emplace_back(guide->attribute("name"));
  return names;
}

} // namespace

std::string_view markOf(const Element& element) {
  if (isBoxPlot(element) || element.method == Method::hexagons) return {};
  if (element.method == Method::distribution) return "normal curve";
  if (isCensored(*element.node)) return "censored cases";
  const Look look = lookOf(*element.node);
  if (look == Look::capped) return "error bars";
  if (look == Look::thin)
    return element.node->id().find("difference") != std::string_view::npos ? "difference lines"
                                                                           : "drop lines";
  if (element.type() == "area" && element.isComposed()) return "bands";
  if (element.isLine()) return "lines";
  struct Mark {
    std::string_view type, word;
  };
  static constexpr Mark marks[] = {
      {"point", "points"}, {"interval", "bars"}, {"area", "areas"}, {"contour", "contour lines"}};
  const auto* mark = std::ranges::find(marks, element.type(), &Mark::type);
  return mark == std::end(marks) ? std::string_view() : mark->word;
}

std::string tellBeside(const Telling& telling, std::string_view own) {
  const auto& [chart, parts, words] = telling;
  const std::vector<Marks> all = marksOf(telling);
  const auto named = std::ranges::count_if(
      chart.elements, [](const Element& each) { return !each.node->attribute("name").empty(); });
  std::vector<std::string> texts;
  for (const Marks& marks : all) {
    // The kind says what these are, unless their names tell them from others.
    const bool isTold = marks.word == own && (named < 2 || marks.names.empty());
    if (!isTold)
      texts.push_back(telling.withAddition(words(marks.word), telling.list(marks.names)));
  }
  if (!parts.functions.empty())
    texts.push_back(telling.withAddition(words("curves"), telling.list(namesOf(parts.functions))));
  if (const std::vector<std::string> lines = referenceLines(telling); !lines.empty())
    texts.push_back(telling.withAddition(words("reference lines"), telling.list(lines)));
  return texts.empty() ? std::string() : words("With^1", {telling.list(texts)});
}

} // namespace render
