#include "read/ChartFolder.h"

#include <fstream>

#include <fmt/format.h>
#include <host/Locale.h>
#include <nlohmann/json.hpp>
#include <render/Pages.h>

namespace render {
namespace {

std::map<std::string, Table, std::less<>> readTables(const std::filesystem::path& folder,
                                                     const Node& graph) {
  std::map<std::string, Table, std::less<>> tables;
  for (const Node& node : graph.children) {
    if (node.kind != "source" || node.id().empty()) continue;
    const std::filesystem::path name = std::string(node.id()) + ".csv";
    if (name != name.filename())
      throw RenderError(fmt::format("{}: the source id \"{}\" names no file",
                                    (folder / "chart.xml").native(), node.id()));
    if (exists(folder / name))
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
  std::ifstream stream(file);
  if (!stream) return manifest;
  try {
    const nlohmann::json json = nlohmann::json::parse(stream, skipColumns);
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
  } catch (const nlohmann::json::exception& e) {
    throw RenderError(fmt::format("{}: {}", file.native(), e.what()));
  }
  return manifest;
}

ChartFolder ChartFolder::read(const std::filesystem::path& folder) {
  Document document = Document::read(folder / "chart.xml");
  auto tables = readTables(folder, document.graph());
  return {Manifest::read(folder), std::move(document), std::move(tables), folder};
}

} // namespace render
