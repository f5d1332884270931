#include <algorithm>
#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include <CLI/CLI.hpp>
#include <fmt/format.h>
#include <render/Pages.h>

#include "Pictures.h"

/// The command line: makes pages and pictures of charts that were written before.
namespace {

namespace fs = std::filesystem;

constexpr int chartFailed = 1;
constexpr int usage = 2;

constexpr const char* examples = R"(
Examples:
  chartxml render charts                     specifications and pages of a gallery
  chartxml render charts --svg --png         with pictures, as chart.svg and chart.png
  chartxml render charts/0001-penguins --png one chart
  chartxml gallery charts                    index.html only

Exit status: 0 all went well, 1 a chart failed, 2 the command is not understood.)";

bool isChart(const fs::path& folder) { return fs::exists(folder / "chart.xml"); }

/// The folder without a slash at its end, so that it has a name.
fs::path named(const fs::path& folder) {
  const fs::path path = fs::absolute(folder).lexically_normal();
  return path.has_filename() ? path : path.parent_path();
}

/// The chart folders that the arguments name: themselves, or those in them.
std::vector<fs::path> findCharts(const std::vector<std::string>& arguments) {
  std::vector<fs::path> charts;
  for (const std::string& argument : arguments) {
    const fs::path folder = named(argument);
    if (isChart(folder)) {
      charts.push_back(folder);
      continue;
    }
    const std::size_t before = charts.size();
    for (const auto& entry : fs::directory_iterator(folder))
      if (!entry.path().filename().native().starts_with('.') && isChart(entry.path()))
        charts.push_back(entry.path());
    if (charts.size() == before)
      throw std::runtime_error(fmt::format("{}: no chart.xml here or one folder below", argument));
    std::sort(charts.begin() + static_cast<std::ptrdiff_t>(before), charts.end());
  }
  return charts;
}

/// Runs one step; says what is wrong with it and returns false when it fails.
template <class Step> bool succeeds(Step step) {
  try {
    step();
    return true;
  } catch (const std::exception& e) {
    std::cerr << "chartxml: " << e.what() << '\n';
    return false;
  }
}

int renderCharts(const std::vector<std::string>& arguments, const tools::PictureOptions& options) {
  const std::vector<fs::path> charts = findCharts(arguments);
  std::vector<fs::path> drawn;
  std::vector<fs::path> galleries;
  for (const fs::path& chart : charts) {
    if (succeeds([&] { render::writeChart(chart); })) drawn.push_back(chart);
    if (std::ranges::find(galleries, chart.parent_path()) == galleries.end())
      galleries.push_back(chart.parent_path());
  }
  bool good = drawn.size() == charts.size();
  if (options.svg || options.png)
    good = succeeds([&] { tools::drawPictures(drawn, options); }) && good;
  for (const fs::path& gallery : galleries)
    good = succeeds([&] { render::writeGallery(gallery); }) && good;
  if (good)
    for (const fs::path& gallery : galleries)
      std::cout << "open " << (gallery / "index.html").native() << '\n';
  return good ? 0 : chartFailed;
}

} // namespace

int main(int argc, char** argv) {
  CLI::App app("Makes pages and pictures of charts.", "chartxml");
  app.footer(examples);

  std::vector<std::string> folders;
  tools::PictureOptions options;
  CLI::App* render = app.add_subcommand(
      "render",
      "Make specification and page of each chart anew, pictures if asked, and the gallery");
  render->add_option("folders", folders, "Chart folders, or output folders that hold some")
      ->required()
      ->check(CLI::ExistingDirectory);
  render->add_flag("--svg", options.svg, "Draw chart.svg");
  render->add_flag("--png", options.png, "Draw chart.png");
  render->add_option("--node", options.node, "The Node.js program to draw with")
      ->check(CLI::ExistingFile);

  CLI::App* gallery = app.add_subcommand("gallery", "Make index.html of an output folder anew");
  gallery->add_option("folders", folders, "Output folders")
      ->required()
      ->check(CLI::ExistingDirectory);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    return app.exit(e) == 0 ? 0 : usage;
  }
  if (app.get_subcommands().empty()) {
    std::cerr << app.help();
    return usage;
  }

  int status = 0;
  if (!succeeds([&] {
        if (*render) {
          status = renderCharts(folders, options);
          return;
        }
        for (const std::string& folder : folders)
          render::writeGallery(named(folder));
      }))
    return chartFailed;
  return status;
}
