#include <algorithm>
#include <filesystem>
#include <iostream>
#include <optional>

#include <fmt/format.h>
#include <host/ChartFiles.h>
#include <host/DataSet.h>
#include <nlohmann/json.hpp>

#include "Charts.h"
#include "Output.h"
#include "Verbs.h"

namespace tools {
namespace {

namespace fs = std::filesystem;
using nlohmann::ordered_json;

struct Finding {
  const char* is; ///< "missing", "changed", "extra" or "damaged"
  std::string file;
  std::string why{};
};

/// A manifest may come from anywhere; what it names outside of its folder is not read.
bool leadsOut(const fs::path& name) {
  return name.is_absolute() || std::ranges::find(name, "..") != name.end();
}

std::optional<Finding> compare(const fs::path& folder, const std::string& name,
                               const std::string& hash) {
  const fs::path file = folder / name;
  if (leadsOut(name) || !fs::is_regular_file(file)) return Finding{"missing", name};
  if (host::hashOf(file) != hash) return Finding{"changed", name};
  return std::nullopt;
}

std::vector<Finding> findingsIn(const fs::path& folder) {
  if (!fs::exists(folder / host::manifestName)) return {{"missing", host::manifestName}};
  host::ChartFiles listed;
  try {
    listed = host::readChartFiles(folder);
  } catch (const host::DataError& error) {
    const std::string why = error.what(); // "<file>:<line>:<column>: <reason>"
    const std::size_t place = (folder / host::manifestName).native().size() + 1;
    return {{"damaged", host::manifestName, why.substr(std::min(place, why.size()))}};
  }
  if (listed.files.empty()) return {{"damaged", host::manifestName, "it lists no files"}};

  std::vector<Finding> found;
  for (const auto& [name, hash] : listed.files)
    if (auto finding = compare(folder, name, hash)) found.push_back(std::move(*finding));
  for (std::string& name : host::filesIn(folder))
    if (!listed.files.contains(name)) found.push_back({"extra", std::move(name)});
  return found;
}

ordered_json findingJson(const Finding& finding) {
  ordered_json json{{"file", finding.file}, {"is", finding.is}};
  if (!finding.why.empty()) json["why"] = finding.why;
  return json;
}

std::string line(const fs::path& folder, const Finding& finding) {
  return fmt::format("{}: {}{}{}\n", (folder / finding.file).native(), finding.is,
                     finding.why.empty() ? "" : ": ", finding.why);
}

} // namespace

Status verify(const Arguments& folders, bool asJson) {
  ordered_json json = ordered_json::array();
  const std::vector<fs::path> charts = findCharts(folders);
  std::size_t count = 0;
  for (const fs::path& chart : charts) {
    const std::vector<Finding> found = findingsIn(chart);
    count += found.size();
    ordered_json list = ordered_json::array();
    for (const Finding& finding : found) {
      if (asJson)
        list.push_back(findingJson(finding));
      else
        std::cout << line(chart, finding);
    }
    json.push_back({{"folder", chart.native()}, {"findings", std::move(list)}});
  }
  if (asJson)
    print({{"charts", std::move(json)}});
  else
    std::cout << fmt::format("{}, {}\n", counted(charts.size(), "chart"),
                             counted(count, "finding"));
  return count == 0 ? good : findings;
}

} // namespace tools
