#include "resolve/Facets.h"

#include <algorithm>
#include <array>
#include <functional>
#include <string>

#include <fmt/format.h>

#include "resolve/Chart.h"

namespace render {
namespace {

constexpr std::size_t mostPanels = 20; ///< in a row or column
constexpr std::size_t mostCells = 100; ///< that are tried: products grow fast

/// The columns and rows that a node of the facets makes; empty for a direction that it
/// does not split.
struct Split {
  std::vector<FacetCell> columns{};
  std::vector<FacetCell> rows{};
};

bool occurs(const FacetCell& cell) {
  const std::size_t rows = cell.front().variable->codes.size();
  for (std::size_t row = 0; row < rows; ++row)
    if (holds(cell, cell.front().variable->source, row)) return true;
  return false;
}

/// Every cell of the one with every cell of the other, the first one outside.
std::vector<FacetCell> product(const std::vector<FacetCell>& outer,
                               const std::vector<FacetCell>& inner, bool onlyWhatOccurs) {
  if (outer.empty()) return inner;
  if (inner.empty()) return outer;
  std::vector<FacetCell> cells;
  for (const FacetCell& first : outer)
    for (const FacetCell& second : inner) {
      if (cells.size() == mostCells) return cells;
      FacetCell cell = first;
      cell.insert(cell.end(), second.begin(), second.end());
      if (!onlyWhatOccurs || occurs(cell)) cells.push_back(std::move(cell));
    }
  return cells;
}

class Reader {
public:
  Reader(const Chart& chart, Notes& notes) : chart_(chart), notes_(notes) {}

  /// A combinator, or the facets as a whole, which cross what they hold.
  Split combined(const Node& node) const {
    Split all;
    for (const Node& child : node.children) {
      const Split split = splitOf(child);
      if (node.kind == "blend") {
        all.columns.insert(all.columns.end(), split.columns.begin(), split.columns.end());
        all.rows.insert(all.rows.end(), split.rows.begin(), split.rows.end());
        continue;
      }
      const bool isNest = node.kind == "nest";
      all.columns = product(all.columns, split.columns, isNest);
      all.rows = product(all.rows, split.rows, isNest);
    }
    return all;
  }

private:
  Split splitOf(const Node& node) const {
    if (node.kind == "facetVariable") return ofVariable(node);
    static constexpr std::array<std::string_view, 3> combinators{"nest", "cross", "blend"};
    if (std::ranges::find(combinators, node.kind) == combinators.end()) return {};
    return combined(node);
  }

  Split ofVariable(const Node& node) const {
    const Variable* variable = chart_.variableOf(node);
    const bool isUsable =
        variable != nullptr && variable->texts != nullptr && variable->categorical;
    if (!isUsable) {
      notes_.add("Facet without categories^2", {node.name(), node.attribute("variable")});
      return {};
    }
    std::vector<FacetCell> cells;
    for (std::size_t i = 0; i < std::min(mostCells, variable->categories.size()); ++i)
      cells.push_back({{.node = &node, .variable = variable, .category = i}});
    if (node.attribute("role") == "x") return {.columns = std::move(cells)};
    if (node.attribute("role") == "y") return {.rows = std::move(cells)};
    return {}; // noted with its role
  }

