#include "translate/Rules.h"

#include <algorithm>

#include <fmt/format.h>

namespace render {
namespace {

const std::initializer_list<std::string_view> elementAttributes{
    "id",
    "style",
    "type",
    "name",
    "dot",
    "labelCollisionHandling=normal",
    "showCollidingLabels",
    "positionModifier=none",
    "positionModifier=stack",
    "positionModifier=stackinterpolating",
    "positionModifier=center",
    "positionModifier=minusIntersection",
    "positionModifier=dodge"};

const Rule rules[] = {
    // data
    {"source", {"graph"}, {"id"}},
    {"otherAccess", {"source"}, {"type=object"}},
    {"variable",
     {"graph"},
     {"id", "sourceName", "source", "categorical", "label", "shortLabel", "value", "expression",
      "domain"}},
    {"meta", {"variable"}, {"creator", "description", "weight"}},
    {"numberFormat",
     {"meta", "axis"},
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
    {"domain", {"graph"}, {"id", "categorical"}},
    {"interval", {"domain"}, {"min", "max"}},
    {"domainReference", {"domain"}, {"domain"}},
    {"sort", {"domain"}, {"descending"}},
    {"simpleSort", {"sort"}, {"method"}},
    {"statisticSort", {"sort"}, {"sourceVariable", "statVariable"}},
    // frames and their texts
    {"frame", {"graph", "frame"}, {"id", "style", "clip"}},
    {"label", {"graph", "frame"}, {"id", "style"}, translateText},
    // facets
    {"tableFacet", {"frame"}, {}},
    {"coordinateFacet", {"frame"}, {}},
    {"cross", {"tableFacet", "coordinateFacet", "cross", "nest", "blend"}, {}},
    {"nest", {"tableFacet", "coordinateFacet", "cross", "nest", "blend"}, {}},
    {"blend", {"tableFacet", "coordinateFacet", "cross", "nest", "blend"}, {}},
    {"facetVariable",
     {"tableFacet", "coordinateFacet", "cross", "nest", "blend"},
     {"role=x", "role=y", "variable", "gap"}},
    {"facetLabeling", {"frame"}, {"id", "style", "cellAspect"}},
    {"facetLabel", {"facetLabeling"}, {"id", "style", "level", "gap", "cellStyle", "reverse"}},
    {"axis", {"facetLabel"}, {"id", "style", "baselineStyle"}},
    {"label", {"facetLabel"}, {"id", "style"}},
    // scales and axes
    {"dimension",
     {"frame"},
     {"id", "style", "role=x", "role=y", "role=z", "role=theta", "role=r", "facetsShareScale",
      "lowerMargin", "upperMargin", "lowerMapping", "upperMapping", "domain", "unionDomain",
      "sameRatio=trueCentered", "sameRatio=false"},
     translateDimension},
    {"axis", {"dimension"}, {"id", "style", "baselineStyle", "opposite", "combineAxisLabels"}},
    {"label", {"axis", "legend"}, {"id", "style"}},
    {"majorTicks",
     {"axis"},
     {"id", "style", "stagger", "markStyle", "tickLabelStyle", "delta", "labelAngle", "length",
      "position=inside", "position=outside"}},
    {"scale", {"dimension"}, {"method", "invert"}},
    {"parameter", {"scale"}, {"name=base", "name=exponent", "name=safe", "value"}},
    {"coordinateTransform", {"frame"}, {"method=transpose", "method=polar", "method=rectangular"}},
    {"parameter",
     {"coordinateTransform"},
     {"name=theta", "name=phi", "name=zeta", "name=distance", "name=dx", "name=dy", "value"}},
    {"minorTicks",
     {"axis"},
     {"id", "style", "markStyle", "number", "length", "position=inside", "position=outside"}},
    {"gridLines", {"majorTicks", "minorTicks"}, {"id", "style"}},
    {"transform", {"axis"}, {"method=percent"}},
    // elements
    {"elementGroup", {"frame"}, {"id", "style"}},
    {"element:contour", {"frame", "elementGroup"}, elementAttributes, translateContour},
    {"element:point", {"frame", "elementGroup"}, elementAttributes, translatePoint},
    {"element:line", {"frame", "elementGroup"}, elementAttributes, translateLine},
    {"element:path", {"frame", "elementGroup"}, elementAttributes, translateLine},
    {"element:edge", {"frame", "elementGroup"}, elementAttributes, translateLine},
    {"element:interval", {"frame", "elementGroup"}, elementAttributes, translateInterval},
    {"element:area", {"frame", "elementGroup"}, elementAttributes, translateArea},
    {"element:schema", {"frame", "elementGroup"}, elementAttributes, translateBoxPlot},
    {"element:polygon", {"frame", "elementGroup"}, elementAttributes, translatePolygon},
    {"element:tile", {"frame", "elementGroup"}, elementAttributes, translateTile},
    {"facetStyle", {"element", "gridLines"}, {"style", "when=matrixscatterdiagonal"}},
    {"position", {"element"}, {"id", "style"}},
    {"x", {"element", "position"}, {"id", "style", "variable"}},
    {"y", {"element", "position"}, {"id", "style", "variable"}},
    {"z", {"element", "position"}, {"id", "style", "variable"}},
    {"styleBy", {"element"}, {"id", "variable", "styleCycle"}},
    {"color", {"element"}, {"id", "style", "variable"}},
    {"split", {"element"}, {"id", "style", "variable"}},
    {"size", {"element"}, {"id", "style", "variable", "low=binlowval", "high=binhighval"}},
    {"labeling", {"element"}, {"id", "style", "variable"}},
    {"theta", {"element", "position"}, {"id", "style", "variable"}},
    {"r", {"element", "position"}, {"id", "style", "variable"}},
    {"statistic", {"element", "position"}, {"id", "style", "method"}},
    {"statistic", {"size"}, {"id", "style", "method=count"}},
    {"parameter",
     {"statistic"},
     {"name=bins", "name=bin-width", "name=bin-start", "name=facetsShareSpecification",
      "name=location", "name=grid", "name=type", "name=base", "value"}},
    // guides and legends
    {"guide:function", {"frame"}, {"id", "style", "type", "name"}, translateFunction},
    {"guide:line", {"frame"}, {"id", "style", "type", "name"}, translateReferenceLine},
    {"guide:frame", {"frame"}, {"id", "style", "type"}, translateBox},
    {"guide:plane", {"frame"}, {"id", "style", "type"}, translatePlane},
    {"parameter",
     {"guide"},
     {"id", "style", "name=x", "name=y", "name=numPoints", "name=complete", "name=normal",
      "value"}},
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
