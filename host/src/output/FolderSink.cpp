#include <host/ChartSink.h>

#include <map>
#include <optional>
#include <source_location>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <host/ChartError.h>
#include <host/ChartFiles.h>
#include <host/DataSet.h>
#include <host/ErrorLog.h>
#include <host/Version.h>
#include <nlohmann/json.hpp>

#include "data/JsonFile.h"
#include "output/CallsFile.h"
#include "output/CsvFile.h"
#include "output/DataPackage.h"
#include "output/Failure.h"
#include "output/FileWriter.h"
#include "output/JsonWriter.h"
#include "output/Manifest.h"
#include "output/OutputFolder.h"

namespace host {
namespace {

namespace fs = std::filesystem;

void writeText(const fs::path& path, std::string_view text) {
  FileWriter file(path);
  file.write(text);
  file.finish();
}

void writeSources(const fs::path& folder, const SentChart& chart) {
  if (chart.data == nullptr) return;
  for (const auto& source : chart.data->sources())
    if (const std::string name = csvNameOf(source); !name.empty()) writeCsv(folder / name, source);
}

/// The pages read the manifest, and the manifest knows their hashes: its end comes last.
void writeManifestEnd(const fs::path& folder, const std::optional<std::string>& failure,
                      const std::vector<Finding>& findings,
                      const std::map<std::string, std::string>& versions) {
  ChartFiles files{.errors = {}, .versions = versions, .files = {}, .findings = findings};
  if (failure) files.errors.push_back(*failure);
  files.versions.emplace("library", libraryVersion());
  for (const std::string& name : filesIn(folder))
    files.files.emplace(name, hashOf(folder / name));
  writeChartFiles(folder, files);
}

/// Runs one of the page writers; what went wrong, if anything did. The folder is
/// left out of the message: a chart's is not where it will be found.
std::optional<std::string> failureOf(const std::function<void(const fs::path&)>& write,
                                     const fs::path& folder) {
  std::string failure;
  try {
    if (write) write(folder);
    return std::nullopt;
  } catch (const KorvaGoToCaller&) {
    throw;
  } catch (const ChartException& exception) {
    failure = exception.what();
  } catch (const std::exception& exception) {
    failure = exception.what();
  } catch (...) {
    failure = "unknown exception";
  }
  const std::string place = folder.native() + "/";
  for (auto at = failure.find(place); at != std::string::npos; at = failure.find(place, at))
    failure.erase(at, place.size());
  return failure;
}

void reportFinding(const Finding& finding, const std::string& place) {
  reportError({.message = fmt::format("{}: {}", place, finding.text),
               .source = finding.where.file_name(),
               .line = finding.where.line()});
}

void reportGallery(const std::optional<std::string>& failure, const fs::path& output) {
  if (failure)
    reportError(fmt::format("the gallery of {} was not written: {}", output.native(), *failure));
}

nlohmann::ordered_json readErrorList(const fs::path& file) {
  std::error_code error;
  if (!fs::exists(file, error)) return nlohmann::ordered_json::array();
  std::string reason = file.native() + ": not a list";
  try {
    auto list = readJson(file);
    if (list.is_array()) return list;
  } catch (const DataError& dataError) {
    reason = dataError.what();
  }
  const auto here = std::source_location::current();
  throw ChartException(reason, here.file_name(), here.line());
}

} // namespace

void FolderSink::send(const SentChart& chart) {
  const fs::path output = outputFolder();
  const std::string name = chart.name.empty() ? "chart" : chart.name;
  Draft draft(output);
  writeText(draft.path() / "chart.xml", chart.xml);
  writeSources(draft.path(), chart);
  writeDataPackage(draft.path(), chart, name);
  writeManifest(draft.path(), chart, name);
  writeCalls(draft.path(), chart.calls);
  std::vector<Finding> findings;
  const auto pageFailure = failureOf(
      [&](const fs::path& chartFolder) {
        if (pages_.writeChart) findings = pages_.writeChart(chartFolder);
      },
      draft.path());
  writeManifestEnd(draft.path(), pageFailure, findings, pages_.versions);

  std::string folder;
  std::optional<std::string> galleryFailure;
  {
    const OutputTurn turn(output);
    folder = draft.publish(name, turn);
    galleryFailure = failureOf(pages_.writeGallery, output);
  }
  // Whoever takes the reports may send a chart of its own, which needs the turn.
  const std::string place = (output / folder).native();
  for (const Finding& finding : findings)
    reportFinding(finding, place);
  if (pageFailure)
    reportError(fmt::format("the page of {} was not written: {}", place, *pageFailure));
  reportGallery(galleryFailure, output);
}

void FolderSink::noteError(const std::string& text) {
  const fs::path output = outputFolder();
  const fs::path file = output / "errors.json";
  Draft draft(output);
  std::optional<std::string> galleryFailure;
  {
    const OutputTurn turn(output);
    auto list = readErrorList(file);
    list.push_back(text);
    writeJson(draft.path() / "errors.json", list);
    std::error_code error;
    fs::rename(draft.path() / "errors.json", file, error);
    if (error) fail("write", file, error);
    galleryFailure = failureOf(pages_.writeGallery, output);
  }
  reportGallery(galleryFailure, output);
}

} // namespace host
