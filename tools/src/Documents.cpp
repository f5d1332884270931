#include "Documents.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <stdexcept>
#include <utility>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <host/ChartFiles.h>
#include <nlohmann/json.hpp>
#include <render/Pages.h>
#include <unistd.h>

#include "Charts.h"
#include "Status.h"

namespace tools {
namespace {

namespace fs = std::filesystem;

constexpr const char* documentName = "chart.xml";

/// Where a file of a new chart folder comes from, by its name there.
using Parts = std::vector<std::pair<std::string, fs::path>>;

bool isOfFolder(const fs::path& document, const DocumentOptions& options) {
  return document.filename() == documentName && options.data.empty() && options.output.empty();
}

/// The file given for a source: that of its name, or the only one for the only source.
fs::path givenFor(const std::string& name, bool isOnly, const DocumentOptions& options) {
  for (const std::string& file : options.data)
    if (fs::path(file).filename() == name) return file;
  return isOnly && options.data.size() == 1 ? fs::path(options.data.front()) : fs::path();
}

std::vector<std::string> dataFilesOf(const fs::path& document) {
  try {
    return render::dataFilesOf(document);
  } catch (const render::RenderError& error) {
    throw ChartError(error.what());
  }
}

Parts partsOf(const fs::path& document, const DocumentOptions& options) {
  Parts parts{{documentName, document}};
  const std::vector<std::string> names = dataFilesOf(document);
  for (const std::string& name : names) {
    fs::path file = givenFor(name, names.size() == 1, options);
    if (file.empty()) file = document.parent_path() / name;
    if (!fs::exists(file))
      throw UsageError(fmt::format("{}: its data {} are neither beside it nor given with --data",
                                   document.native(), name));
    parts.emplace_back(name, file);
  }
  if (document.filename() != documentName || !options.data.empty()) return parts;
  for (const char* name : {"datapackage.json", host::callsName, host::manifestName})
    if (const fs::path file = document.parent_path() / name; fs::exists(file))
      parts.emplace_back(name, file);
  return parts;
}

/// Each file that is given belongs to a document.
void checkUse(const std::vector<Parts>& documents, const DocumentOptions& options) {
  std::vector<std::string> names;
  for (const Parts& parts : documents)
    for (const auto& [name, file] : parts)
      if (name.ends_with(".csv")) names.push_back(name);
  for (const std::string& file : options.data) {
    const bool isUsed = std::ranges::any_of(documents, [&](const Parts& parts) {
      return std::ranges::any_of(parts, [&](const auto& part) { return part.second == file; });
    });
    if (!isUsed)
      throw UsageError(
          fmt::format("--data {}: no document reads it; their data are {}", file,
                      names.empty() ? "none" : fmt::to_string(fmt::join(names, ", "))));
  }
}

/// Named as the document, or as the folder of one that is called chart.xml.
fs::path folderFor(const fs::path& document, const DocumentOptions& options) {
  const fs::path beside = fs::absolute(document).parent_path();
  const fs::path name = document.filename() == documentName ? beside.filename() : document.stem();
  return named(options.output.empty() ? document.parent_path() : fs::path(options.output)) / name;
}

void copyWhole(const fs::path& from, const fs::path& to) {
  if (fs::exists(to) && fs::equivalent(from, to)) return;
  const fs::path aside = fmt::format("{}.{}.tmp", to.native(), getpid());
  fs::copy_file(from, aside, fs::copy_options::overwrite_existing);
  fs::rename(aside, to);
}

void writeText(const fs::path& file, std::string_view text) {
  std::ofstream stream(file, std::ios::binary);
  stream << text;
  if (!stream.flush())
    throw std::runtime_error(fmt::format("{}: cannot be written", file.native()));
}

/// A manifest of its own tells nothing but the name; one that was copied tells of more files
/// than were.
void listParts(const fs::path& folder, const Parts& parts) {
  if (parts.back().first != host::manifestName)
    writeText(folder / host::manifestName,
              nlohmann::json{{"name", folder.filename().native()}}.dump());
  host::ChartFiles listed;
  for (const std::string& name : host::filesIn(folder))
    listed.files.emplace(name, host::hashOf(folder / name));
  host::writeChartFiles(folder, listed);
}

void makeFolder(const fs::path& folder, const Parts& parts) {
  if (fs::exists(folder) && !isChart(folder) && !fs::is_empty(folder))
    throw UsageError(fmt::format("{}: it is there and holds no chart", folder.native()));
  fs::create_directories(folder);
  for (const auto& [name, file] : parts)
    copyWhole(file, folder / name);
  listParts(folder, parts);
}

/// Its document and data, or nothing for an argument that names chart folders.
struct Argument {
  std::string text;
  Parts parts{};
  fs::path folder{};
};

} // namespace

std::vector<fs::path> chartsToDraw(const std::vector<std::string>& arguments,
                                   const DocumentOptions& options) {
  std::vector<Argument> read;
  std::vector<Parts> documents;
  std::set<fs::path> made;
  for (const std::string& text : arguments) {
    Argument& argument = read.emplace_back(text);
    if (fs::is_directory(text) || isOfFolder(text, options)) continue;
    argument.parts = documents.emplace_back(partsOf(text, options));
    argument.folder = folderFor(text, options);
    if (!made.insert(argument.folder).second)
      throw UsageError(
          fmt::format("{}: two documents would be drawn there", argument.folder.native()));
  }
  if (documents.empty() && !options.output.empty())
    throw UsageError("--output: only documents are drawn there, and none is named");
  checkUse(documents, options);

  std::vector<fs::path> charts;
  for (const auto& [text, parts, folder] : read) {
    if (!parts.empty()) {
      makeFolder(folder, parts);
      charts.push_back(folder);
      continue;
    }
    const fs::path place = fs::is_directory(text) ? fs::path(text) : fs::path(text).parent_path();
    std::ranges::copy(findCharts({place.empty() ? "." : place.native()}),
                      std::back_inserter(charts));
  }
  return charts;
}

} // namespace tools
