#include "output/ChartVariables.h"

#include <algorithm>
#include <cstddef>

namespace host {

ChartVariables::ChartVariables(const ZephVisualization& chart, const VarDataProcessor& data) {
  if (data.sources().empty()) return;
  for (const auto& source : data.sources())
    ofSource_[source.name];
  Variables& first = ofSource_.at(data.sources().front().name);
  ById byId;
  for (const CTVariableType& variable : chart.getSourceVariables()) {
    // The store gives a variable of a source that it does not know the first one.
    Variables* known = sourceOf(variable, chart, byId);
    (known ? *known : first).push_back(&variable);
  }
  for (auto& [name, variables] : ofSource_)
    std::ranges::stable_sort(variables, {}, &CTVariableType::sourceName);
}

// A computed variable names the variable that it stands on where others name their
// source. No such way is longer than there are variables.
ChartVariables::Variables* ChartVariables::sourceOf(const CTVariableType& variable,
                                                    const ZephVisualization& chart, ById& byId) {
  const CTVariableType* at = &variable;
  for (std::size_t hops = 0; hops <= chart.getSourceVariables().size(); ++hops) {
    if (const auto source = ofSource_.find(at->source()); source != ofSource_.end())
      return &source->second;
    if (byId.empty()) {
      for (const CTVariableType& other : chart.getSourceVariables())
        byId.emplace(other.id(), &other);
    }
    const auto next = byId.find(at->source());
    if (next == byId.end()) return nullptr;
    at = next->second;
  }
  return nullptr;
}

std::span<const CTVariableType* const>
ChartVariables::of(const VarDataProcessor::Source& source,
                   const VarDataProcessor::Variable& column) const {
  const auto found = std::ranges::equal_range(
      ofSource_.at(source.name), std::string_view(column.name), {}, &CTVariableType::sourceName);
  return {found.begin(), found.end()};
}

} // namespace host
