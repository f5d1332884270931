// CSV files that are not as the document and the manifest have them.
#include <algorithm>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "check/Check.h"
#include "check/UsedVariables.h"
#include "text/Show.h"

namespace render {
namespace {

/// Rows that were cut off, or added, change the picture and nothing else tells of them.
void checkRows(const Chart& chart, Report& report) {
  const ChartFolder& folder = *chart.folder;
  for (const auto& [source, table] : folder.tables) {
    const std::string file = csvNameOf(source);
    const auto listed = folder.manifest.rowsOfFile.find(file);
    if (listed == folder.manifest.rowsOfFile.end() || listed->second == table.rowCount) continue;
    report.add(*folder.document.find(source),
               fmt::format("{} has {} rows where the manifest lists {}; put the whole file back",
                           shown(file), table.rowCount, listed->second));
  }
}

std::string columnsOf(const Table& table) {
  constexpr std::size_t most = 12;
  std::vector<std::string> names;
  for (const std::string& name : table.names) {
    if (names.size() == most) break;
    names.push_back(shown(name));
  }
  const std::size_t others = table.names.size() - names.size();
  return fmt::format("{}{}", fmt::join(names, ", "),
                     others == 0 ? "" : fmt::format(" and {} others", others));
}

void checkColumns(const Chart& chart, Report& report) {
  for (const Variable* variable : usedVariables(chart)) {
    const Node& node = *chart.folder->document.find(variable->id);
    const auto table = chart.folder->tables.find(variable->source);
    if (!hasOwnColumn(node) || variable->texts != nullptr || table == chart.folder->tables.end())
      continue;
    report.add(*variable,
               fmt::format("{} is the column {} of {}, which has {} only; put the column there, or "
                           "leave the variable out",
                           called(*variable), shown(node.attribute("sourceName")),
                           shown(csvNameOf(variable->source)), columnsOf(table->second)));
  }
}

} // namespace

void checkChangedData(const Chart& chart, Report& report) {
  checkRows(chart, report);
  checkColumns(chart, report);
}

} // namespace render
