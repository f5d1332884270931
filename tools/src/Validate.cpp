#include <charconv>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string_view>

#include <fmt/format.h>
#include <host/DataSet.h>
#include <host/RegularFile.h>
#include <nlohmann/json.hpp>
#include <render/Pages.h>
#include <schema/SchemaCheck.h>

#include "Charts.h"
#include "Output.h"
#include "Verbs.h"

namespace tools {
namespace {

namespace fs = std::filesystem;
using nlohmann::ordered_json;

struct ToValidate {
  fs::path document;
  bool hasData = false; ///< it is that of a chart folder
};

std::vector<ToValidate> documentsOf(const Arguments& filesOrFolders) {
  std::vector<ToValidate> documents;
  for (const std::string& argument : filesOrFolders) {
    if (!fs::is_directory(argument)) {
      documents.push_back({argument});
      continue;
    }
    for (const fs::path& chart : findCharts({argument}))
      documents.push_back({chart / "chart.xml", true});
  }
  return documents;
}

std::string read(const fs::path& file) {
  host::requireRegularFile(file);
  std::ifstream stream(file, std::ios::binary);
  std::string bytes(std::istreambuf_iterator<char>(stream), {});
  if (stream && !stream.bad()) return bytes;
  throw host::DataError(fmt::format("{}: cannot be read", file.native()));
}

/// What the checks of a chart folder's document against its data find, without a place.
std::vector<std::string> dataFindings(const fs::path& folder) {
  std::vector<std::string> found;
  try {
    for (const host::Finding& finding : render::findingsOf(folder))
      found.push_back(" " + finding.text);
  } catch (const render::RenderError& error) {
    found.push_back(fmt::format(" {}", error.what()));
  }
  return found;
}

std::vector<std::string> documentFindings(const std::filesystem::path& document,
                                          const schema::SchemaCheck& check) {
  try {
    return check.findings(read(document));
  } catch (const host::DataError& error) { // "<file>: <reason>"
    return std::vector(1, std::string(error.what()).substr(document.native().size() + 1));
  }
}

std::vector<std::string> findingsOf(const ToValidate& chart, const schema::SchemaCheck& check) {
  std::vector<std::string> found = documentFindings(chart.document, check);
  if (found.empty() && chart.hasData) found = dataFindings(chart.document.parent_path());
  return found;
}

/// {"line": 3, "column": 12, "reason": "..."}; a finding about the whole document has no
/// place.
ordered_json findingJson(std::string_view finding) {
  ordered_json json = ordered_json::object();
  for (const char* name : {"line", "column"}) {
    unsigned number = 0;
    const char* const end = finding.data() + finding.size();
    const auto [at, error] = std::from_chars(finding.data(), end, number);
    if (error != std::errc() || at == end || *at != ':') break;
    json[name] = number;
    finding.remove_prefix(static_cast<std::size_t>(at - finding.data()) + 1);
  }
  if (finding.starts_with(' ')) finding.remove_prefix(1);
  json["reason"] = finding;
  return json;
}

} // namespace

Status validate(const Arguments& filesOrFolders, bool asJson) {
  const std::vector<ToValidate> documents = documentsOf(filesOrFolders);
  const schema::SchemaCheck check;
  ordered_json json = ordered_json::array();
  std::size_t count = 0;
  for (const ToValidate& chart : documents) {
    const std::vector<std::string> found = findingsOf(chart, check);
    count += found.size();
    ordered_json list = ordered_json::array();
    for (const std::string& finding : found) {
      if (asJson)
        list.push_back(findingJson(finding));
      else
        std::cout << fmt::format("{}:{}\n", chart.document.native(), finding);
    }
    json.push_back({{"file", chart.document.native()}, {"findings", std::move(list)}});
  }
  if (asJson)
    print({{"documents", std::move(json)}});
  else
    std::cout << fmt::format("{}, {}\n", counted(documents.size(), "document"),
                             counted(count, "finding"));
  return count == 0 ? good : findings;
}

} // namespace tools
