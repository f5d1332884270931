#include "thin/Excerpt.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <string>
#include <unordered_set>
#include <utility>

namespace render {
namespace {

using Used = std::unordered_set<const Variable*>;
using Rows = std::vector<std::size_t>;

/// The variables that an attribute below a node names, and those that they are composed of.
void collectUsed(const Node& node, const Chart& chart, Used& used) {
  for (const auto& [name, value] : node.attributes) {
    const auto variable = name == "id" ? chart.variableOfId.end() : chart.variableOfId.find(value);
    if (variable == chart.variableOfId.end()) continue;
    used.insert(variable->second);
    used.insert(variable->second->members.begin(), variable->second->members.end());
  }
  for (const Node& child : node.children)
    collectUsed(child, chart, used);
}

/// Those of a source; a source that nothing refers to is shown whole.
std::vector<const Variable*> variablesOf(std::string_view source, const Chart& chart,
                                         const Used& used) {
  std::vector<const Variable*> all, referred;
  for (const Variable& variable : chart.variables) {
    if (variable.source != source || variable.texts == nullptr) continue;
    all.push_back(&variable);
    if (used.contains(&variable)) referred.push_back(&variable);
  }
  return referred.empty() ? all : referred;
}

bool isOf(const Variable* variable, std::string_view source) {
  return variable != nullptr && variable->source == source;
}

std::vector<const Element*> elementsOf(std::string_view source, const Chart& chart) {
  std::vector<const Element*> elements;
  for (const Element& element : chart.elements)
    if (isOf(element.x, source) || isOf(element.y, source)) elements.push_back(&element);
  return elements;
}

Rows drawableRows(const std::vector<const Element*>& elements, std::size_t count) {
  Rows rows;
  for (std::size_t row = 0; row < count; ++row)
    if (elements.empty() || std::ranges::any_of(elements, [row](const Element* element) {
          return element->draws(row);
        }))
      rows.push_back(row);
  return rows;
}

void keepExtremes(const Element& element, const Variable* variable, const Rows& rows,
                  std::set<std::size_t>& kept) {
  if (variable == nullptr || variable->categorical) return;
  for (const Variable* member : variable->members)
    keepExtremes(element, member, rows, kept);
  if (!variable->members.empty()) return;
  const Rows::value_type none = variable->numbers.size();
  std::size_t lowest = none, highest = none;
  for (const std::size_t row : rows) {
    if (!element.draws(row)) continue;
    const double value = variable->numbers[row];
    if (lowest == none || value < variable->numbers[lowest]) lowest = row;
    if (highest == none || value > variable->numbers[highest]) highest = row;
  }
  if (lowest != none) kept.insert({lowest, highest});
}

/// More groups than this are not told apart anyway.
constexpr std::size_t mostGroups = mostRows / 20;

void keepGroups(const Element& element, const Rows& rows, std::set<std::size_t>& kept) {
  if (element.group == nullptr) return;
  std::unordered_set<std::string_view> known;
  for (const std::size_t row : rows) {
    if (!element.draws(row) || !known.insert((*element.group->texts)[row]).second) continue;
    kept.insert(row);
    if (known.size() == mostGroups) return;
  }
}

Rows thinned(const Rows& rows, const std::vector<const Element*>& elements) {
  std::set<std::size_t> kept;
  for (const Element* element : elements) {
    keepExtremes(*element, element->x, rows, kept);
    keepExtremes(*element, element->y, rows, kept);
    keepExtremes(*element, element->z, rows, kept);
    keepGroups(*element, rows, kept);
  }
  Rows others;
  std::ranges::set_difference(rows, kept, std::back_inserter(others));
  const std::size_t even = mostRows - std::min(kept.size(), mostRows);
  for (std::size_t i = 0; i < even; ++i)
    kept.insert(others[i * others.size() / even]);
  return {kept.begin(), kept.end()};
}

Rows allRows(std::size_t count) {
  Rows rows(count);
  for (std::size_t row = 0; row < count; ++row)
    rows[row] = row;
  return rows;
}

} // namespace

std::vector<Excerpt> excerptsOf(const Chart& chart) {
  Used used;
  collectUsed(chart.folder->document.graph(), chart, used);
  std::vector<Excerpt> excerpts;
  for (const auto& [id, table] : chart.folder->tables) {
    Excerpt& excerpt =
        excerpts.emplace_back(Excerpt{.source = id, .variables = variablesOf(id, chart, used)});
    if (table.rowCount <= mostRows) {
      excerpt.rows = allRows(table.rowCount);
      excerpt.drawable = table.rowCount;
      continue;
    }
    const std::vector<const Element*> elements = elementsOf(id, chart);
    Rows rows = drawableRows(elements, table.rowCount);
    excerpt.drawable = rows.size();
    excerpt.rows = rows.size() <= mostRows ? std::move(rows) : thinned(rows, elements);
  }
  return excerpts;
}

} // namespace render
