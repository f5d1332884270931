// Charts as large as procedures make them: what building, printing and sending one
// costs, and how much memory it takes beyond what it must.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

#include <unistd.h>

#include <chartxml/ChartXml.h>
#include <chartxml/EntryPoints.h>
#include <host/ChartSink.h>
#include <host/VarDataProcessor.h>

#include "Columns.h"
#include "Memory.h"

namespace {

/// Charts go to a folder of their own, without pages: those are the renderer's.
class Output {
public:
  Output()
      : folder_(std::filesystem::temp_directory_path() / ("bench-" + std::to_string(getpid()))) {
    host::setOutputFolder(folder_);
    host::setChartSink(std::make_unique<host::FolderSink>(host::PageWriter{}));
  }
  ~Output() {
    host::setChartSink(nullptr);
    host::setOutputFolder({});
    std::filesystem::remove_all(folder_);
  }
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

private:
  std::filesystem::path folder_;
};

void addRows(const DataChart& in, std::int64_t rows) {
  double value = 0.5;
  for (std::int64_t row = 0; row < rows; ++row, value += 0.25) {
    cx_addrow_(&in.chart, &in.source);
    for (const std::int64_t& variable : in.variables)
      cx_adddoubledatavalue_(&in.chart, &in.source, &variable, &value);
  }
}

/// Sends the chart; by how many bytes memory grew at most meanwhile.
double growthWhileSending(std::int64_t chart) {
  const std::size_t before = memory::resident();
  memory::watchPeak();
  cx_endchart_(&chart);
  const std::size_t peak = memory::peak();
  return peak > before ? static_cast<double>(peak - before) : 0;
}

std::size_t printedSize(std::int64_t chart) {
  return ChartXml::GetInstance()->GetXmlBuffer(static_cast<int>(chart)).size();
}

void sendNodes(benchmark::State& state) {
  const Output output;
  for (auto _ : state) {
    state.PauseTiming();
    auto data = std::make_unique<DataChart>(1);
    addRows(*data, 1000);
    const std::int64_t root = 0, none = -1, line = 21;
    const std::int64_t frame = cx_addframe_(&data->chart, &root, &none);
    for (std::int64_t i = 0; i < state.range(0); ++i)
      cx_addelement_(&data->chart, &frame, &line, &none);
    const std::size_t printed = printedSize(data->chart);
    state.ResumeTiming();
    state.counters["growth_per_printed"] =
        growthWhileSending(data->chart) / static_cast<double>(printed);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void sendRows(benchmark::State& state) {
  const Output output;
  const std::int64_t columns = state.range(1);
  for (auto _ : state) {
    state.PauseTiming();
    auto data = std::make_unique<DataChart>(static_cast<int>(columns));
    const std::size_t before = memory::resident();
    addRows(*data, state.range(0));
    const std::size_t held = memory::resident() - before;
    state.ResumeTiming();
    const double growth = growthWhileSending(data->chart);
    state.PauseTiming();
    const auto cells = static_cast<double>(state.range(0) * columns);
    state.counters["bytes_per_cell"] = static_cast<double>(held) / cells;
    state.counters["growth_per_cell"] = growth / cells;
    data.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0) * columns);
}

/// One row of many variables: what grows is the document, and the manifest with it.
void sendVariables(benchmark::State& state) {
  const Output output;
  for (auto _ : state) {
    state.PauseTiming();
    auto data = std::make_unique<DataChart>(static_cast<int>(state.range(0)));
    addRows(*data, 1);
    const std::size_t printed = printedSize(data->chart);
    state.ResumeTiming();
    state.counters["growth_per_printed"] =
        growthWhileSending(data->chart) / static_cast<double>(printed);
    state.counters["printed"] = static_cast<double>(printed);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void textCells(benchmark::State& state) {
  constexpr std::size_t distinct = 100;
  const auto rows = static_cast<std::size_t>(state.range(0));
  for (auto _ : state) {
    const std::size_t before = memory::resident();
    VarDataProcessor store;
    store.AddDataSource("source0", rows);
    VarDataProcessor::_varinfo column;
    store.AddVariable("source0", "x", column);
    for (std::size_t row = 0; row < rows; ++row)
      store.SetStringVariableValue(column, row, "the category " + std::to_string(row % distinct));
    state.counters["bytes_per_cell"] =
        static_cast<double>(memory::resident() - before) / static_cast<double>(rows);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(sendNodes)->Name("send/nodes")->Arg(1000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(sendVariables)->Name("send/variables")->Arg(65000)->Unit(benchmark::kMillisecond);
BENCHMARK(sendRows)
    ->Name("send/rows")
    ->Args({10000, 20})
    ->Args({250000, 20})
    ->Args({5000000, 2})
    ->Unit(benchmark::kMillisecond);
BENCHMARK(textCells)->Name("cell/text")->Arg(1000000)->Unit(benchmark::kMillisecond);

} // namespace
