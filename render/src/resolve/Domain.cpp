#include "resolve/Domain.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <string>

#include "text/Show.h"

namespace render {
namespace {

/// Domains may refer to each other in a circle.
constexpr int deepestReference = 10;

/// One end of a domain.
struct End {
  std::optional<double>& value;
  bool& isExact;
  bool& isNice;
  bool isLower;
};

/// A number fixes the end; a word tells how the data do.
void widen(const End& end, std::string_view text, const Node& interval, Notes& notes) {
  const double value = numberOf(text);
  end.isExact = end.isExact || text == "exact";
  end.isNice = end.isNice || text == "nice";
  if (std::isnan(value)) {
    const bool isKnown = text.empty() || text == "auto" || text == "exact" || text == "nice";
    if (!isKnown)
      notes.add("Attribute not drawn^3",
                {interval.name(), end.isLower ? "min" : "max", shown(text)});
    return;
  }
  if (!end.value)
    end.value = value;
  else
    end.value = end.isLower ? std::min(*end.value, value) : std::max(*end.value, value);
}

void collect(const Node& node, Domain& domain, const Chart& chart, int depth, Notes& notes) {
  if (depth > deepestReference) return;
  for (const Node& child : node.children) {
    if (child.kind == "interval") {
      widen({domain.min, domain.isExactBelow, domain.isNiceBelow, true}, child.attribute("min"),
            child, notes);
      widen({domain.max, domain.isExactAbove, domain.isNiceAbove, false}, child.attribute("max"),
            child, notes);
    } else if (child.kind == "sort" && depth == 0) {
      domain.sort = &child;
    } else if (child.kind == "domainReference") {
      const std::string_view id = child.attribute("domain");
      const auto variable = chart.variableOfId.find(id);
      const Node* referred = chart.folder->document.find(id);
      if (variable != chart.variableOfId.end())
        domain.references.push_back(variable->second);
      else if (referred != nullptr)
        collect(*referred, domain, chart, depth + 1, notes);
      else
        notes.add("Lost domain^2", {node.name(), shown(id)});
    }
  }
}

std::string_view domainId(const Dimension& dimension, const Chart& chart) {
  const Node* node = chart.dimensionNode(dimension.role);
  if (node != nullptr && !node->attribute("domain").empty()) return node->attribute("domain");
  for (const Variable* variable : dimension.variables)
    if (!variable->domain.empty()) return variable->domain;
  return {};
}

/// A dimension that names its matrix takes each panel's variable as it is.
bool isOfMatrix(std::string_view id, const Chart& chart) {
  const auto found = chart.variableOfId.find(id);
  return found != chart.variableOfId.end() && found->second->isMatrix;
}

using Ranks = std::map<std::string_view, double>;

/// The row in which each category comes first.
Ranks firstRows(const Dimension& dimension) {
  Ranks ranks;
  for (const Variable* variable : dimension.variables)
    for (const std::string_view text : variable->texts->texts())
      ranks.try_emplace(text, static_cast<double>(ranks.size()));
  return ranks;
}

/// The sum of `statistic` over the rows of each category.
Ranks sums(const Variable& source, const Variable& statistic) {
  Ranks ranks;
  for (std::size_t row = 0; row < source.texts->size(); ++row) {
    const double value = statistic.numbers[row];
    if (!std::isnan(value)) ranks[(*source.texts)[row]] += value;
  }
  return ranks;
}

/// Those of one rank keep their order, whichever end comes first, and those without a rank
/// come last.
void sortByRank(std::vector<Category>& categories, const Ranks& ranks, bool isDescending) {
  const auto rank = [&](const Category& category) {
    const auto found = ranks.find(category.key);
    if (found == ranks.end()) return std::numeric_limits<double>::infinity();
    return isDescending ? -found->second : found->second;
  };
  std::ranges::stable_sort(categories, {}, rank);
}

/// Returns whether there is what to sort by.
bool sortByStatistic(std::vector<Category>& categories, const Node& node, bool isDescending,
                     const Chart& chart, Notes& notes) {
  const auto variable = [&](std::string_view name) -> const Variable* {
    const auto found = chart.variableOfId.find(node.attribute(name));
    return found == chart.variableOfId.end() ? nullptr : found->second;
  };
  const Variable* source = variable("sourceVariable");
  const Variable* statistic = variable("statVariable");
  const bool isUsable = source != nullptr && source->texts != nullptr && statistic != nullptr &&
                        !statistic->numbers.empty() && source->source == statistic->source;
  if (isUsable)
    sortByRank(categories, sums(*source, *statistic), isDescending);
  else
    notes.add("Sort without values^2", {node.name(), node.attribute("statVariable")});
  return isUsable;
}

} // namespace

Domain domainOf(const Dimension& dimension, const Chart& chart, Notes& notes) {
  Domain domain;
  const std::string_view id = domainId(dimension, chart);
  if (id.empty() || isOfMatrix(id, chart)) return domain;
  const Node* node = chart.folder->document.find(id);
  if (node == nullptr) return domain; // a lost reference
  if (node->kind != "domain") {
    notes.add("No domain^2", {shown(id), dimension.role});
    return domain;
  }
  collect(*node, domain, chart, 0, notes);
  if (domain.hasRange()) return domain;
  notes.add("Ends before it begins^1", {node->name()});
  domain.min = domain.max = std::nullopt;
  return domain;
}

void sortCategories(std::vector<Category>& categories, const Node& sort, const Dimension& dimension,
                    const Chart& chart, Notes& notes) {
  const bool isDescending = sort.attribute("descending") == "true";
  bool isRanked = false;
  for (const Node& node : sort.children) {
    if (node.kind == "statisticSort")
      isRanked |= sortByStatistic(categories, node, isDescending, chart, notes);
    if (node.kind != "simpleSort") continue;
    const std::string_view method = node.attribute("method");
    if (method == "data") {
      sortByRank(categories, firstRows(dimension), isDescending);
      isRanked = true;
    } else if (method != "natural" && !method.empty()) {
      notes.add("Order not drawn^2", {node.name(), shown(method)});
    }
  }
  if (isDescending && !isRanked) std::ranges::reverse(categories);
}

} // namespace render
