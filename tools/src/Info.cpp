#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>

#include <fmt/format.h>
#include <host/ChartFiles.h>
#include <nlohmann/json.hpp>

#include "Charts.h"
#include "Output.h"
#include "Verbs.h"

namespace tools {
namespace {

namespace fs = std::filesystem;
using nlohmann::ordered_json;

ordered_json readJson(const fs::path& file) {
  std::ifstream stream(file);
  if (!stream) throw std::runtime_error(fmt::format("{}: cannot be read", file.native()));
  try {
    ordered_json json = ordered_json::parse(stream);
    if (json.is_object()) return json;
  } catch (const nlohmann::json::exception& error) {
    throw std::runtime_error(fmt::format("{}: {}", file.native(), error.what()));
  }
  throw std::runtime_error(fmt::format("{}: not an object", file.native()));
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
ordered_json notesIn(const fs::path& folder) {
  const fs::path file = folder / "chart.vg.json";
  if (!fs::exists(file)) return ordered_json::array();
  const ordered_json notes = readJson(file).value("/usermeta/notes"_json_pointer, ordered_json());
  return notes.is_array() ? notes : ordered_json::array();
}

/// The manifest without what it tells of single files and nodes, and what only the folder
/// tells.
ordered_json infoOf(const fs::path& folder) {
  ordered_json info{{"folder", folder.native()}};
  const ordered_json manifest = readJson(folder / host::manifestName);
  for (const auto& [key, value] : manifest.items())
    if (key != "files" && key != "calls") info[key] = value;
  info["notes"] = notesIn(folder);
  info["files"] = sizesIn(folder);
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
  for (const fs::path& chart : findCharts(folders)) {
    ordered_json told = infoOf(chart);
    try {
      if (!asJson) printInfo(told);
    } catch (const nlohmann::json::exception& error) {
      throw std::runtime_error(
          fmt::format("{}: {}", (chart / host::manifestName).native(), error.what()));
    }
    if (asJson) json.push_back(std::move(told));
  }
  if (asJson) print({{"charts", std::move(json)}});
  return good;
}

} // namespace tools
