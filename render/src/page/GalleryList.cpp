#include "page/GalleryList.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>
#include <render/Pages.h>

#include "page/Files.h"
#include "page/Html.h"
#include "read/ChartFolder.h"
#include "read/Titles.h"
#include "text/Json.h"

namespace render {
namespace {

namespace fs = std::filesystem;

// One call a line, its first argument a JSON text: the chart's folder, or the error.
constexpr std::string_view chartCall = "chartxmlGallery.chart(";
constexpr std::string_view sourceCall = "chartxmlGallery.source(";
constexpr std::string_view errorCall = "chartxmlGallery.error(";
constexpr std::string_view lineEnd = ");\n";

std::string line(std::string_view call, const Json& arguments) {
  const std::string json = arguments.dump(-1, ' ', false, Json::error_handler_t::replace);
  return fmt::format("{}{}{}", call, escapeScript(json.substr(1, json.size() - 2)), lineEnd);
}

/// A chart whose document is lost has its place, which says so.
bool isChart(const fs::path& folder) {
  return !folder.filename().native().starts_with('.') &&
         (exists(folder / "chart.xml") || exists(folder / "manifest.json"));
}

std::optional<std::string> firstOf(const fs::path& folder,
                                   std::initializer_list<const char*> names) {
  for (const char* name : names)
    if (exists(folder / name)) return name;
  return std::nullopt;
}

/// The files of the folder of sources, by their names without the extension.
using Sources = std::map<std::string, fs::path>;

Sources sourcesIn(const fs::path& outputFolder) {
  Sources sources;
  const fs::path folder = outputFolder / "procedures";
  if (!is_directory(folder)) return sources;
  for (const auto& entry : fs::directory_iterator(folder)) {
    if (!entry.is_regular_file()) continue;
    const auto [known, isNew] = sources.try_emplace(entry.path().stem(), entry.path());
    if (!isNew) known->second = std::min(known->second, entry.path());
  }
  return sources;
}

/// The line of a source; empty for one that is too long to show and only linked.
std::string sourceLine(const fs::path& file) {
  constexpr std::uintmax_t longest = 200'000;
  if (file_size(file) > longest) return {};
  return line(sourceCall, Json::array({file.filename().native(), readFile(file)}));
}

/// What the gallery shows of a chart.
Json cardOf(const fs::path& folder) {
  Json chart{{"name", folder.filename().native()}};
  try {
    const Manifest manifest = Manifest::read(folder);
    chart = {{"name", manifest.name},
             {"description", manifest.description},
             {"language", manifest.language}};
    const Document document = Document::read(folder / "chart.xml");
    for (const auto& [key, place] :
         {std::pair("title", TextPlace::title), std::pair("subtitle", TextPlace::subtitle)})
      if (const auto texts = textsAt(place, document); !texts.empty())
        chart[key] = fmt::to_string(fmt::join(texts, " "));
  } catch (const RenderError& e) {
    chart["trouble"] = reasonWithin(folder, e);
  }
  if (const auto picture = firstOf(folder, {"chart.svg", "chart.png"})) chart["picture"] = *picture;
  return chart;
}

/// The line of a chart, after that of its source when it is not among the known ones.
std::string chartLines(const fs::path& folder, const Sources& sources,
                       std::set<std::string>& knownSources) {
  Json chart = cardOf(folder);
  std::string lines;
  if (const auto source = sources.find(chart["name"].get<std::string>()); source != sources.end()) {
    const std::string name = source->second.filename();
    chart["source"] = name;
    if (knownSources.insert(name).second) lines = sourceLine(source->second);
  }
  return lines + line(chartCall, Json::array({folder.filename().native(), std::move(chart)}));
}

/// The entries of errors.json: texts, or objects that hold one as "message".
std::vector<std::string> errorTexts(const fs::path& outputFolder) {
  const fs::path file = outputFolder / "errors.json";
  if (!exists(file)) return {};
  const auto json = Json::parse(readFile(file), nullptr, false);
  if (!json.is_array()) return {"errors.json cannot be read"};
  std::vector<std::string> texts;
  for (const Json& entry : json) {
    const Json text = entry.is_object() ? entry.value("message", Json()) : entry;
    texts.push_back(text.is_string() ? text.get<std::string>()
                                     : entry.dump(-1, ' ', false, Json::error_handler_t::replace));
  }
  return texts;
}

/// The list as it stands.
struct Listed {
  std::set<std::string> charts, sources;
  std::size_t errors = 0;
};

/// The first argument of a call, a JSON text; nothing when the line is damaged.
std::optional<std::string> firstArgument(std::string_view line, std::string_view call) {
  if (!line.starts_with(call)) return std::nullopt;
  std::size_t end = call.size() + 1;
  while (end < line.size() && line[end] != '"')
    end += line[end] == '\\' ? 2 : 1;
  const std::string_view text = line.substr(call.size(), end + 1 - call.size());
  const auto name = Json::parse(text, nullptr, false);
  return name.is_string() ? std::optional(name.get<std::string>()) : std::nullopt;
}

/// Nothing when the list is not there or a line of it was not written to its end.
std::optional<Listed> readList(const fs::path& file) {
  if (!exists(file)) return std::nullopt;
  const std::string list = readFile(file);
  if (!list.empty() && !list.ends_with(lineEnd)) return std::nullopt;
  Listed listed;
  for (std::string_view rest = list; !rest.empty();) {
    const std::string_view next = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(next.size() + 1);
    const bool isError = next.starts_with(errorCall);
    const bool isSource = next.starts_with(sourceCall);
    if (isError) ++listed.errors;
    if (isError) continue;
    auto name = firstArgument(next, isSource ? sourceCall : chartCall);
    if (!name) return std::nullopt;
    (isSource ? listed.sources : listed.charts).insert(std::move(*name));
  }
  return listed;
}

/// The names of the charts: all that are in the list and still there, and the new ones.
std::vector<std::string> chartNames(const fs::path& outputFolder, const Listed& listed) {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(outputFolder)) {
    std::string name = entry.path().filename();
    if (listed.charts.contains(name) || isChart(entry.path())) names.push_back(std::move(name));
  }
  std::ranges::sort(names);
  return names;
}

void append(const fs::path& file, std::string_view lines) {
  errno = 0;
  std::ofstream stream(file, std::ios::binary | std::ios::app);
  stream.write(lines.data(), static_cast<std::streamsize>(lines.size()));
  stream.close();
  if (!stream)
    throw RenderError(fmt::format("{}: {}", file.native(),
                                  errno != 0 ? std::strerror(errno) : "cannot be written"));
}

} // namespace

