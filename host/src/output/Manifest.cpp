#include "output/Manifest.h"

#include <source_location>
#include <vector>

#include <fmt/format.h>
#include <host/ChartError.h>
#include <host/ChartFiles.h>
#include <host/Missing.h>
#include <host/Settings.h>
#include <nlohmann/json.hpp>

#include "output/ChartVariables.h"
#include "output/FileWriter.h"
#include "output/JsonWriter.h"

namespace host {
namespace {

using nlohmann::ordered_json;
using Source = VarDataProcessor::Source;
using Variables = std::vector<const CTVariableType*>;

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
  for (const auto& [value, label] : variable.categories())
    json.push_back({{"value", value}, {"label", label}});
  return json;
}

ordered_json columnJson(const VarDataProcessor::Variable& column, const Variables& variables) {
  ordered_json ids = ordered_json::array();
  for (const CTVariableType* variable : variables)
    ids.push_back(variable->id());
  const CTVariableType* first = variables.empty() ? nullptr : variables.front();
  ordered_json json{{"name", column.name},
                    {"variables", std::move(ids)},
                    {"label", first ? first->label() : ""},
                    {"shortLabel", first ? first->shortLabel() : ""},
                    {"kind", column.column->hasTexts() ? "string" : "number"},
                    {"categorical", first && first->isCategorical()}};
  if (!first) return json;
  if (!first->formats().empty()) json["format"] = formatsJson(first->formats());
  if (auto categories = categoriesJson(*first); !categories.empty())
    json["categories"] = std::move(categories);
  return json;
}

/// The signs of numbers in the chart's texts.
ordered_json numberSigns() {
  const CmnLoc* locale = CmnLoc::shared();
  return {{"decimal", locale ? locale->decimalSeparator : "."},
          {"grouping", locale ? locale->groupingSeparator : ","}};
}

void writeSource(JsonWriter& writer, const Source& source, const ChartVariables& variables) {
  writer.beginObject();
  writer.member("name", source.name);
  writer.member("file", csvNameOf(source));
  writer.member("rows", source.rowCount());
  writer.key("columns");
  writer.beginArray();
  for (const auto& column : source.variables)
    writer.value(columnJson(column, variables.of(source, column)));
  writer.end();
  writer.end();
}

void writeSources(JsonWriter& writer, const SentChart& chart) {
  writer.key("sources");
  writer.beginArray();
  if (chart.data) {
    const ChartVariables variables(chart.visualization, *chart.data);
    for (const Source& source : chart.data->sources())
      writeSource(writer, source, variables);
  }
  writer.end();
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

void writeStatistics(JsonWriter& writer, const ZephVisualization& chart) {
  writer.key("statistics");
  writer.beginObject();
  for (const CTVariableType& variable : chart.getSourceVariables())
    if (const ZephExtensionSV* extension = variable.getExtension())
      writer.member(variable.id(), statisticJson(*extension));
  writer.end();
}

void writeIcicle(JsonWriter& writer, const ZephVisualization& chart) {
  if (!chart.icicleHorizontal) return;
  writer.member("type", "icicle");
  writer.member("icicle", {{"orientation", *chart.icicleHorizontal ? "horizontal" : "vertical"},
                           {"rows", chart.icicleRows}});
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

void writeManifest(const std::filesystem::path& chartFolder, const SentChart& chart,
                   const std::string& name) {
  FileWriter file(chartFolder / manifestName);
  JsonWriter writer(file);
  writer.beginObject();
  writer.member("name", name);
  writer.member("description", chart.description);
  writer.member("splitHeader", chart.splitHeader);
  writer.member("template", chart.chartTemplate);
  writer.member("language", chart.language);
  writer.member("numberSigns", numberSigns());
  writeIcicle(writer, chart.visualization);
  writeSources(writer, chart);
  writeStatistics(writer, chart.visualization);
  writer.end();
  file.finish();
}

} // namespace host
