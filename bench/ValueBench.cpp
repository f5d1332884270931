// What a data value costs, against the least that a call could do.
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include <chartxml/EntryPoints.h>

#include "Columns.h"

namespace {

void valuesThroughEntryPoint(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto data = std::make_unique<DataChart>(1);
    state.ResumeTiming();
    double value = 0;
    for (std::int64_t row = 0; row < state.range(0); ++row, value += 0.5) {
      cx_addrow_(&data->chart, &data->source);
      cx_adddoubledatavalue_(&data->chart, &data->source, &data->variables.front(), &value);
    }
    state.PauseTiming();
    data.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void columnThroughEntryPoint(benchmark::State& state) {
  const std::vector<double> values(static_cast<std::size_t>(state.range(0)), 0.5);
  const std::int64_t count = state.range(0);
  const std::int64_t firstRow = 1;
  for (auto _ : state) {
    state.PauseTiming();
    auto data = std::make_unique<DataChart>(1);
    state.ResumeTiming();
    chartxml_loadnumbers_(&data->chart, &data->variables.front(), &firstRow, values.data(), &count);
    state.PauseTiming();
    data.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * count);
}

[[gnu::noinline]] void push(std::vector<double>& column, double value) {
  column.push_back(value);
  benchmark::ClobberMemory();
}

void valuesPushedBack(benchmark::State& state) {
  for (auto _ : state) {
    std::vector<double> column;
    double value = 0;
    for (std::int64_t row = 0; row < state.range(0); ++row, value += 0.5)
      push(column, value);
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

BENCHMARK(valuesPushedBack)->Name("value/push_back")->Arg(1000000);
BENCHMARK(valuesThroughEntryPoint)->Name("value/entry")->Arg(10000)->Arg(1000000);
BENCHMARK(columnThroughEntryPoint)->Name("value/column")->Arg(1000000);

} // namespace