void writeGalleryList(const fs::path& outputFolder) {
  std::string list;
  const Sources sources = sourcesIn(outputFolder);
  std::set<std::string> known;
  for (const std::string& name : chartNames(outputFolder, {}))
    list += chartLines(outputFolder / name, sources, known);
  for (const std::string& error : errorTexts(outputFolder))
    list += line(errorCall, Json::array({error}));
  writeFile(outputFolder / galleryListName, list);
}

void updateGalleryList(const fs::path& outputFolder) {
  std::optional<Listed> listed = readList(outputFolder / galleryListName);
  if (!listed) return writeGalleryList(outputFolder);
  const std::vector<std::string> names = chartNames(outputFolder, *listed);
  std::vector<std::string> added;
  std::ranges::set_difference(names, listed->charts, std::back_inserter(added));
  const std::vector<std::string> errors = errorTexts(outputFolder);
  const bool isStale =
      names.size() - added.size() < listed->charts.size() || errors.size() < listed->errors;
  if (isStale) return writeGalleryList(outputFolder);

  std::string lines;
  const Sources sources = sourcesIn(outputFolder);
  for (const std::string& name : added)
    lines += chartLines(outputFolder / name, sources, listed->sources);
  for (std::size_t i = listed->errors; i < errors.size(); ++i)
    lines += line(errorCall, Json::array({errors[i]}));
  if (!lines.empty()) append(outputFolder / galleryListName, lines);
}

} // namespace render
