#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>
#include <render/Pages.h>

#include "Pictures.h"

namespace tools {

/// A chart that is drawn anew, and what came of it.
struct ChartDrawing {
  std::filesystem::path folder;
  bool hasPage = false;              ///< that shows the chart, not why it is refused
  bool isOther = false;              ///< the chart looks otherwise than when it was drawn before
  bool nodeFailed = false;           ///< at its pictures
  std::string refusal{};             ///< why there is no page, with the whole path of the file
  std::vector<std::string> errors{}; ///< the same within the folder, or why not all pictures
  render::Findings findings{};
  std::vector<std::string> files{};   ///< that were drawn
  std::vector<std::string> removed{}; ///< pictures of what the chart was before
  std::vector<std::string> kept{};    ///< pictures that could not be drawn, as they were before
};

/// Makes Vega chart and page. `theme` as PictureOptions has it.
ChartDrawing drawPage(const std::filesystem::path& folder, const std::string& theme);

/// Takes what came of the pictures, and removes older ones that show something else.
void settlePictures(ChartDrawing& chart, const DrawnPictures& pictures,
                    const PictureOptions& options);

/// Lists what was made in the manifest. What was not made is not looked at: a file that
/// somebody changed stays one that is not as listed.
void listMade(const ChartDrawing& chart);

/// {"folder": "charts/0001-penguins", "files": ["chart.html", ...], "removed": [],
///  "errors": [], "findings": [{"check": ..., "node": ..., "text": ...}]}
nlohmann::ordered_json jsonOf(const ChartDrawing& chart);

} // namespace tools
