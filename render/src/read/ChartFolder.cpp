#include "read/ChartFolder.h"

#include <algorithm>
#include <array>

#include <fmt/format.h>
#include <host/DataSet.h>
#include <host/JsonFile.h>
#include <host/Locale.h>
#include <nlohmann/json.hpp>
#include <render/Pages.h>

namespace render {
namespace {

/// Columns of these names are counted while the chart is drawn.
constexpr std::array<std::string_view, 3> countedColumns{"countname", "percentname", "casenum"};

bool isRead(std::string_view source, const Node& graph) {
  return std::ranges::any_of(graph.children, [source](const Node& node) {
    return node.kind == "variable" && node.attribute("source") == source && hasOwnColumn(node);
  });
}

std::map<std::string, Table, std::less<>> readTables(const std::filesystem::path& folder,
                                                     const Node& graph) {
  std::map<std::string, Table, std::less<>> tables;
  for (const Node& node : graph.children) {
    if (node.kind != "source" || node.id().empty()) continue;
    const std::filesystem::path name = csvNameOf(node.id());
    if (name != name.filename())
      throw RenderError(fmt::format("{}: the source id \"{}\" names no file",
                                    (folder / "chart.xml").native(), node.id()));
    if (exists(folder / name) || isRead(node.id(), graph))
      tables.try_emplace(std::string(node.id()), Table::read(folder / name));
  }
  return tables;
}

/// What a manifest tells of each column would take much memory, and pages need none of it.
bool skipColumns(int /*depth*/, nlohmann::json::parse_event_t event, nlohmann::json& parsed) {
  return event != nlohmann::json::parse_event_t::key || parsed != "columns";
}

} // namespace

Manifest Manifest::read(const std::filesystem::path& chartFolder) {
  Manifest manifest;
  manifest.name = chartFolder.filename().native();
  const std::filesystem::path file = chartFolder / "manifest.json";
  if (!exists(file)) return manifest;
  try {
    const nlohmann::json json = host::readJson(file, skipColumns);
    if (!json.is_object()) throw RenderError(fmt::format("{}: not an object", file.native()));
    const std::string name = json.value("name", "");
    if (!name.empty()) manifest.name = name;
    manifest.description = json.value("description", "");
    manifest.splitHeader = json.value("splitHeader", "");
    manifest.language = json.value("language", manifest.language);
    manifest.chartTemplate = json.value("template", "");
    if (json.contains("icicle"))
      manifest.icicle = {.lies = json["icicle"].value("orientation", "") == "horizontal",
                         .bars = json["icicle"].value("rows", std::size_t{0})};
    const host::NumberSymbols& usual = host::numberSymbols(manifest.language);
    const nlohmann::json signs = json.value("numberSigns", nlohmann::json::object());
    manifest.signs = {.decimal = signs.value("decimal", usual.decimal),
                      .grouping = signs.value("grouping", usual.grouping)};
    for (const nlohmann::json& source : json.value("sources", nlohmann::json::array()))
      if (source.contains("rows"))
        manifest.rowsOfFile.emplace(source.value("file", ""), source["rows"].get<std::size_t>());
  } catch (const host::DataError& e) {
    throw RenderError(e.what());
  } catch (const nlohmann::json::exception& e) {
    throw RenderError(fmt::format("{}: {}", file.native(), host::reasonOf(e)));
  }
  return manifest;
}

bool hasOwnColumn(const Node& variable) {
  const bool isCounted =
      std::ranges::find(countedColumns, variable.attribute("sourceName")) != countedColumns.end();
  return !isCounted && variable.attribute("value").empty() &&
         variable.attribute("expression").empty();
}

std::string csvNameOf(std::string_view source) { return fmt::format("{}.csv", source); }

ChartFolder ChartFolder::read(const std::filesystem::path& folder) {
  Document document = Document::read(folder / "chart.xml");
  auto tables = readTables(folder, document.graph());
  return {Manifest::read(folder), std::move(document), std::move(tables), folder};
}

} // namespace render
