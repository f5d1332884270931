// What a data value costs, against the least that a call could do.
#include <benchmark/benchmark.h>

#include <memory>
#include <vector>

#include <chartxml/EntryPoints.h>
#include <host/Data.h>

namespace {

/// One numeric column, enough to declare a variable.
struct OneColumn final : KORVA_FortranDictionary, KORVA_Variable {
  int ColumnCount() const override { return 1; }
  const KORVA_Variable& GetVariable(int) const override { return *this; }
  int VariableCount() const override { return 1; }
  int GetIndex(int) const override { return 0; }
  const char* GetName() const override { return "x"; }
  const char* GetLabel() const override { return "X"; }
  int GetType() const override { return 0; }
  KORVA_Format GetFormat() const override { return {5, 8, 2}; }
  const KORVA_ValueLabelMap& GetValueLabels() const override { return labels; }
  KORVA_ValueLabelMap labels;
};

constexpr std::int64_t zero = 0;

struct DataChart {
  DataChart() {
    dictionary = &columns;
    chart = cx_createchart_(nullptr, reinterpret_cast<void* const*>(&dictionary), nullptr, nullptr);
    source = cx_addsource_(&chart);
    const std::int64_t first = 1;
    variable = cx_addvariable_(&chart, &source, &first, &zero);
  }
  ~DataChart() { cx_killcharts_(); }

  OneColumn columns;
  KORVA_FortranDictionary* dictionary;
  std::int64_t chart, source, variable;
};

void valuesThroughEntryPoint(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    auto data = std::make_unique<DataChart>();
    state.ResumeTiming();
    double value = 0;
    for (std::int64_t row = 0; row < state.range(0); ++row, value += 0.5) {
      cx_addrow_(&data->chart, &data->source);
      cx_adddoubledatavalue_(&data->chart, &data->source, &data->variable, &value);
    }
    state.PauseTiming();
    data.reset();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
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

} // namespace
