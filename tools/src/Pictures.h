#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tools {

struct PictureOptions {
  bool svg = false;
  bool png = false;
  bool pdf = false;

  bool any() const { return svg || png || pdf; }

  std::string theme{}; ///< one of render::themes(); empty: that of each chart's template
  std::string node{};  ///< the Node.js program; empty: the one installed beside, else on the path
};

/// Draws chart.svg, chart.png and chart.pdf from the chart.vg.json of each folder, all in one
/// Node.js process, which tells its progress on a terminal's standard error and says
/// there what it could not draw: false then. Throws std::runtime_error when it cannot be
/// started.
bool drawPictures(const std::vector<std::filesystem::path>& folders, const PictureOptions& options);

} // namespace tools
