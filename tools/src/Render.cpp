#include <algorithm>
#include <filesystem>
#include <iostream>
#include <set>

#include <fmt/format.h>
#include <render/Pages.h>

#include "ChartDrawing.h"
#include "Charts.h"
#include "Documents.h"
#include "Output.h"
#include "Progress.h"
#include "Verbs.h"

namespace tools {
namespace {

namespace fs = std::filesystem;
using nlohmann::ordered_json;

void say(const fs::path& place, std::string_view text) {
  std::cerr << fmt::format("chartxml: {}: {}\n", place.native(), text);
}

std::vector<ChartDrawing> drawPages(const std::vector<fs::path>& charts,
                                    const PictureOptions& options, bool isQuiet) {
  std::vector<ChartDrawing> drawings;
  Progress progress(charts.size());
  for (const fs::path& chart : charts) {
    progress.step(chart.filename().native() + ", page");
    const ChartDrawing& drawn = drawings.emplace_back(drawPage(chart, options.theme));
    if (isQuiet || (drawn.hasPage && drawn.findings.empty())) continue;
    progress.clear();
    if (!drawn.hasPage) std::cerr << fmt::format("chartxml: {}\n", drawn.refusal);
    for (const host::Finding& finding : drawn.findings)
      say(chart, finding.text);
  }
  return drawings;
}

void sayPictures(const ChartDrawing& chart) {
  if (!chart.hasPage) return;
  for (const std::string& error : chart.errors)
    say(chart.folder, error);
  for (const std::string& name : chart.removed)
    say(chart.folder / name, "removed, as it showed the chart as it was before");
  for (const std::string& name : chart.kept)
    say(chart.folder / name, "left as it was drawn before");
}

void drawAllPictures(std::vector<ChartDrawing>& charts, const PictureOptions& options,
                     bool isQuiet) {
  std::vector<ChartDrawing*> withPage;
  std::vector<fs::path> folders;
  for (ChartDrawing& chart : charts) {
    if (!chart.hasPage) continue;
    withPage.push_back(&chart);
    folders.push_back(chart.folder);
  }
  std::vector<DrawnPictures> pictures(folders.size());
  if (options.any()) pictures = drawPictures(folders, options);
  for (std::size_t i = 0; i < withPage.size(); ++i) {
    settlePictures(*withPage[i], pictures[i], options);
    if (!isQuiet) sayPictures(*withPage[i]);
  }
}

using Galleries = std::set<fs::path>;

ordered_json writeGalleries(const Galleries& galleries, bool asJson) {
  auto json = ordered_json::array();
  for (const fs::path& folder : galleries) {
    render::writeGallery(folder);
    json.push_back((folder / "index.html").native());
    if (!asJson) std::cout << "open " << (folder / "index.html").native() << '\n';
  }
  return json;
}

fs::path galleryOf(const fs::path& chart) { return fs::absolute(chart).parent_path(); }

bool isDamaged(const ChartDrawing& chart) {
  const auto isChange = [](const host::Finding& finding) {
    return finding.check == render::changedData;
  };
  return !chart.errors.empty() || std::ranges::any_of(chart.findings, isChange);
}

Status statusOf(const std::vector<ChartDrawing>& charts) {
  if (std::ranges::any_of(charts, &ChartDrawing::nodeFailed)) return failed;
  return std::ranges::any_of(charts, isDamaged) ? findings : good;
}

} // namespace

Status render(const Arguments& arguments, const DocumentOptions& documents,
              const PictureOptions& pictures, bool asJson) {
  const std::vector<fs::path> folders = chartsToDraw(arguments, documents);
  std::vector<ChartDrawing> charts = drawPages(folders, pictures, asJson);
  drawAllPictures(charts, pictures, asJson);

  Galleries galleries;
  auto json = ordered_json::array();
  for (const ChartDrawing& chart : charts) {
    listMade(chart);
    galleries.insert(galleryOf(chart.folder));
    json.push_back(jsonOf(chart));
  }
  ordered_json pages = writeGalleries(galleries, asJson);
  if (asJson) print({{"charts", std::move(json)}, {"galleries", std::move(pages)}});
  return statusOf(charts);
}

Status gallery(const Arguments& folders, bool asJson) {
  Galleries galleries;
  for (const std::string& folder : folders) {
    // Charts that failed at once have left nothing but their errors.
    if (fs::exists(fs::path(folder) / "errors.json"))
      galleries.insert(fs::absolute(named(folder)));
    else
      for (const fs::path& chart : findCharts({folder}))
        galleries.insert(galleryOf(chart));
  }
  ordered_json pages = writeGalleries(galleries, asJson);
  if (asJson) print({{"galleries", std::move(pages)}});
  return good;
}

} // namespace tools
