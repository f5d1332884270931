#include "read/ChartFolder.h"

#include <fmt/format.h>
#include <host/DataSet.h>
#include <host/JsonFile.h>
#include <host/Locale.h>
#include <nlohmann/json.hpp>
#include <render/Pages.h>

#include "read/Sources.h"

namespace render {
namespace {

std::map<std::string, Table, std::less<>> readTables(const std::filesystem::path& folder,
                                                     const Node& graph) {
  std::map<std::string, Table, std::less<>> tables;
  for (const Node& node : graph.children) {
    if (node.kind != "source" || node.id().empty()) continue;
    const std::string name = csvNameIn(folder / "chart.xml", node.id());
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
      if (source.is_object() && source.contains("rows"))
        manifest.rowsOfFile.emplace(source.value("file", ""), source["rows"].get<std::size_t>());
  } catch (const host::DataError& e) {
    throw RenderError(e.what());
  } catch (const nlohmann::json::exception& e) {
    throw RenderError(fmt::format("{}: {}", file.native(), host::reasonOf(e)));
  }
  return manifest;
}

ChartFolder ChartFolder::read(const std::filesystem::path& folder) {
  Document document = Document::read(folder / "chart.xml");
  auto tables = readTables(folder, document.graph());
  return {Manifest::read(folder), std::move(document), std::move(tables), folder};
}

} // namespace render