  const Chart& chart_;
  Notes& notes_;
};

/// The labels of levels that go the other way, counted from 1 with the columns first.
std::vector<bool> reversedLevels(const Chart& chart, std::size_t count) {
  std::vector<bool> reversed(count);
  const Node* labeling = chart.plot->child("facetLabeling");
  if (labeling == nullptr) return reversed;
  for (const Node& label : labeling->children)
    for (std::size_t level = 0; level < count; ++level)
      if (label.attribute("level") == std::to_string(level + 1))
        reversed[level] = label.attribute("reverse") == "true";
  return reversed;
}

/// Turns the order of categories about where the label of their level is reversed;
/// variables keep theirs.
void reverse(std::vector<FacetCell>& cells, std::size_t firstLevel, const Chart& chart) {
  if (cells.empty()) return;
  const std::vector<bool> reversed = reversedLevels(chart, firstLevel + cells.front().size());
  std::vector<const Variable*> variables;
  for (const FacetCell& cell : cells)
    for (const FacetValue& value : cell)
      if (std::ranges::find(variables, value.variable) == variables.end())
        variables.push_back(value.variable);
  const auto rankOf = [&](const FacetCell& cell) {
    std::vector<double> rank;
    for (std::size_t i = 0; i < cell.size(); ++i) {
      const bool isReversed = firstLevel + i < reversed.size() && reversed[firstLevel + i];
      const auto category = static_cast<double>(cell[i].category);
      rank.push_back(
          static_cast<double>(std::ranges::find(variables, cell[i].variable) - variables.begin()));
      rank.push_back(isReversed ? -category : category);
    }
    return rank;
  };
  if (std::ranges::find(reversed, true) != reversed.end())
    std::ranges::stable_sort(cells, {}, rankOf);
}

void limit(std::vector<FacetCell>& cells, std::string_view note, Notes& notes) {
  if (cells.size() <= mostPanels) return;
  notes.add(note, {fmt::to_string(mostPanels), fmt::to_string(cells.size())});
  cells.resize(mostPanels);
}

/// A column or row for each member of the matrix that an element draws along a role; one
/// for all without a matrix.
std::vector<FacetCell> matrixCells(std::string_view role, const Chart& chart) {
  const auto found = std::ranges::find_if(chart.elements, [role](const Element& element) {
    return element.along(role) != nullptr && element.along(role)->isMatrix;
  });
  if (found == chart.elements.end()) return {{}};
  std::vector<FacetCell> cells;
  for (const Variable* member : found->along(role)->members)
    cells.push_back({{.node = found->node, .variable = member, .category = 0}});
  return cells;
}

bool isFacet(const Node& node) {
  return node.kind == "tableFacet" || node.kind == "coordinateFacet";
}

Facets matrixFacets(const Chart& chart, Notes& notes) {
  for (const Node& node : chart.plot->children)
    if (isFacet(node)) notes.add("Panels of a matrix^1", {node.name()});
  Facets facets{.columns = matrixCells("x", chart), .rows = matrixCells("y", chart)};
  facets.isMatrix = true;
  limit(facets.columns, "First columns^2", notes);
  limit(facets.rows, "First rows^2", notes);
  return facets;
}

} // namespace

Facets readFacets(const Chart& chart, Notes& notes) {
  if (std::ranges::any_of(chart.elements, &Element::isOfMatrix)) return matrixFacets(chart, notes);
  const Reader reader(chart, notes);
  Split split;
  bool isTable = false;
  for (const Node& node : chart.plot->children) {
    if (!isFacet(node)) continue;
    const Split more = reader.combined(node);
    split.columns = product(split.columns, more.columns, false);
    split.rows = product(split.rows, more.rows, false);
    isTable = isTable || node.kind == "tableFacet";
  }
  reverse(split.columns, 0, chart);
  reverse(split.rows, split.columns.empty() ? 0 : split.columns.front().size(), chart);
  limit(split.columns, "First columns^2", notes);
  limit(split.rows, "First rows^2", notes);
  Facets facets;
  if (!split.columns.empty()) facets.columns = std::move(split.columns);
  if (!split.rows.empty()) facets.rows = std::move(split.rows);
  facets.areAlongAxis = !isTable && !facets.areUnlabelled();
  return facets;
}

bool holds(const FacetCell& cell, std::string_view source, std::size_t row) {
  return std::ranges::all_of(cell, [=](const FacetValue& value) {
    return value.variable->source != source ||
           value.variable->codes[row] == static_cast<double>(value.category);
  });
}

} // namespace render
