#include "translate/Rules.h"

#include <algorithm>

#include <fmt/format.h>

namespace render {
namespace {

const Rule rules[] = {
    // data
    {"source", {"graph"}, {"id"}},
    {"otherAccess", {"source"}, {"type=object"}},
    {"variable", {"graph"}, {"id", "sourceName", "source", "categorical", "label", "shortLabel"}},
    {"meta", {"variable"}, {"creator", "description"}},
    {"numberFormat",
     {"meta"},
     {"minimumFractionDigits", "maximumFractionDigits", "useGrouping", "minimumIntegerDigits",
      "prefix", "suffix", "scientific=always", "scientific=auto", "scientific=never",
      "negativesOutside", "negativesInParentheses"}},
    {"stringFormat", {"meta"}, {}},
    {"dateTimeFormat", {"meta"}, {"prefix", "suffix"}},
    {"dateFormat", {"dateTimeFormat"}, {}},
    {"timeFormat", {"dateTimeFormat"}, {}},
    {"dayOfMonth", {"dateFormat"}, {"fill"}},
    {"month", {"dateFormat"}, {"fill"}},
    {"monthName", {"dateFormat"}, {"long"}},
    {"week", {"dateFormat"}, {"fill"}},
    {"dayOfYear", {"dateFormat"}, {"fill"}},
    {"dayOfWeek", {"dateFormat"}, {"long"}},
    {"quarter", {"dateFormat"}, {"suffix"}},
    {"year", {"dateFormat"}, {"showCentury"}},
    {"hour", {"timeFormat"}, {"fill", "twentyFour", "showAMPM"}},
    {"minute", {"timeFormat"}, {"fill"}},
    {"second", {"timeFormat"}, {"fill", "milliseconds"}},
    {"relabel", {"variable"}, {"from", "to"}},
    // frames and their texts
    {"frame", {"graph", "frame"}, {"id", "style", "clip"}},
    {"label", {"graph", "frame"}, {"id", "style"}, translateText},
    {"facetLabeling", {"frame"}, {"id", "style"}},
    {"facetLabel", {"facetLabeling"}, {"id", "style", "level=0", "cellStyle"}},
    // scales and axes
    {"dimension",
     {"frame"},
     {"id", "style", "role=x", "role=y", "facetsShareScale", "lowerMargin", "upperMargin"},
     translateDimension},
    {"axis", {"dimension"}, {"id", "style", "baselineStyle", "opposite", "combineAxisLabels"}},
    {"label", {"axis", "legend"}, {"id", "style"}},
    {"majorTicks", {"axis"}, {"id", "style", "stagger=false", "markStyle", "tickLabelStyle"}},
    {"gridLines", {"majorTicks"}, {"id", "style"}},
    // elements
    {"element:point",
     {"frame"},
     {"id", "style", "type", "labelCollisionHandling", "showCollidingLabels"},
     translatePoint},
    {"element:line",
     {"frame"},
     {"id", "style", "type", "labelCollisionHandling", "showCollidingLabels"},
     translateLine},
    {"position", {"element"}, {"id", "style"}},
    {"x", {"element", "position"}, {"id", "style", "variable"}},
    {"y", {"element", "position"}, {"id", "style", "variable"}},
    {"styleBy", {"element"}, {"id", "variable", "styleCycle"}},
    {"color", {"element"}, {"id", "style", "variable"}},
    // guides and legends
    {"guide:function", {"frame"}, {"id", "style", "type", "name"}, translateFunction},
    {"parameter", {"guide"}, {"id", "style", "name=y", "name=numPoints", "value"}},
    {"legend", {"frame"}, {"id", "style"}, translateLegend},
    {"legendTarget", {"legend"}, {"id", "element", "aesthetic"}},
    // styles
    {"style", {"graph", "style", "cycle"}, {"id", "value"}, translateStyle},
    {"styleCycle", {"graph"}, {"id"}},
    {"cycle", {"styleCycle"}, {}},
};

} // namespace

bool Rule::knows(std::string_view name, std::string_view value) const {
  return std::ranges::any_of(attributes, [=](std::string_view known) {
    const std::size_t equals = known.find('=');
    return known.substr(0, equals) == name &&
           (equals == known.npos || known.substr(equals + 1) == value);
  });
}

const Rule* findRule(const Node& node, const Node& parent) {
  const bool typed = node.kind == "element" || node.kind == "guide";
  const std::string kind =
      typed ? fmt::format("{}:{}", node.kind, node.attribute("type")) : node.kind;
  const auto found = std::ranges::find_if(rules, [&](const Rule& rule) {
    return rule.kind == kind && std::ranges::find(rule.parents, parent.kind) != rule.parents.end();
  });
  return found == std::end(rules) ? nullptr : &*found;
}

} // namespace render
