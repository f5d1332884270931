#include "resolve/Panels.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <set>

#include <fmt/format.h>

#include "compute/Bins.h"
#include "compute/Items.h"

namespace render {
namespace {

std::string_view sourceOf(const Element& element) {
  return (element.x != nullptr ? element.x : element.y)->source;
}

bool belongs(const Element& element, const Panel& panel, const Chart& chart, std::size_t row) {
  if (chart.facets.isMatrix) return element.draws(row);
  const std::string_view source = sourceOf(element);
  return holds(chart.facets.columns[panel.column], source, row) &&
         holds(chart.facets.rows[panel.row], source, row);
}

/// Every panel of a matrix shows the same rows: those that have all of its variables.
Rows rowsOf(const Element& element, const Panel& panel, const Chart& chart) {
  const std::size_t count = chart.folder->tables.find(sourceOf(element))->second.rowCount;
  Rows rows;
  for (std::size_t row = 0; row < count; ++row)
    if (belongs(element, panel, chart, row)) rows.push_back(row);
  return rows;
}

bool sharesBins(const Element& element) {
  return element.statistic == nullptr ||
         parameter(*element.statistic, "facetsShareSpecification") != "false";
}

/// The bins of a histogram's rows; nothing without rows.
std::optional<Bins> binsOf(const Element& element, const Rows& rows, Notes& notes) {
  std::vector<Sample::Value> places;
  for (const std::size_t row : rows)
    if (element.draws(row))
      places.push_back(
          {.value = element.place()->numbers[row], .weight = element.weightOf(row), .row = row});
  if (places.empty()) return std::nullopt;
  return Bins::of(*element.statistic, Sample(std::move(places)), notes);
}

/// The histogram whose bins an element uses: itself, or the one that a normal curve of
/// the same variable lies over.
const Element* histogramOf(const Element& element, const Chart& chart) {
  if (element.method == Method::histogram) return &element;
  if (element.method != Method::distribution) return nullptr;
  const auto found = std::ranges::find_if(chart.elements, [&](const Element& other) {
    return other.method == Method::histogram && other.place() == element.place();
  });
  return found == chart.elements.end() ? nullptr : &*found;
}

/// The bins of an element in each panel, in their order; nothing where it has none.
std::vector<std::optional<Bins>> binsOfPanels(const Element& element, const Chart& chart,
                                              Notes& notes) {
  std::vector<std::optional<Bins>> bins(chart.panels.size());
  const Element* histogram = histogramOf(element, chart);
  if (histogram == nullptr) return bins;
  Rows all;
  for (std::size_t i = 0; i < chart.panels.size(); ++i) {
    const Rows rows = rowsOf(*histogram, chart.panels[i], chart);
    if (sharesBins(*histogram))
      all.insert(all.end(), rows.begin(), rows.end());
    else
      bins[i] = binsOf(*histogram, rows, notes);
  }
  if (sharesBins(*histogram)) bins.assign(bins.size(), binsOf(*histogram, all, notes));
  return bins;
}

/// An element along the variables that a panel is for.
Element shownIn(const Panel& panel, Element element) {
  if (element.x != nullptr && element.x->isMatrix) element.x = element.x->members[panel.column];
  if (element.y != nullptr && element.y->isMatrix) element.y = element.y->members[panel.row];
  return element;
}

/// A curve has as many items as it has steps, all for the first row of its group.
void noteFlatValues(const Element& element, const Rows& rows, const std::vector<Item>& items,
                    Notes& notes) {
  if (element.method != Method::distribution) return;
  Rows drawn;
  std::ranges::copy_if(rows, std::back_inserter(drawn),
                       [&](std::size_t row) { return element.draws(row); });
  std::set<std::size_t> curves;
  for (const Item& item : items)
    curves.insert(item.row);
  const std::size_t groups = groupsOf(element, drawn).size();
  if (groups > curves.size())
    notes.add("No normal curve^3", {element.node->name(), fmt::to_string(groups - curves.size()),
                                    fmt::to_string(groups)});
}

} // namespace

void makePanels(Chart& chart, Notes& notes) {
  chart.panels.clear();
  for (std::size_t row = 0; row < chart.facets.rows.size(); ++row)
    for (std::size_t column = 0; column < chart.facets.columns.size(); ++column)
      chart.panels.push_back({.column = column, .row = row});
  for (const Element& element : chart.elements) {
    const std::vector<std::optional<Bins>> bins = binsOfPanels(element, chart, notes);
    for (std::size_t i = 0; i < chart.panels.size(); ++i) {
      Panel& panel = chart.panels[i];
      const std::optional<Bins>& own = bins[i];
      const bool lacksBins = element.method == Method::histogram && !own;
      const Rows rows = lacksBins ? Rows() : rowsOf(element, panel, chart);
      panel.elements.push_back(shownIn(panel, element));
      panel.items.push_back(itemsOf(panel.elements.back(), rows, own ? &*own : nullptr));
      noteFlatValues(panel.elements.back(), rows, panel.items.back(), notes);
    }
  }
}

} // namespace render
