#include <algorithm>
#include <filesystem>
#include <iostream>
#include <set>

#include <fmt/format.h>
#include <host/ChartFiles.h>
#include <host/DataSet.h>
#include <render/Pages.h>

#include "Charts.h"
#include "Progress.h"
#include "Verbs.h"

namespace tools {
namespace {

namespace fs = std::filesystem;

/// What came of drawing a page.
struct Drawn {
  std::vector<std::string> errors{}; ///< why there is none
  render::Findings findings{};
};

/// Makes the page; what went wrong and what was found is said and told.
Drawn drawPage(const fs::path& chart, const std::string& theme, const Progress& progress) {
  try {
    Drawn drawn{.findings = render::writeChart(chart, theme)};
    if (!drawn.findings.empty()) progress.clear();
    for (const host::Finding& finding : drawn.findings)
      std::cerr << fmt::format("chartxml: {}: {}\n", chart.native(), finding.text);
    return drawn;
  } catch (const render::RenderError& error) {
    progress.clear();
    std::cerr << "chartxml: " << error.what() << '\n';
    const std::string_view reason = error.what();
    const std::string place = chart.native() + "/";
    return {
        .errors = {std::string(reason.starts_with(place) ? reason.substr(place.size()) : reason)}};
  }
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

/// Lists what was made in the manifest. What was not made is not looked at: a file that
/// somebody changed stays one that is not as listed.
void listMade(const fs::path& chart, const Drawn& drawn, const PictureOptions& options) {
  host::ChartFiles listed = listedIn(chart);
  if (listed.files.empty()) return;
  const std::pair<const char*, bool> made[] = {{"chart.html", true},
                                               {"chart.vg.json", drawn.errors.empty()},
                                               {"chart.svg", options.svg},
                                               {"chart.png", options.png},
                                               {"chart.pdf", options.pdf}};
  for (const auto& [name, isMade] : made)
    if (isMade && fs::is_regular_file(chart / name))
      listed.files[name] = host::hashOf(chart / name);
  for (const auto& [name, version] : render::versions())
    listed.versions[name] = version;
  listed.errors = drawn.errors;
  listed.findings = drawn.findings;
  host::writeChartFiles(chart, listed);
}

} // namespace

Status render(const Arguments& folders, const PictureOptions& options) {
  const std::vector<fs::path> charts = findCharts(folders);
  std::vector<fs::path> drawn;
  std::vector<Drawn> pages;
  std::set<fs::path> galleries;
  {
    Progress progress(charts.size());
    for (const fs::path& chart : charts) {
      progress.step(chart.filename().native() + ", page");
      pages.push_back(drawPage(chart, options.theme, progress));
      if (pages.back().errors.empty()) drawn.push_back(chart);
      galleries.insert(fs::absolute(chart).parent_path());
    }
  }
  bool allDrawn = drawn.size() == charts.size();
  if (options.any() && !drawPictures(drawn, options)) {
    std::cerr << "chartxml: not all pictures could be drawn\n";
    allDrawn = false;
  }
  for (std::size_t i = 0; i < charts.size(); ++i)
    listMade(charts[i], pages[i], options);
  for (const fs::path& gallery : galleries) {
    render::writeGallery(gallery);
    std::cout << "open " << (gallery / "index.html").native() << '\n';
  }
  return allDrawn ? good : findings;
}

Status gallery(const Arguments& folders) {
  for (const std::string& folder : folders)
    render::writeGallery(named(folder));
  return good;
}

} // namespace tools
