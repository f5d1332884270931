#include <render/Pages.h>

#include "assemble/Assemble.h"
#include "check/Check.h"
#include "fonts/FontCss.h"
#include "page/ChartPage.h"
#include "page/Files.h"
#include "page/Gallery.h"
#include "page/GalleryList.h"
#include "page/Runtime.h"
#include "read/Sources.h"
#include "resolve/Chart.h"
#include "text/Show.h"
#include "text/Words.h"
#include "thin/Excerpt.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {
namespace {

/// A template of another system's making is no reason not to draw.
void noteTemplate(const Manifest& manifest, Notes& notes) {
  const std::string& name = manifest.chartTemplate;
  if (!name.empty() && theme::find(name) == nullptr)
    notes.add("Unknown template^2", {shown(name), theme::themes().front().name});
}

//   read        chart.xml, CSV, manifest      -> ChartFolder
//   resolve     references, extents, groups   -> Chart
//   check       what cannot be meant          -> Notes
//   thin        rows and columns that are drawn -> Excerpts
//   translate   one translator a node kind    -> Parts
//   assemble    one Vega chart                -> JSON
Json specification(const ChartFolder& folder, const Words& words, Notes& notes) {
  noteTemplate(folder.manifest, notes);
  Chart chart = resolve(folder, notes);
  check(chart, notes);
  const Layout layout = Layout::of(chart, notes);
  makeUnitsEqual(chart, layout, notes);
  const std::vector<Excerpt> excerpts = excerptsOf(chart);
  for (const Excerpt& excerpt : excerpts)
    if (excerpt.isThinned())
      chart.drawnRows[excerpt.source].insert(excerpt.rows.begin(), excerpt.rows.end());
  Parts parts = translate(chart, layout, words, notes);
  return assemble(chart, layout, std::move(parts), excerpts, words, notes);
}

/// The gallery page, with its list made by one of the writers and the shared scripts.
void place(const std::filesystem::path& outputFolder,
           void (*writeList)(const std::filesystem::path&)) {
  try {
    placeRuntime(outputFolder);
    writeList(outputFolder);
    writeChanged(outputFolder / "index.html", galleryPage());
  } catch (const std::filesystem::filesystem_error& e) {
    throw RenderError(e.what());
  }
}

/// The manifest of a chart that is refused, or what can be told without one.
Manifest manifestOf(const std::filesystem::path& folder) {
  try {
    return Manifest::read(folder);
  } catch (const RenderError&) {
    return {.name = folder.filename().native()};
  }
}

} // namespace

Findings writeChart(const std::filesystem::path& chartFolder, const std::string& theme) {
  const std::filesystem::path folder =
      chartFolder.has_filename() ? chartFolder : chartFolder.parent_path();
  const std::filesystem::path page = folder / "chart.html";
  try {
    ChartFolder chart = ChartFolder::read(folder);
    if (!theme.empty()) chart.manifest.chartTemplate = theme;
    const Words words(chart.manifest.language);
    Notes notes(chart.manifest.language);
    const Json spec = specification(chart, words, notes);
    writeFile(folder / "chart.vg.json", laidOut(spec));
    writeFile(page,
              chartPage(chart.manifest, spec, fontCss(spec, theme::font(chart.manifest)), words));
    return notes.findings();
  } catch (const RenderError& e) {
    writeFile(page, refusedPage(manifestOf(folder), reasonWithin(folder, e)));
    throw;
  }
}

Findings findingsOf(const std::filesystem::path& chartFolder) {
  const ChartFolder chart = ChartFolder::read(chartFolder);
  Notes notes(chart.manifest.language);
  check(resolve(chart, notes), notes);
  return notes.findings();
}

std::vector<std::string> dataFilesOf(const std::filesystem::path& document) {
  const Document read = Document::read(document);
  std::vector<std::string> files;
  for (const Node& node : read.graph().children)
    if (node.kind == "source" && isRead(node.id(), read.graph()))
      files.push_back(csvNameIn(document, node.id()));
  return files;
}

std::vector<std::string> themes() {
  std::vector<std::string> names;
  for (const theme::Theme& theme : theme::themes())
    names.emplace_back(theme.name);
  return names;
}

void writeGallery(const std::filesystem::path& outputFolder) {
  place(outputFolder, writeGalleryList);
}

void updateGallery(const std::filesystem::path& outputFolder) {
  place(outputFolder, updateGalleryList);
}

} // namespace render
