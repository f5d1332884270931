#include <algorithm>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <host/ChartFiles.h>
#include <host/DataSet.h>
#include <host/JsonFile.h>
#include <host/RegularFile.h>
#include <nlohmann/json.hpp>

#include "Charts.h"
#include "Output.h"
#include "Verbs.h"

namespace tools {
namespace {

namespace fs = std::filesystem;
using nlohmann::ordered_json;

/// What keeps a chart from being told whole.
using Troubles = std::vector<std::string>;

ordered_json readObject(const fs::path& file, Troubles& troubles) {
  try {
    ordered_json json = host::readOrderedJson(file);
    if (json.is_object()) return json;
    troubles.push_back(fmt::format("{}: not an object", file.native()));
  } catch (const host::DataError& error) {
    troubles.emplace_back(error.what());
  }
  return ordered_json::object();
}

void findDocument(const fs::path& folder, Troubles& troubles) {
  try {
    host::requireRegularFile(folder / "chart.xml");
  } catch (const host::DataError& error) {
    troubles.emplace_back(error.what());
  }
}

ordered_json sizesIn(const fs::path& folder) {
  ordered_json sizes = ordered_json::object();
  std::vector<std::string> names = host::filesIn(folder);
  names.emplace_back(host::manifestName);
  std::ranges::sort(names);
  for (const std::string& name : names)
    if (fs::is_regular_file(folder / name)) sizes[name] = fs::file_size(folder / name);
  return sizes;
}

/// What the chart asks for and is not drawn.
ordered_json notesIn(const fs::path& folder, Troubles& troubles) {
  const fs::path file = folder / "chart.vg.json";
  if (!fs::exists(file)) return ordered_json::array();
  const ordered_json notes =
      readObject(file, troubles).value("/usermeta/notes"_json_pointer, ordered_json());
  return notes.is_array() ? notes : ordered_json::array();
}

/// The manifest without what it tells of single files and nodes, and what only the folder
/// tells.
ordered_json infoOf(const fs::path& folder, Troubles& troubles) {
  ordered_json info{{"folder", folder.native()}};
  findDocument(folder, troubles);
  const ordered_json manifest = readObject(folder / host::manifestName, troubles);
  for (const auto& [key, value] : manifest.items())
    if (key != "files" && key != "calls") info[key] = value;
  info["notes"] = notesIn(folder, troubles);
  info["files"] = sizesIn(folder);
  if (!troubles.empty()) info["troubles"] = troubles;
  return info;
}

std::string textOf(const ordered_json& json) {
  return json.is_string() ? json.get<std::string>() : json.dump();
}

void printLine(std::string_view name, std::string_view text) {
  if (!text.empty()) std::cout << fmt::format("  {:<12} {}\n", name, text);
}

void printList(std::string_view name, const ordered_json& list) {
  for (const auto& text : list)
    printLine(name, textOf(text));
}

void printSource(const ordered_json& source) {
  const ordered_json columns = source.value("columns", ordered_json::array());
  printLine("source", fmt::format("{}: {}, {}", source.value("name", ""),
                                  counted(source.value("rows", std::size_t{0}), "row"),
                                  counted(columns.size(), "column")));
  for (const auto& column : columns) {
    const std::size_t labels = column.value("categories", ordered_json::array()).size();
    std::cout << fmt::format("    {:<10} {:<7}{}  {}\n", column.value("name", ""),
                             column.value("kind", ""),
                             column.value("categorical", false) ? " categorical" : "            ",
                             column.value("label", ""));
    if (labels > 0) std::cout << fmt::format("    {:<10} {}\n", "", counted(labels, "value label"));
  }
}

void printInfo(const ordered_json& info) {
  std::cout << info.value("folder", "") << '\n';
  for (const char* name : {"name", "description", "splitHeader", "template", "type", "language"})
    if (info.contains(name)) printLine(name, textOf(info[name]));
  for (const auto& source : info.value("sources", ordered_json::array()))
    printSource(source);
  printList("note", info["notes"]);
  printList("error", info.value("errors", ordered_json::array()));
  for (const auto& [name, size] : info["files"].items())
    printLine("file", fmt::format("{:<16} {:>10} bytes", name, size.get<std::uintmax_t>()));
  const ordered_json versions = info.value("versions", ordered_json::object());
  for (const auto& [name, version] : versions.items())
    printLine("made by", fmt::format("{} {}", name, textOf(version)));
}

} // namespace

Status info(const Arguments& folders, bool asJson) {
  ordered_json json = ordered_json::array();
  Status status = good;
  for (const fs::path& chart : findCharts(folders)) {
    Troubles troubles;
    ordered_json told = infoOf(chart, troubles);
    try {
      if (!asJson) printInfo(told);
    } catch (const nlohmann::json::exception& error) {
      troubles.push_back(
          fmt::format("{}: {}", (chart / host::manifestName).native(), host::reasonOf(error)));
    }
    if (!troubles.empty()) status = findings;
    for (const std::string& trouble : troubles)
      if (!asJson) std::cerr << fmt::format("chartxml: {}\n", trouble);
    if (asJson) json.push_back(std::move(told));
  }
  if (asJson) print({{"charts", std::move(json)}});
  return status;
}

} // namespace tools
