#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include <host/VarDataProcessor.h>
#include <host/XDocument.h>

/// Where finished charts go.
namespace host {

/// One finished chart; everything is borrowed for the time of the call.
struct SentChart {
  const std::string& name; ///< the procedure's name; may be empty
  const std::string& xml;  ///< the chart document as the builder printed it
  const std::string& description;
  const std::string& splitHeader;
  const std::string& chartTemplate;
  const std::string& language;
  const ZephVisualization& visualization;
  const VarDataProcessor* data; ///< may be null: a chart without data
};

class ChartSink {
public:
  virtual ~ChartSink() = default;
  /// Takes one chart. Throws ChartException when it cannot; nothing of the chart
  /// is left behind then.
  virtual void send(const SentChart& chart) = 0;
  /// An entry of the output's error list.
  virtual void noteError(const std::string& text) = 0;
};

/// The sink in use: the folder sink unless the program set its own.
ChartSink& chartSink();
/// Sets the sink; null restores the folder sink.
void setChartSink(std::unique_ptr<ChartSink> sink);

/// What is done beside the bare files: pages for a chart folder that is still
/// being written aside, and the gallery page of the whole output folder.
struct PageWriter {
  std::function<void(const std::filesystem::path& chartFolder)> writeChart;
  std::function<void(const std::filesystem::path& outputFolder)> writeGallery;
};

/// Writes one folder a chart below the output folder: chart.xml, a CSV per data
/// source and manifest.json, then whatever the page writer adds. A folder
/// appears whole or not at all, numbered in the order sent; processes that share
/// an output folder take turns by a lock file.
class FolderSink final : public ChartSink {
public:
  explicit FolderSink(PageWriter pages) : pages_(std::move(pages)) {}
  void send(const SentChart& chart) override;
  void noteError(const std::string& text) override;

private:
  PageWriter pages_;
};

/// The page writer of this library; defined by the part that draws.
PageWriter defaultPageWriter();

/// The folder that charts go to: what setOutputFolder set, else what
/// CHARTXML_OUTPUT names, else charts/ below the working directory.
std::filesystem::path outputFolder();
void setOutputFolder(std::filesystem::path folder);

} // namespace host
