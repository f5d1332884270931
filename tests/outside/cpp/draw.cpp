// Penguins by flipper length and body mass, drawn from C++.
//
// usage: draw <the penguins' data package>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <chartxml/ChartXml.h>
#include <chartxml/EntryPoints.h>
#include <host/DataSet.h>
#include <host/ErrorLog.h>
#include <host/Missing.h>

namespace {

int failures = 0;
std::vector<std::string> reports;

void expect(const char* behaviour, bool holds) {
  if (holds) return;
  ++failures;
  std::cerr << "FAILED: " << behaviour << '\n';
}

int made(const char* what, std::int64_t handle) {
  if (handle >= 0) return static_cast<int>(handle);
  std::cerr << "cannot make " << what << '\n';
  std::exit(1);
}

void tryConventions(ChartXml& registry, int chart, int graph, int data) {
  try {
    host::DataSet::open("no such folder");
    expect("a data set that is not there is refused", false);
  } catch (const host::DataError& error) {
    expect("an exception of the library is caught by its type",
           std::string(error.what()) == "no such folder: No such file or directory");
  }

  expect("a refusal is -1", registry.AddX(chart, graph, graph) == -1);
  expect("and its reason goes to the program",
         reports ==
             std::vector<std::string>{"can't add x to anything but element or position - frame"});

  const std::int64_t sameChart = chart + (std::int64_t{1} << 32), frame = data, yes = -7;
  expect("only the low 32 bits of a handle count, and any number but 0 is true",
         cx_setframeclipping_(&sameChart, &frame, &yes) == data);
}

// A row is drawn when neither of its numbers is missing.
void addRows(ChartXml& registry, const host::DataSet& penguins, int chart, int source, int x,
             int y) {
  std::array<OBS, 2> cells;
  for (std::size_t row = 0; row < penguins.rowCount(); ++row) {
    penguins.readRow(row, cells);
    const double flipper = cells[0].number, mass = cells[1].number;
    if (flipper <= host::systemMissing || mass <= host::systemMissing) continue;
    made("a row", registry.AddRow(chart, source));
    made("a number", registry.AddDoubleDataValue(chart, source, x, flipper));
    made("a number", registry.AddDoubleDataValue(chart, source, y, mass));
  }
}

void addAxes(int chart, int data) {
  const std::int64_t handle = chart, frame = data, none = -1, no = 0;
  std::int64_t xStyle, xAxis, yStyle, yAxis;
  made("the axes", cx_addxydimensionwithaxis_(&handle, &frame, &none, &none, &no, &no, &xStyle,
                                              &xAxis, &yStyle, &yAxis));
}

int addPoints(int chart, int data, int x, int y) {
  const std::int64_t handle = chart, frame = data, one = 1, point = 23, atX = x, atY = y,
                     scatter = 96;
  std::int64_t points;
  return made("the points",
              cx_addxyelementex_(&handle, &frame, &one, &point, &atX, &atY, &scatter, &points));
}

} // namespace

int main(int count, char** arguments) {
  if (count != 2) return 2;
  host::setErrorCallback(
      [](const host::ErrorReport& report) { reports.push_back(report.message); });
  std::unique_ptr<host::DataSet> penguins = host::DataSet::open(arguments[1]);
  const std::array columns{penguins->findColumn("flipper_length_mm"),
                           penguins->findColumn("body_mass_g")};
  penguins->useVariables(columns);

  void* dictionary = static_cast<KORVA_FortranDictionary*>(penguins.get());
  const std::int64_t nameLength = 7;
  std::int64_t handle, sourceOut, graphOut, dataOut;
  const int chart = made("a chart", cx_createchartex_(nullptr, &dictionary, "outside", &nameLength,
                                                      &handle, &sourceOut, &graphOut, &dataOut));
  const int source = made("a source", sourceOut), graph = made("a frame", graphOut),
            data = made("a frame", dataOut);
  ChartXml& registry = *ChartXml::GetInstance();
  tryConventions(registry, chart, graph, data);

  const int x = made("x", registry.AddVariable(chart, source, 1, false));
  const int y = made("y", registry.AddVariable(chart, source, 2, false));
  addRows(registry, *penguins, chart, source, x, y);
  addAxes(chart, data);
  addPoints(chart, data, x, y);
  made("a label", registry.AddLabel(chart, graph, -1, registry.String("[ab  ]")));

  made("the chart", registry.EndChart(chart));
  ChartXml::Terminate();
  host::DataSet::close(penguins.release());
  return failures == 0 ? 0 : 1;
}
