#include <algorithm>
#include <optional>

#include <fmt/format.h>

#include "assemble/Telling.h"
#include "compute/Sample.h"
#include "translate/Style.h"

namespace render {
namespace {

bool isBoxPlot(const Element& element) {
  return element.type() == "schema" ||
         (element.summary != nullptr && element.summary->name.starts_with("tukey"));
}

/// What an element is called beside others; nothing for one that is a chart of its own.
std::string_view markOf(const Element& element) {
  if (isBoxPlot(element)) return {};
  if (element.method == Method::distribution) return "normal curve";
  const Look look = lookOf(*element.node);
  if (look == Look::capped) return "error bars";
  if (look == Look::thin) return "lines";
  struct Mark {
    std::string_view type, word;
  };
  static constexpr Mark marks[] = {{"point", "points"}, {"line", "lines"},    {"path", "lines"},
                                   {"edge", "lines"},   {"interval", "bars"}, {"area", "areas"}};
  const auto* mark = std::ranges::find(marks, element.type(), &Mark::type);
  return mark == std::end(marks) ? std::string_view() : mark->word;
}

/// A kind that one element makes of the whole chart; the first that fits counts.
struct Kind {
  std::string_view word;
  bool (*fits)(const Element& element, const Chart& chart);
};
bool isUsual(const Element& element, std::string_view mark) {
  return markOf(element) == mark && lookOf(*element.node) == Look::usual;
}
bool isStacked(const Element& element) {
  return element.group != nullptr &&
         (element.modifier == Modifier::stack || element.modifier == Modifier::stackInterpolating);
}
constexpr Kind kinds[] = {
    {"Scatterplot matrix", [](const Element&, const Chart& c) { return c.facets.isMatrix; }},
    {"Scatter plot in space", [](const Element&, const Chart& c) { return c.space != nullptr; }},
    {"Pie chart", [](const Element& e, const Chart&) { return e.isSlice; }},
    {"Histogram", [](const Element& e, const Chart&) { return e.method == Method::histogram; }},
    {"Hexagonal bins", [](const Element& e, const Chart&) { return e.method == Method::hexagons; }},
    {"Box plot", [](const Element& e, const Chart&) { return isBoxPlot(e); }},
    {"Heat map", [](const Element& e, const Chart&) { return e.type() == "tile"; }},
    {"Stacked bar chart",
     [](const Element& e, const Chart&) { return isUsual(e, "bars") && isStacked(e); }},
    {"Clustered bar chart",
     [](const Element& e, const Chart&) {
       return isUsual(e, "bars") && e.group != nullptr && e.modifier == Modifier::dodge;
     }},
    {"Bar chart", [](const Element& e, const Chart&) { return isUsual(e, "bars"); }},
    {"Stacked area chart",
     [](const Element& e, const Chart&) { return isUsual(e, "areas") && isStacked(e); }},
    {"Area chart", [](const Element& e, const Chart&) { return isUsual(e, "areas"); }},
    {"Scatter plot", [](const Element& e, const Chart&) { return isUsual(e, "points"); }},
    {"Line chart", [](const Element& e, const Chart&) { return isUsual(e, "lines"); }},
};

/// The names of guides of a type, or that they are there.
void addGuides(std::vector<std::string>& all, std::string_view word,
               const std::vector<const Node*>& guides, const Words& words) {
  if (guides.empty()) return;
  std::vector<std::string> names;
  for (const Node* guide : guides)
    if (!guide->attribute("name").empty()) names.emplace_back(guide->attribute("name"));
  all.push_back(names.empty() ? words(word) : fmt::format("{} ({})", words(word), listed(names)));
}

std::vector<const Node*> referenceLines(const Chart& chart) {
  std::vector<const Node*> guides;
  for (const Node& child : chart.plot->children)
    if (child.kind == "guide" && child.attribute("type") == "line") guides.push_back(&child);
  return guides;
}

} // namespace

std::vector<std::string> tellKind(const Telling& telling) {
  const auto& [chart, parts, words] = telling;
  if (chart.elements.empty()) return {};
  const auto first = [&](const Kind& kind) {
    return std::ranges::find_if(chart.elements,
                                [&](const Element& each) { return kind.fits(each, chart); });
  };
  const auto* kind = std::ranges::find_if(
      kinds, [&](const Kind& each) { return first(each) != chart.elements.end(); });
  std::string_view word = kind == std::end(kinds) ? "Chart" : kind->word;
  const std::string_view own = kind == std::end(kinds) ? "" : markOf(*first(*kind));

  std::vector<std::string_view> marks;
  for (const Element& element : chart.elements) {
    const std::string_view mark = markOf(element);
    const bool isNew = std::ranges::find(marks, mark) == marks.end();
    if (!mark.empty() && mark != own && isNew && lookOf(*element.node) != Look::hidden)
      marks.push_back(mark);
  }
  if (word == "Scatter plot" && !marks.empty() && marks.front() == "lines") {
    word = "Points and lines";
    marks.erase(marks.begin());
  }
  std::vector<std::string> extras;
  extras.reserve(marks.size() + 2);
  for (const std::string_view mark : marks)
    extras.push_back(words(mark));
  addGuides(extras, "curves", parts.functions, words);
  addGuides(extras, "reference lines", referenceLines(chart), words);
  if (extras.empty()) return {words(word)};
  return {words(word), words("With^1", {listed(extras)})};
}

} // namespace render
