#include "output/Manifest.h"

#include <source_location>
#include <string_view>
#include <unordered_map>

#include <fmt/format.h>
#include <host/ChartError.h>
#include <host/Missing.h>
#include <host/Settings.h>

namespace host {
namespace {

using nlohmann::ordered_json;
using Source = VarDataProcessor::Source;
using Variables = std::vector<const CTVariableType*>;

/// The document's variables by the column that they read.
class VariablesOfColumns {
public:
  VariablesOfColumns(const ZephVisualization& chart, const VarDataProcessor& data) {
    if (data.sources().empty()) return;
    for (const Source& source : data.sources())
      ofSource_[source.name];
    for (const CTVariableType& variable : chart.getSourceVariables())
      ofId_.emplace(variable.id, &variable);
    Columns& first = ofSource_.at(data.sources().front().name);
    for (const CTVariableType& variable : chart.getSourceVariables()) {
      // The store gives a variable of a source that it does not know the first one.
      Columns* known = columnsFor(variable);
      (known ? *known : first)[variable.sourceName].push_back(&variable);
    }
  }

  const Variables& find(const Source& source, const std::string& column) const {
    static const Variables none;
    const Columns& columns = ofSource_.at(source.name);
    const auto found = columns.find(column);
    return found == columns.end() ? none : found->second;
  }

private:
  using Columns = std::unordered_map<std::string_view, Variables>;

  /// Those of the variable's source, which a computed variable has by way of others. No
  /// such way is longer than there are variables.
  Columns* columnsFor(const CTVariableType& variable) {
    const CTVariableType* at = &variable;
    for (std::size_t hops = 0; hops <= ofId_.size(); ++hops) {
      if (const auto source = ofSource_.find(at->source); source != ofSource_.end())
        return &source->second;
      const auto next = ofId_.find(at->source);
      if (next == ofId_.end()) break;
      at = next->second;
    }
    return nullptr;
  }

  std::unordered_map<std::string_view, Columns> ofSource_;
  std::unordered_map<std::string_view, const CTVariableType*> ofId_;
};

/// {"numberFormat": {"prefix": "$"}}, {"dateTimeFormat": {"dateFormat": {"year": {}}}}
ordered_json formatsJson(const std::vector<CTFormatType>& formats) {
  ordered_json json = ordered_json::object();
  for (const CTFormatType& format : formats) {
    ordered_json parts = formatsJson(format.parts);
    for (const auto& [name, value] : format.attributes)
      parts[name] = value;
    json[format.kind] = std::move(parts);
  }
  return json;
}

ordered_json categoriesJson(const CTVariableType& variable) {
  ordered_json json = ordered_json::array();
  for (const auto& [value, label] : variable.categories)
    json.push_back({{"value", value}, {"label", label}});
  return json;
}

ordered_json columnJson(const VarDataProcessor::Variable& column, const Variables& variables) {
  static const CTVariableType unnamed;
  const CTVariableType& first = variables.empty() ? unnamed : *variables.front();
  ordered_json ids = ordered_json::array();
  for (const CTVariableType* variable : variables)
    ids.push_back(variable->id);
  ordered_json json{{"name", column.name},
                    {"variables", std::move(ids)},
                    {"label", first.label},
                    {"shortLabel", first.shortLabel},
                    {"kind", column.column->hasTexts() ? "string" : "number"},
                    {"categorical", first.categorical == "true"}};
  if (!first.formats.empty()) json["format"] = formatsJson(first.formats);
  if (!first.categories.empty()) json["categories"] = categoriesJson(first);
  return json;
}

/// The signs of numbers in the chart's texts.
ordered_json numberSigns() {
  const CmnLoc* locale = CmnLoc::shared();
  return {{"decimal", locale ? locale->decimalSeparator : "."},
          {"grouping", locale ? locale->groupingSeparator : ","}};
}

ordered_json sourceJson(const Source& source, const VariablesOfColumns& variables) {
  ordered_json columns = ordered_json::array();
  for (const auto& column : source.variables)
    columns.push_back(columnJson(column, variables.find(source, column.name)));
  return {{"name", source.name},
          {"file", csvNameOf(source)},
          {"rows", source.rowCount()},
          {"columns", std::move(columns)}};
}

ordered_json sourcesJson(const SentChart& chart) {
  ordered_json sources = ordered_json::array();
  if (chart.data == nullptr) return sources;
  const VariablesOfColumns variables(chart.visualization, *chart.data);
  for (const Source& source : chart.data->sources())
    sources.push_back(sourceJson(source, variables));
  return sources;
}

void addNumber(ordered_json& json, const char* name, std::optional<double> number) {
  if (!number) return;
  if (*number == systemMissing)
    json[name] = nullptr;
  else
    json[name] = *number;
}

ordered_json statisticJson(const ZephExtensionSV& extension) {
  ordered_json json = ordered_json::object();
  for (const auto& [name, value] : extension.attributes())
    json[name] = value;
  addNumber(json, "value", extension.value());
  addNumber(json, "min", extension.min());
  addNumber(json, "max", extension.max());
  return json;
}

ordered_json statisticsJson(const ZephVisualization& chart) {
  ordered_json statistics = ordered_json::object();
  for (const CTVariableType& variable : chart.getSourceVariables())
    if (const ZephExtensionSV* extension = variable.getExtension())
      statistics[variable.id] = statisticJson(*extension);
  return statistics;
}

} // namespace

std::string csvNameOf(const Source& source) {
  constexpr std::size_t longest = 200;
  if (source.variables.empty()) return {};
  const std::string& name = source.name;
  if (name.empty() || name.size() > longest || name.front() == '.' ||
      name.find_first_of(std::string_view("/\0", 2)) != std::string::npos) {
    const auto here = std::source_location::current();
    throw ChartException(fmt::format("the data source \"{}\" can't name a file", name),
                         here.file_name(), here.line());
  }
  return name + ".csv";
}

ordered_json manifestOf(const SentChart& chart, const std::string& name,
                        const std::vector<std::string>& errors) {
  ordered_json manifest = {{"name", name},
                           {"description", chart.description},
                           {"splitHeader", chart.splitHeader},
                           {"template", chart.chartTemplate},
                           {"language", chart.language},
                           {"numberSigns", numberSigns()}};
  if (const auto horizontal = chart.visualization.icicleHorizontal) {
    manifest["type"] = "icicle";
    manifest["icicle"] = {{"orientation", *horizontal ? "horizontal" : "vertical"},
                          {"rows", chart.visualization.icicleRows}};
  }
  manifest["sources"] = sourcesJson(chart);
  manifest["statistics"] = statisticsJson(chart.visualization);
  manifest["errors"] = errors;
  return manifest;
}

} // namespace host
