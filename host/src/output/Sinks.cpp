#include <host/ChartSink.h>

#include <cstdlib>

namespace host {
namespace {

struct Output {
  std::unique_ptr<ChartSink> sink;
  std::filesystem::path folder;
};

// Never destroyed: charts may be sent by what runs at exit.
Output& output() {
  static Output& theOutput = *new Output;
  return theOutput;
}

} // namespace

ChartSink& chartSink() {
  auto& sink = output().sink;
  if (!sink) sink = std::make_unique<FolderSink>(defaultPageWriter());
  return *sink;
}

void setChartSink(std::unique_ptr<ChartSink> sink) { output().sink = std::move(sink); }

std::filesystem::path outputFolder() {
  if (!output().folder.empty()) return output().folder;
  const char* named = std::getenv("CHARTXML_OUTPUT");
  return named != nullptr && *named != '\0' ? named : "charts";
}

void setOutputFolder(std::filesystem::path folder) { output().folder = std::move(folder); }

} // namespace host
