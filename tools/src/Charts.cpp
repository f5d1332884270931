#include "Charts.h"

#include <algorithm>

#include <fmt/format.h>
#include <host/ChartFiles.h>

#include "Status.h"

namespace tools {

namespace fs = std::filesystem;

fs::path named(const fs::path& folder) {
  const bool isRelative = folder.filename() == "." || folder.filename() == "..";
  const fs::path path = (isRelative ? fs::absolute(folder) : folder).lexically_normal();
  return path.has_filename() ? path : path.parent_path();
}

bool isChart(const fs::path& folder) {
  return fs::exists(folder / "chart.xml") || fs::exists(folder / host::manifestName);
}

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
      throw UsageError(fmt::format("{}: no chart here or one folder below", argument));
    std::sort(charts.begin() + static_cast<std::ptrdiff_t>(before), charts.end());
  }
  return charts;
}

std::string counted(std::size_t count, const char* noun) {
  return fmt::format("{} {}{}", count, noun, count == 1 ? "" : "s");
}

} // namespace tools
