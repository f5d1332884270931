// Whether a node costs the same in a small chart and in a large one, for every way
// in which the builder finds the place for it.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <string>

#include <chartxml/Chart.h>
#include <chartxml/ChartXml.h>
#include <host/ZephUni.h>

namespace {

ChartXml& registry() { return *ChartXml::GetInstance(); }

// Predefined strings.
constexpr int x = 1;
constexpr int y = 2;
constexpr int line = 21;
constexpr int color = 17;

/// A chart that has what the nodes of the benchmark are added to.
struct Growing {
  int chart;
  int frame;
  int parent;
};

/// One way to add a node. `open` makes the parent; `add` adds one step's nodes.
struct Placement {
  const char* name;
  int (*open)(const Growing&);
  void (*add)(const Growing&);
  int nodes; ///< that a step adds
};

int theFrame(const Growing& in) { return in.frame; }

const Placement placements[] = {
    {"appended", theFrame,
     [](const Growing& in) { registry().AddElement(in.chart, in.parent, line, -1); }, 1},
    {"first_of_set",
     [](const Growing& in) {
       registry().getValidChart(in.chart, "", 0, false)->AddStyles();
       return 0;
     },
     [](const Growing& in) { registry().AddFrame(in.chart, in.parent, -1); }, 1},
    {"aggregate", [](const Growing& in) { return registry().AddSource(in.chart); },
     [](const Growing& in) { registry().AddAggregate(in.chart, in.parent, x, false, -1, -1, -1); },
     1},
    {"relabel",
     [](const Growing& in) {
       return registry().AddAggregate(in.chart, registry().AddSource(in.chart), x, true, -1, -1,
                                      -1);
     },
     [](const Growing& in) { registry().AddRelabel(in.chart, in.parent, x, y); }, 1},
    {"facet",
     [](const Growing& in) {
       return registry().AddBlend(in.chart, registry().AddCoordinateFacet(in.chart, in.frame));
     },
     [](const Growing& in) { registry().AddCross(in.chart, in.parent); }, 1},
    {"facet_label",
     [](const Growing& in) { return registry().AddFacetLabeling(in.chart, in.frame); },
     [](const Growing& in) { registry().AddFacetLabel(in.chart, in.parent, -1, x, false); }, 1},
    {"interval",
     [](const Growing& in) {
       const int domain = registry().AddDomain(in.chart, false);
       registry().AddSort(in.chart, domain);
       return domain;
     },
     [](const Growing& in) { registry().AddInterval(in.chart, in.parent, x, y); }, 1},
    {"axis", [](const Growing&) { return 0; },
     [](const Growing& in) {
       const int frame = registry().AddFrame(in.chart, 0, -1);
       const int dimension = registry().AddDimension(in.chart, frame, x, -1);
       const int axis = registry().AddAxis(in.chart, dimension, -1, false);
       registry().AddMajorTicks(in.chart, axis, -1, true, -1, -1, false, -1);
     },
     4},
    {"positions", theFrame,
     [](const Growing& in) {
       const int element = registry().AddElement(in.chart, in.parent, line, -1);
       registry().AddPosition(in.chart, element);
     },
     2},
    {"reference_line", theFrame,
     [](const Growing& in) { registry().AddXReferenceLine(in.chart, in.parent, y, -1); }, 2},
    {"function", theFrame,
     [](const Growing& in) { registry().AddYFunctionOfX(in.chart, in.parent, y, -1); }, 3},
    {"label", theFrame,
     [](const Growing& in) {
       registry().AddLabel(in.chart, registry().AddLegend(in.chart, in.parent, -1), -1, color);
     },
     2},
};

void placed(benchmark::State& state, const Placement& placement) {
  for (auto _ : state) {
    state.PauseTiming();
    Growing in{registry().CreateChart(), 0, 0};
    in.frame = registry().AddFrame(in.chart, 0, -1);
    in.parent = placement.open(in);
    state.ResumeTiming();
    for (std::int64_t added = 0; added < state.range(0); added += placement.nodes)
      placement.add(in);
    state.PauseTiming();
    registry().KillCharts();
    state.ResumeTiming();
  }
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

const bool registered = [] {
  for (const Placement& placement : placements) {
    benchmark::RegisterBenchmark((std::string("placed/") + placement.name).c_str(), placed,
                                 placement)
        ->Arg(1000)
        ->Arg(100000);
  }
  return true;
}();

} // namespace
