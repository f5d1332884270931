#pragma once

#include <filesystem>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include <host/Finding.h>

/// Turns finished chart folders into Vega charts and HTML pages.
namespace render {

/// A chart folder that cannot be drawn, or a page that cannot be written: which
/// file, and why; of a malformed file also the line and column.
class RenderError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

using Findings = std::vector<host::Finding>;

/// The check whose findings tell that a folder's data are not those that it was written
/// with; others tell what was wrong from the beginning.
constexpr const char* changedData = "changed-data";

/// Writes chart.vg.json and chart.html into a chart folder, from its chart.xml,
/// its CSV files and, when it is there, its manifest.json. The same folder gives
/// the same bytes; each file appears whole or not at all. What the chart asks for
/// and is not drawn is named in the page's notes, and so is what the checks of the
/// document against its data found, which is returned. Throws RenderError when the
/// chart cannot be read; a page that says so is written all the same.
/// `theme` is one of themes(); empty: the one that the chart's template names.
Findings writeChart(const std::filesystem::path& chartFolder, const std::string& theme = {});

/// The checks of a chart folder alone; nothing is written. Throws RenderError when the
/// chart cannot be read.
Findings findingsOf(const std::filesystem::path& chartFolder);

/// The CSV files that a chart document reads, by their names in a chart folder. Throws
/// RenderError when the document cannot be read.
std::vector<std::string> dataFilesOf(const std::filesystem::path& document);

/// The names of the themes that charts are drawn in, the usual one first.
std::vector<std::string> themes();

/// Writes index.html, the gallery of the charts in an output folder in the order of
/// their names, gallery.js, the list that it shows, and runtime/, the scripts that the
/// pages share. A chart stands there with its picture, chart.svg or chart.png, where its
/// folder has one, and with the source of its procedure, where the output folder has a
/// file of the chart's name in procedures/. Throws RenderError when they cannot be
/// written.
void writeGallery(const std::filesystem::path& outputFolder);

/// The same for a gallery that is there: adds the charts and errors that its list
/// lacks, or makes a damaged one anew. The cost of one more chart hardly grows with their
/// number. Throws RenderError as writeGallery does.
void updateGallery(const std::filesystem::path& outputFolder);

/// The versions of what makes and draws the pages, by name: renderer, vega, ...
std::map<std::string, std::string> versions();

} // namespace render
