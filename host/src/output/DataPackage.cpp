#include "output/DataPackage.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <set>
#include <string_view>
#include <system_error>
#include <utility>

#include <nlohmann/json.hpp>

#include "data/CellText.h"
#include "data/DisplayFormat.h"
#include "output/ChartVariables.h"
#include "output/DisplayFormatName.h"
#include "output/FileWriter.h"
#include "output/JsonWriter.h"
#include "output/Manifest.h"
#include "output/OutputFolder.h"

namespace host {
namespace {

using nlohmann::ordered_json;
using Source = VarDataProcessor::Source;

constexpr const char* timeUnit = "in seconds, those of a date since 14 October 1582";

bool showsTime(const CTVariableType& variable) {
  return !variable.formats().empty() && variable.formats().back().kind == "dateTimeFormat";
}

bool fits(std::string_view text) { return text.size() <= longestText; }

/// A number without decimals is written without them.
ordered_json numberJson(double number) {
  constexpr double exact = 9007199254740992.0; // integers up to here have a double each
  if (number == std::trunc(number) && std::abs(number) <= exact)
    return static_cast<std::int64_t>(number);
  return number;
}

/// A value as the column holds it; null for one that no cell of it can have.
ordered_json categoryValue(std::string_view text, bool isText) {
  if (isText) return text.substr(0, text.find_last_not_of(' ') + 1);
  double number = 0;
  return readNumber(text, number) == std::errc() ? numberJson(number) : ordered_json();
}

/// A value has one label, the first.
ordered_json categoriesJson(const CTVariableType& variable, bool isText) {
  ordered_json json = ordered_json::array();
  std::set<ordered_json> known;
  for (const auto& [text, label] : variable.categories()) {
    ordered_json value = categoryValue(text, isText);
    if (value.is_null() || !fits(text) || !fits(label) || !known.insert(value).second) continue;
    json.push_back({{"value", std::move(value)}, {"label", label}});
  }
  return json;
}

ordered_json fieldJson(const VarDataProcessor::Variable& column, const CTVariableType* variable) {
  const bool isText = column.column->hasTexts();
  ordered_json field{{"name", column.name}};
  if (variable && !variable->label().empty() && fits(variable->label()))
    field["title"] = variable->label();
  field["type"] = isText ? "string" : "number";
  if (!variable) return field;
  const std::string format = displayFormatName(variable->formats());
  if (!isText && !format.empty()) field["chartxml:format"] = format;
  if (!isText && showsTime(*variable)) field["description"] = timeUnit;
  if (auto categories = categoriesJson(*variable, isText); !categories.empty())
    field["categories"] = std::move(categories);
  return field;
}

void writeSchema(JsonWriter& writer, const Source& source, const ChartVariables& variables) {
  writer.key("schema");
  writer.beginObject();
  writer.member("missingValues", {""});
  writer.key("fields");
  writer.beginArray();
  for (const auto& column : source.variables) {
    const auto readers = variables.of(source, column);
    writer.value(fieldJson(column, readers.empty() ? nullptr : readers.front()));
  }
  writer.end();
  writer.end();
}

void writeResource(JsonWriter& writer, const Source& source, const ChartVariables& variables) {
  writer.beginObject();
  writer.member("name", source.name);
  writer.member("path", csvNameOf(source));
  writer.member("format", "csv");
  writer.member("mediatype", "text/csv");
  writer.member("encoding", "utf-8");
  writeSchema(writer, source, variables);
  writer.end();
}

} // namespace

void writeDataPackage(const std::filesystem::path& chartFolder, const SentChart& chart,
                      const std::string& name) {
  const auto hasColumns = [](const Source& source) { return !source.variables.empty(); };
  if (!chart.data || std::ranges::none_of(chart.data->sources(), hasColumns)) return;
  const ChartVariables variables(chart.visualization, *chart.data);
  FileWriter file(chartFolder / "datapackage.json");
  JsonWriter writer(file);
  writer.beginObject();
  writer.member("name", folderNameOf(name));
  writer.member("title", name);
  writer.member("description", chart.description);
  writer.key("resources");
  writer.beginArray();
  for (const Source& source : chart.data->sources())
    if (hasColumns(source)) writeResource(writer, source, variables);
  writer.end();
  writer.end();
  file.finish();
}

} // namespace host
