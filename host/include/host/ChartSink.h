#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <host/Export.h>
#include <host/Finding.h>
#include <host/NodeCalls.h>
#include <host/VarDataProcessor.h>
#include <host/XDocument.h>

/// Where finished charts go.
namespace host {

/// One finished chart; everything is borrowed for the time of the call.
struct SentChart {
  const std::string& name; ///< the chart's name, usually its procedure's; may be empty
  const std::string& xml;  ///< the chart document as the builder printed it
  const std::string& description;
  const std::string& splitHeader;
  const std::string& chartTemplate;
  const std::string& language;
  const ZephVisualization& visualization;
  const VarDataProcessor* data; ///< may be null: a chart without data
  NodeCalls calls = {};         ///< of the document's nodes; may be empty
};

class KORVA_API ChartSink {
public:
  virtual ~ChartSink() = default;
  /// Takes one chart. Throws ChartException when it cannot; nothing of the chart
  /// is left behind then.
  virtual void send(const SentChart& chart) = 0;
  /// Takes an entry of the output's error list. Throws ChartException when it
  /// cannot.
  virtual void noteError(const std::string& text) = 0;
};

/// The sink in use: the folder sink unless the program set its own.
KORVA_API ChartSink& chartSink();
/// Sets the sink; null restores the folder sink. Not to be called by a sink while
/// it takes a chart.
KORVA_API void setChartSink(std::unique_ptr<ChartSink> sink);

/// What is done beside the bare files: pages for a chart folder that is still
/// being written aside, and the gallery page of the whole output folder. Either
/// may be empty. They tell of a failure by an exception, best a std::exception or
/// ChartException, which say why. A chart folder has all but the end of its manifest
/// when its pages are written; `versions` go there, of what writes them, and so does what
/// was found while the chart was drawn, which is reported as well.
struct PageWriter {
  std::function<std::vector<Finding>(const std::filesystem::path& chartFolder)> writeChart;
  std::function<void(const std::filesystem::path& outputFolder)> writeGallery;
  std::map<std::string, std::string> versions = {};
};

/// Writes one folder a chart below the output folder, made when it is missing:
///
///   0001-<name>/          the number in the order sent, the name in lower-case
///                         ASCII letters, digits and '-'
///     chart.xml           the document as sent
///     <source>.csv        the columns of one data source, named by sourceName; a
///                         cell that is unset or system-missing is empty; a source
///                         without columns has no file
///     datapackage.json    describes these files: types, labels, value labels; with
///                         it the folder opens as a data set (of the first source)
///     manifest.json       what the document does not say: description, language,
///                         sources with their columns, ...; the versions that made the
///                         folder and the hash of each other file in it
///   errors.json           the output's error list: an array of texts
///
/// and whatever the page writer adds. A folder appears whole or not at all, the
/// same chart gives the same bytes, and processes that share an output folder take
/// turns by the lock file .lock and lose nothing. What a process that died was
/// writing, .tmp-<process>-<n>/, is removed by the next one.
class KORVA_API FolderSink final : public ChartSink {
public:
  explicit FolderSink(PageWriter pages) : pages_(std::move(pages)) {}
  /// Pages that fail are reported and, in the manifest's "errors", told; the bare
  /// chart is delivered all the same.
  void send(const SentChart& chart) override;
  void noteError(const std::string& text) override;

private:
  PageWriter pages_;
};

/// The page writer of this library; defined by the part that draws.
KORVA_API PageWriter defaultPageWriter();

/// The folder that charts go to: what setOutputFolder set, else what
/// CHARTXML_OUTPUT names, else charts/ below the working directory.
KORVA_API std::filesystem::path outputFolder();
/// An empty path takes back what was set.
KORVA_API void setOutputFolder(std::filesystem::path folder);

} // namespace host
