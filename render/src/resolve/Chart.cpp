#include "resolve/Chart.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "resolve/Scale.h"

namespace render {
namespace {

void readVariables(Chart& chart, Notes& notes) {
  for (const Node& node : chart.folder->document.graph().children) {
    if (node.kind != "variable") continue;
    const Variable& variable =
        chart.variables.emplace_back(readVariable(node, *chart.folder, notes));
    chart.variableOfId.try_emplace(variable.id, &variable);
  }
}

bool holdsPlot(const Node& frame) {
  static constexpr std::array<std::string_view, 3> parts{"dimension", "element", "guide"};
  return std::ranges::any_of(frame.children, [](const Node& child) {
    return std::ranges::find(parts, child.kind) != parts.end();
  });
}

void findPlot(const Node& parent, Chart& chart, Notes& notes) {
  for (const Node& child : parent.children) {
    if (child.kind != "frame") continue;
    if (holdsPlot(child) && chart.plot != nullptr) {
      chart.leftOut.push_back(&child);
      notes.add(fmt::format("{} is not drawn yet: a chart shows one plot", child.name()));
      continue;
    }
    if (holdsPlot(child)) chart.plot = &child;
    findPlot(child, chart, notes);
  }
}

const Variable* variableOf(const Node& aesthetic, const Chart& chart) {
  const auto found = chart.variableOfId.find(aesthetic.attribute("variable"));
  return found == chart.variableOfId.end() ? nullptr : found->second;
}

/// The variable of a position role, which stands in the element or its position.
const Variable* positionVariable(const Node& element, std::string_view role, const Chart& chart) {
  const Node* position = element.child("position");
  const Node* aesthetic = position ? position->child(role) : nullptr;
  if (aesthetic == nullptr) aesthetic = element.child(role);
  return aesthetic ? variableOf(*aesthetic, chart) : nullptr;
}

/// The first categorical variable that the element's groups differ by; what it
/// asks for beyond that is noted.
const Variable* groupVariable(const Node& element, const Chart& chart, Notes& notes) {
  const Variable* group = nullptr;
  for (const Node& child : element.children) {
    if (child.kind != "styleBy" && child.kind != "color") continue;
    const Variable* variable = variableOf(child, chart);
    if (variable == nullptr || variable->texts == nullptr)
      notes.add(fmt::format("{}: the variable of its {} has no data", element.name(), child.kind));
    else if (!variable->categorical)
      notes.add(fmt::format("{}: a {} by the values of {} is not drawn yet", element.name(),
                            child.kind, variable->title));
    else if (group != nullptr && group != variable)
      notes.add(fmt::format("{}: a second grouping, by {}, is not drawn yet", element.name(),
                            variable->title));
    else
      group = variable;
  }
  return group;
}

void readElement(const Node& node, Chart& chart, Notes& notes) {
  const auto refuse = [&](std::string_view why) {
    notes.add(fmt::format("{} is not drawn: {}", node.name(), why));
  };
  const Variable* x = positionVariable(node, "x", chart);
  const Variable* y = positionVariable(node, "y", chart);
  if (x == nullptr || x->texts == nullptr) return refuse("it has no x variable with data");
  if (y == nullptr || y->texts == nullptr) return refuse("it has no y variable with data");
  if (x->source != y->source) return refuse("its variables are of different data sources");

  const Variable* group = groupVariable(node, chart, notes);
  if (group != nullptr && group->source != x->source)
    return refuse("its variables are of different data sources");
  chart.elements.push_back({.node = &node, .x = x, .y = y, .group = group});
}

/// One note for all elements that leave out as many rows of as many.
void noteMissingRows(const Chart& chart, Notes& notes) {
  std::map<std::pair<std::size_t, std::size_t>, std::vector<std::string_view>> elementsOfCount;
  for (const Element& element : chart.elements) {
    const std::size_t rows = element.x->texts->size();
    std::size_t left = 0;
    for (std::size_t row = 0; row < rows; ++row)
      left += element.draws(row) ? 0 : 1;
    if (left > 0) elementsOfCount[{left, rows}].push_back(element.node->name());
  }
  for (const auto& [count, elements] : elementsOfCount)
    notes.add(fmt::format("rows left out for a missing value: {} of {} ({})", count.first,
                          count.second, fmt::join(elements, ", ")));
}

} // namespace

bool Element::draws(std::size_t row) const {
  return !x->isMissing(row) && !y->isMissing(row) && (group == nullptr || !group->isMissing(row));
}

const Format& Dimension::format() const {
  static const Format none;
  for (const Variable* variable : variables)
    if (!std::holds_alternative<std::monostate>(variable->format)) return variable->format;
  return none;
}

const Element* Chart::find(const Node& node) const {
  const auto found = std::ranges::find(elements, &node, &Element::node);
  return found == elements.end() ? nullptr : &*found;
}

const Dimension* Chart::dimension(std::string_view role) const {
  if (role == "x") return &x;
  return role == "y" ? &y : nullptr;
}

Chart resolve(const ChartFolder& folder, Notes& notes) {
  Chart chart{.folder = &folder};
  readVariables(chart, notes);
  findPlot(folder.document.graph(), chart, notes);
  if (chart.plot == nullptr) {
    notes.add("the chart has no frame with dimensions or elements to draw");
    return chart;
  }
  static constexpr std::array<std::string_view, 2> drawnTypes{"point", "line"};
  for (const Node& node : chart.plot->children)
    if (node.kind == "element" &&
        std::ranges::find(drawnTypes, node.attribute("type")) != drawnTypes.end())
      readElement(node, chart, notes);
  fitDimension(chart.x, &Element::x, chart, notes);
  fitDimension(chart.y, &Element::y, chart, notes);
  noteMissingRows(chart, notes);
  return chart;
}

} // namespace render
