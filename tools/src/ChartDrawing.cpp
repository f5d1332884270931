#include "ChartDrawing.h"

#include <algorithm>
#include <array>
#include <utility>

#include <fmt/format.h>
#include <host/ChartFiles.h>
#include <host/DataSet.h>

namespace tools {
namespace {

namespace fs = std::filesystem;
using nlohmann::ordered_json;

constexpr const char* vegaChart = "chart.vg.json";
constexpr std::array pictureNames{"chart.svg", "chart.png", "chart.pdf"};

/// Empty when there is none.
std::string hashIn(const fs::path& folder, const char* name) {
  return fs::is_regular_file(folder / name) ? host::hashOf(folder / name) : std::string();
}

/// What the manifest lists. A manifest that cannot be read keeps the page from being
/// drawn, which tells of it.
host::ChartFiles listedIn(const fs::path& chart) {
  if (!fs::exists(chart / host::manifestName)) return {};
  try {
    return host::readChartFiles(chart);
  } catch (const host::DataError&) {
    return {};
  }
}

/// An error without the folder, which is named beside it.
std::string reasonWithin(const fs::path& folder, std::string_view reason) {
  const std::string place = folder.native() + "/";
  return std::string(reason.starts_with(place) ? reason.substr(place.size()) : reason);
}

bool contains(const std::vector<std::string>& names, const char* name) {
  return std::ranges::find(names, name) != names.end();
}

} // namespace

ChartDrawing drawPage(const fs::path& folder, const std::string& theme) {
  ChartDrawing chart{.folder = folder};
  const std::string before = hashIn(folder, vegaChart);
  try {
    chart.findings = render::writeChart(folder, theme);
    chart.hasPage = true;
    chart.isOther = !before.empty() && hashIn(folder, vegaChart) != before;
    chart.files.emplace_back(vegaChart);
  } catch (const render::RenderError& error) {
    chart.refusal = error.what();
    chart.errors.push_back(reasonWithin(folder, chart.refusal));
  }
  chart.files.emplace_back("chart.html");
  return chart;
}

void settlePictures(ChartDrawing& chart, const DrawnPictures& pictures,
                    const PictureOptions& options) {
  const std::array isAsked{options.svg, options.png, options.pdf};
  chart.nodeFailed = pictures.nodeFailed;
  if (!pictures.trouble.empty())
    chart.errors.push_back(fmt::format("the picture cannot be drawn: {}", pictures.trouble));
  for (std::size_t i = 0; i < pictureNames.size(); ++i) {
    const char* const name = pictureNames[i];
    if (contains(pictures.files, name)) {
      chart.files.emplace_back(name);
      continue;
    }
    if (!fs::is_regular_file(chart.folder / name)) continue;
    if (chart.isOther && fs::remove(chart.folder / name))
      chart.removed.emplace_back(name);
    else if (isAsked[i])
      chart.kept.emplace_back(name);
  }
}

void listMade(const ChartDrawing& chart) {
  host::ChartFiles listed = listedIn(chart.folder);
  if (listed.files.empty()) return;
  for (const std::string& name : chart.files)
    if (fs::is_regular_file(chart.folder / name))
      listed.files[name] = host::hashOf(chart.folder / name);
  for (const std::string& name : chart.removed)
    listed.files.erase(name);
  for (const auto& [name, version] : render::versions())
    listed.versions[name] = version;
  listed.errors.clear();
  if (!chart.hasPage) listed.errors = chart.errors;
  listed.findings = chart.findings;
  host::writeChartFiles(chart.folder, listed);
}

ordered_json jsonOf(const ChartDrawing& chart) {
  auto found = ordered_json::array();
  for (const host::Finding& finding : chart.findings) {
    ordered_json one{{"check", finding.check}, {"node", finding.node}};
    if (finding.call > 0) one.update({{"call", finding.call}, {"name", finding.callName}});
    one["text"] = finding.text;
    found.push_back(std::move(one));
  }
  return {{"folder", chart.folder.native()},
          {"files", chart.files},
          {"removed", chart.removed},
          {"errors", chart.errors},
          {"findings", std::move(found)}};
}

} // namespace tools
