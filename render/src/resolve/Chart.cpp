#include "resolve/Chart.h"

#include <algorithm>
#include <array>
#include <string>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "resolve/Panels.h"
#include "resolve/ReadElements.h"
#include "resolve/Scale.h"
#include "text/Show.h"

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

/// The label of a matrix is the same for all: its members tell what it shows.
std::string titlesOf(const std::vector<const Variable*>& members) {
  std::string titles;
  for (const Variable* member : members)
    titles += (titles.empty() ? "" : ", ") + member->title;
  return titles;
}

/// The variables that a variable is composed of: "variable1 + variable2", or those of a
/// matrix, each with the constant that names its panels: "variable1/label1 + ...".
void readMembers(Variable& variable, std::string_view expression, const Chart& chart,
                 Notes& notes) {
  constexpr std::string_view plus = " + ";
  std::vector<const Variable*> members;
  while (!expression.empty()) {
    const std::string_view term = expression.substr(0, expression.find(plus));
    expression.remove_prefix(std::min(term.size() + plus.size(), expression.size()));
    const std::string_view id = term.substr(0, term.find('/'));
    const bool isOfMatrix = id.size() < term.size();
    const auto found = chart.variableOfId.find(id);
    const Variable* member = found == chart.variableOfId.end() ? nullptr : found->second;
    const bool isUsable = member != nullptr && !member->numbers.empty() &&
                          (members.empty() || (members.front()->source == member->source &&
                                               isOfMatrix == variable.isMatrix));
    if (!isUsable) {
      notes.add("Composed^2", {variable.id, shown(term)});
      return;
    }
    members.push_back(member);
    variable.isMatrix = isOfMatrix;
  }
  if (members.empty()) return;
  variable.source = members.front()->source;
  variable.format = members.front()->format;
  if (variable.isMatrix) variable.title = titlesOf(members);
  variable.members = std::move(members);
}

void composeVariables(Chart& chart, Notes& notes) {
  for (Variable& variable : chart.variables) {
    const Node* node = chart.folder->document.find(variable.id);
    if (node != nullptr && !node->attribute("expression").empty())
      readMembers(variable, node->attribute("expression"), chart, notes);
  }
}

bool holdsPlot(const Node& frame) {
  static constexpr std::array<std::string_view, 4> parts{"dimension", "element", "elementGroup",
                                                         "guide"};
  return std::ranges::any_of(frame.children, [](const Node& child) {
    return std::ranges::find(parts, child.kind) != parts.end();
  });
}

void findPlot(const Node& parent, Chart& chart, Notes& notes) {
  for (const Node& child : parent.children) {
    if (child.kind != "frame") continue;
    if (holdsPlot(child) && chart.plot != nullptr) {
      chart.leftOut.push_back(&child);
      notes.add("One plot^1", {child.name()});
      continue;
    }
    if (holdsPlot(child)) chart.plot = &child;
    findPlot(child, chart, notes);
  }
}

std::string_view sourceOf(const Element& element) {
  return (element.x != nullptr ? element.x : element.y)->source;
}

std::size_t rowCountOf(const Element& element, const Chart& chart) {
  return chart.folder->tables.find(sourceOf(element))->second.rowCount;
}

/// The elements that leave out so many rows of so many.
using ElementsOfCount =
    std::map<std::pair<std::size_t, std::size_t>, std::vector<std::string_view>>;

/// One note for all elements that leave out as many rows of as many.
void noteRows(std::string_view key, const ElementsOfCount& elementsOfCount, Notes& notes) {
  for (const auto& [count, elements] : elementsOfCount)
    notes.add(key, {fmt::to_string(count.first), fmt::to_string(count.second),
                    fmt::format("{}", fmt::join(elements, ", "))});
}

void noteMissingRows(const Chart& chart, Notes& notes) {
  ElementsOfCount missing, weightless;
  for (const Element& element : chart.elements) {
    const std::size_t rows = rowCountOf(element, chart);
    Element unweighted = element;
    unweighted.weight = nullptr;
    std::size_t without = 0, left = 0;
    for (std::size_t row = 0; row < rows; ++row) {
      if (element.draws(row)) continue;
      const bool hasWeight = element.weight == nullptr || !element.weight->isMissing(row);
      without += hasWeight && unweighted.draws(row) ? 0 : 1;
      ++left;
    }
    if (without > 0) missing[{without, rows}].push_back(element.node->name());
    if (left > without) weightless[{left - without, rows}].push_back(element.node->name());
  }
  noteRows("Missing values^3", missing, notes);
  noteRows("Without weight^3", weightless, notes);
}

void readCoordinates(Chart& chart, Notes& notes) {
  const std::optional<Icicle>& icicle = chart.folder->manifest.icicle;
  chart.isTransposed = icicle && icicle->lies;
  for (const Node& node : chart.plot->children) {
    if (node.kind != "coordinateTransform") continue;
    chart.isTransposed = chart.isTransposed || node.attribute("method") == "transpose";
    chart.isPolar = chart.isPolar || node.attribute("method") == "polar";
    if (node.attribute("method") == "rectangular") chart.space = &node;
  }
  if (chart.space == nullptr || (!chart.isPolar && !chart.isTransposed)) return;
  notes.add("Neither transposed nor polar");
  chart.isPolar = chart.isTransposed = false;
}

} // namespace

const Format& Dimension::format() const {
  static const Format none;
  for (const Variable* variable : variables)
    if (!std::holds_alternative<std::monostate>(variable->format)) return variable->format;
  return none;
}

bool Chart::draws(const Element& element, const Item& item) const {
  const bool isOfRow = element.method == Method::none && !isStack(element.modifier);
  const auto rows = drawnRows.find(sourceOf(element));
  return !isOfRow || rows == drawnRows.end() || rows->second.contains(item.row);
}

const Element* Chart::find(const Node& node) const {
  const auto found = std::ranges::find(elements, &node, &Element::node);
  return found == elements.end() ? nullptr : &*found;
}

const Variable* Chart::variableOf(const Node& aesthetic) const {
  const auto found = variableOfId.find(aesthetic.attribute("variable"));
  return found == variableOfId.end() ? nullptr : found->second;
}

const Node* Chart::dimensionNode(std::string_view role) const {
  if (plot == nullptr) return nullptr;
  const auto find = [this](std::string_view name) {
    const auto found = std::ranges::find_if(plot->children, [name](const Node& child) {
      return child.kind == "dimension" && child.attribute("role") == name;
    });
    return found == plot->children.end() ? nullptr : &*found;
  };
  const Node* node = find(role);
  if (node != nullptr || !isPolar || role == "z") return node;
  return find(role == "x" ? "theta" : "r");
}

Chart resolve(const ChartFolder& folder, Notes& notes) {
  Chart chart{.folder = &folder};
  readVariables(chart, notes);
  composeVariables(chart, notes);
  chart.panels.emplace_back();
  findPlot(folder.document.graph(), chart, notes);
  if (chart.plot == nullptr) {
    notes.add("Nothing to draw");
    return chart;
  }
  readCoordinates(chart, notes);
  readElements(chart, notes);
  agreeOnKinds(chart, notes);
  chart.facets = readFacets(chart, notes);
  makePanels(chart, notes);
  fitDimensions(chart, notes);
  noteMissingRows(chart, notes);
  return chart;
}

} // namespace render
