// Variables that the chart uses and that have no value.
#include <algorithm>
#include <cmath>
#include <set>

#include <fmt/format.h>

#include "check/Check.h"
#include "check/UsedVariables.h"

namespace render {
namespace {

std::string lackOf(const Variable& variable) {
  const Table::Column& texts = *variable.texts;
  if (std::ranges::all_of(texts, &std::string::empty))
    return fmt::format("{} has no value in any of {} rows; load its values, or leave it out",
                       called(variable), texts.size());
  const auto isMissing = [](double value) { return std::isnan(value); };
  if (!variable.categorical && std::ranges::all_of(variable.numbers, isMissing))
    return fmt::format("{} is drawn along numbers, and none of its values in {} rows is one; load "
                       "numbers, or make it categorical",
                       called(variable), texts.size());
  return {};
}

} // namespace

void checkEmptyVariables(const Chart& chart, Report& report) {
  std::set<std::string_view> withoutRows;
  for (const Variable* variable : usedVariables(chart)) {
    const Node& node = *chart.folder->document.find(variable->id);
    const Node* source = chart.folder->document.find(variable->source);
    if (!hasOwnColumn(node) || source == nullptr) continue; // a lost source is a lost reference
    const auto table = chart.folder->tables.find(variable->source);
    const bool hasRows = table != chart.folder->tables.end() && table->second.rowCount > 0;
    if (!hasRows && withoutRows.insert(variable->source).second)
      report.add(*source, "the chart uses its variables and it has no rows; add rows and load "
                          "their values");
    if (!hasRows || variable->texts == nullptr) continue; // a lost column is changed data
    if (const std::string lack = lackOf(*variable); !lack.empty()) report.add(*variable, lack);
  }
}

} // namespace render
