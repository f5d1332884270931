#include "tools/CommandTest.h"

#include <array>
#include <cstdio>
#include <memory>

#include <sys/wait.h>

#include <fmt/format.h>
#include <host/ChartSink.h>
#include <host/XDocument.h>

CommandTest::CommandTest() {
  VarDataProcessor columns;
  columns.AddDataSource("source0", 0);
  std::array<VarDataProcessor::_varinfo, 3> info;
  for (const auto& [at, name] : {std::pair{0U, "A"}, {1U, "B"}, {2U, "Group"}})
    columns.AddVariable("source0", name, info[at]);
  for (std::size_t row = 0; row < 3; ++row) {
    columns.SetVariableValue(info[0], row, 5 * static_cast<double>(row));
    columns.SetVariableValue(info[1], row, 10 + static_cast<double>(row));
    columns.SetStringVariableValue(info[2], row, row == 0 ? "b" : "a");
  }
  const std::string xml = document(point);
  XDocument output(xml, false, true);
  output.SetDescription(ChartString(u"A small chart."));
  output.SetChartData(&columns);
  host::setOutputFolder(scratch.path() / "charts");
  EXPECT_TRUE(output.SendChart(true, false, false));
  host::setOutputFolder({});
}

Outcome CommandTest::shell(const std::string& line) const {
  const std::string command = fmt::format(
      "cd '{}' && export PATH='{}':\"$PATH\" LC_ALL=C && {{ {}\n}} 2>&1", scratch.path().native(),
      std::filesystem::path(COMMAND).parent_path().native(), line);
  FILE* const output = popen(command.c_str(), "r");
  std::string text;
  for (int c = std::fgetc(output); c != EOF; c = std::fgetc(output))
    text += static_cast<char>(c);
  const int status = pclose(output);
  const std::string place = scratch.path().native() + "/";
  for (auto at = text.find(place); at != text.npos; at = text.find(place, at))
    text.erase(at, place.size() - 1);
  return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, text};
}

std::map<std::string, std::string> CommandTest::files() const {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(chart)) {
    const std::string name = entry.path().filename().native();
    files.emplace(name, scratch.read("charts/0001-small/" + name));
  }
  return files;
}
