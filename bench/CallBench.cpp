// What stands between a caller and the chart's operation: an entry point, and the Fortran
// call over it that takes texts.
#include <benchmark/benchmark.h>

#include <cstdint>

#include <chartxml/Chart.h>
#include <chartxml/ChartXml.h>
#include <chartxml/EntryPoints.h>

extern "C" {
void name_by_entry_points(const std::int64_t* chart, const std::int64_t* element,
                          const std::int64_t* times);
void name_by_texts(const std::int64_t* chart, const std::int64_t* element,
                   const std::int64_t* times);
}

namespace {

struct NamedElement {
  NamedElement() {
    ChartXml& registry = *ChartXml::GetInstance();
    chart = registry.CreateChart();
    operations = registry.getValidChart(static_cast<int>(chart), "", 0, false);
    element = operations->AddElement(operations->AddFrame(0, -1), line, -1);
    name = registry.NStringNoTranslate("Body mass (g)");
  }
  ~NamedElement() { ChartXml::GetInstance()->KillCharts(); }
  NamedElement(const NamedElement&) = delete;
  NamedElement& operator=(const NamedElement&) = delete;

  static constexpr int line = 21;
  std::int64_t chart;
  std::int64_t element;
  std::int64_t name;
  Chart* operations;
};

void direct(benchmark::State& state) {
  const NamedElement on;
  for (auto _ : state)
    benchmark::DoNotOptimize(
        on.operations->SetElementName(static_cast<int>(on.element), static_cast<int>(on.name)));
  state.SetItemsProcessed(state.iterations());
}

void throughEntryPoint(benchmark::State& state) {
  const NamedElement on;
  for (auto _ : state)
    benchmark::DoNotOptimize(cx_setelementname_(&on.chart, &on.element, &on.name));
  state.SetItemsProcessed(state.iterations());
}

void fromFortran(benchmark::State& state, decltype(&name_by_texts) nameRepeatedly) {
  constexpr std::int64_t times = 1000;
  for (auto _ : state) {
    const NamedElement on;
    nameRepeatedly(&on.chart, &on.element, &times);
  }
  state.SetItemsProcessed(state.iterations() * times);
}

BENCHMARK(direct)->Name("call/direct");
BENCHMARK(throughEntryPoint)->Name("call/entry");
BENCHMARK_CAPTURE(fromFortran, raw, name_by_entry_points)->Name("call/fortran_raw");
BENCHMARK_CAPTURE(fromFortran, text, name_by_texts)->Name("call/fortran_text");

} // namespace
