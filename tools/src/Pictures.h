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

/// What came of the pictures of a chart.
struct DrawnPictures {
  std::vector<std::string> files{}; ///< that were drawn
  std::string trouble{};            ///< why not all of them; empty when they are
  bool nodeFailed = false;          ///< Node.js cannot be started, or ended while it drew them
};

/// Draws chart.svg, chart.png and chart.pdf from the chart.vg.json of each folder, in one
/// Node.js process, which tells its progress on a terminal's standard error. When that ends
/// early, another draws what is left, without the chart that it ended at.
std::vector<DrawnPictures> drawPictures(const std::vector<std::filesystem::path>& folders,
                                        const PictureOptions& options);

} // namespace tools
