#include "output/ChartVariables.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

namespace host {

ChartVariables::ChartVariables(const ZephVisualization& chart, const VarDataProcessor& data)
    : chart_(chart) {
  if (data.sources().empty()) return;
  for (const auto& source : data.sources())
    sources_.insert(source.name);
  firstSource_ = data.sources().front().name;
  byPlace_.resize(chart.getSourceVariables().size());
  std::iota(byPlace_.begin(), byPlace_.end(), 0U);
  const auto isComputed = [&](std::uint32_t index) {
    return !sources_.contains(variable(index).source());
  };
  if (std::ranges::any_of(byPlace_, isComputed)) {
    for (const std::uint32_t index : byPlace_)
      byId_.emplace(variable(index).id(), index);
  }
  std::ranges::sort(byPlace_, {},
                    [&](std::uint32_t index) { return std::pair(placeOf(index), index); });
}

ChartVariables::Place ChartVariables::placeOf(std::uint32_t index) const {
  return {sourceOf(index), variable(index).sourceName()};
}

// A computed variable names the variable that it stands on where others name their
// source; no such way is longer than there are variables. The store gives a variable
// of a source that it does not know the first one.
std::string_view ChartVariables::sourceOf(std::uint32_t index) const {
  for (std::size_t hops = 0; hops <= byPlace_.size(); ++hops) {
    const std::string& source = variable(index).source();
    if (sources_.contains(source)) return source;
    const auto next = byId_.find(source);
    if (next == byId_.end()) break;
    index = next->second;
  }
  return firstSource_;
}

std::vector<const CTVariableType*>
ChartVariables::of(const VarDataProcessor::Source& source,
                   const VarDataProcessor::Variable& column) const {
  std::vector<const CTVariableType*> variables;
  const auto found = std::ranges::equal_range(byPlace_, Place(source.name, column.name), {},
                                              [&](std::uint32_t index) { return placeOf(index); });
  for (const std::uint32_t index : found)
    variables.push_back(&variable(index));
  return variables;
}

} // namespace host
