#include <algorithm>

#include "assemble/Telling.h"
#include "translate/Style.h"

namespace render {
namespace {

/// A kind that one element makes of the whole chart; the first that fits counts.
struct Kind {
  std::string_view word;
  bool (*fits)(const Element& element, const Chart& chart);
};

bool isUsual(const Element& element, std::string_view mark) {
  return markOf(element) == mark && lookOf(*element.node) == Look::usual;
}

bool isBar(const Element& element) { return isUsual(element, "bars"); }

bool isStacked(const Element& element) {
  return element.group != nullptr && isStack(element.modifier);
}

bool standAtCategories(const Element& points) {
  return points.place() != nullptr && points.place()->categorical;
}

constexpr Kind kinds[] = {
    {"Scatterplot matrix", [](const Element&, const Chart& c) { return c.facets.isMatrix; }},
    {"Scatter plot in space", [](const Element&, const Chart& c) { return c.space != nullptr; }},
    {"Pie chart", [](const Element& e, const Chart&) { return e.isSlice; }},
    {"Icicle plot",
     [](const Element& e, const Chart& c) {
       return isBar(e) && c.folder->manifest.icicle.has_value();
     }},
    {"Control chart",
     [](const Element& e, const Chart&) { return isOfControlChart(e) && isUsual(e, "lines"); }},
    {"Survival curves",
     [](const Element& e, const Chart&) { return isOfSurvival(e) && isUsual(e, "lines"); }},
    {"Histogram", [](const Element& e, const Chart&) { return e.method == Method::histogram; }},
    {"Hexagonal bins", [](const Element& e, const Chart&) { return e.method == Method::hexagons; }},
    {"Box plot", [](const Element& e, const Chart&) { return isBoxPlot(e); }},
    {"Heat map", [](const Element& e, const Chart&) { return e.type() == "tile"; }},
    {"Back-to-back bar chart",
     [](const Element& e, const Chart&) { return isBar(e) && isMirrored(e.measure()); }},
    {"Range bars", [](const Element& e, const Chart&) { return isBar(e) && e.isComposed(); }},
    {"Stacked bar chart", [](const Element& e, const Chart&) { return isBar(e) && isStacked(e); }},
    {"Clustered bar chart",
     [](const Element& e, const Chart&) {
       return isBar(e) && e.group != nullptr && e.modifier == Modifier::dodge;
     }},
    {"Bar chart", [](const Element& e, const Chart&) { return isBar(e); }},
    {"Stacked area chart",
     [](const Element& e, const Chart&) { return isUsual(e, "areas") && isStacked(e); }},
    {"Area chart", [](const Element& e, const Chart&) { return isUsual(e, "areas"); }},
    {"Dot plot",
     [](const Element& e, const Chart& c) {
       return isUsual(e, "points") && !areOnLine(e, c) &&
              (e.method == Method::dots || standAtCategories(e));
     }},
    {"Scatter plot",
     [](const Element& e, const Chart& c) { return isUsual(e, "points") && !areOnLine(e, c); }},
    {"Line chart", [](const Element& e, const Chart&) { return isUsual(e, "lines"); }},
    {"Density contours", [](const Element& e, const Chart&) { return e.type() == "contour"; }},
    {"Area chart", [](const Element& e, const Chart&) { return isUsual(e, "bands"); }},
};

} // namespace

std::vector<std::string> tellKind(const Telling& telling) {
  const auto& [chart, parts, words] = telling;
  if (chart.elements.empty()) return {};
  const auto first = [&chart](const Kind& kind) {
    return std::ranges::find_if(chart.elements,
                                [&](const Element& each) { return kind.fits(each, chart); });
  };
  const auto* kind = std::ranges::find_if(
      kinds, [&](const Kind& each) { return first(each) != chart.elements.end(); });
  const bool isKnown = kind != std::end(kinds);
  std::vector<std::string> sentences{words(isKnown ? kind->word : "Chart"),
                                     tellBeside(telling, isKnown ? markOf(*first(*kind)) : "")};
  const bool isPie = isKnown && first(*kind)->isSlice;
  if (chart.isPolar && !isPie) sentences.push_back(words("Polar"));
  return sentences;
}

} // namespace render
