// Runs the benchmarks and closes with each figure as a ratio to its floor in the
// same run: ratios hold where times drift.
#include <benchmark/benchmark.h>

#include <map>
#include <string>

#include <fmt/format.h>

namespace {

struct Comparison {
  const char* figure;
  const char* floor;
  const char* meaning;
};

constexpr Comparison comparisons[] = {
    {"call/entry", "call/direct", "entry point that forwards, against the chart's operation"},
    {"call/fortran_text", "call/fortran_raw", "Fortran call with a text, against two entry points"},
    {"node/entry/1000", "node/bare/1000", "entry point to node added, against xerces bare"},
    {"node/entry/100000", "node/bare/100000", "the same in a chart of 100 000 nodes"},
    {"node/entry/100000", "node/entry/1000", "a node at 100 000, against one at 1000"},
    {"node/found/100000", "node/found/1000", "a node looked for below a frame, the same"},
    {"placed/appended/100000", "placed/appended/1000", "an element appended, the same"},
    {"placed/first_of_set/100000", "placed/first_of_set/1000", "a frame before the first style"},
    {"placed/facet/100000", "placed/facet/1000", "a cross in a facet"},
    {"placed/facet_label/100000", "placed/facet_label/1000", "a facet label"},
    {"placed/relabel/100000", "placed/relabel/1000", "a relabel of a variable"},
    {"placed/interval/100000", "placed/interval/1000", "an interval of a domain"},
    {"placed/axis/100000", "placed/axis/1000", "a frame, its dimension, axis and ticks"},
    {"placed/positions/100000", "placed/positions/1000", "an element and its position"},
    {"placed/reference_line/100000", "placed/reference_line/1000", "a reference line"},
    {"placed/function/100000", "placed/function/1000", "a function of x"},
    {"placed/label/100000", "placed/label/1000", "a legend and its label"},
    {"placed/aggregate/100000", "placed/aggregate/1000", "a computed variable with its column"},
    {"value/entry/1000000", "value/push_back/1000000", "row and value, against push_back"},
    {"value/column/1000000", "value/push_back/1000000", "a column's value, against push_back"},
    {"value/entry/1000000", "value/entry/10000", "row and value at 1 000 000, against 10 000"},
    {"text/entry", "text/copy", "text registered, against a u16string copied"},
    {"key/entry", "key/bundle", "key translated and kept, against ICU's bundle look-up"},
    {"composite/entry", "composite/fmt", "composite of four parameters, against fmt"},
    {"number/formatter", "number/to_chars", "number formatted for display, against to_chars"},
    {"send/rows/250000/20", "send/rows/10000/20", "value built and sent at 250 000 rows of 20"},
    {"send/rows/5000000/2", "send/rows/10000/20", "value built and sent at 5 000 000 rows of 2"},
    {"print/chart/10000", "print/xerces/10000", "document printed, against xerces' serializer"},
};

/// Prints as the console reporter does and remembers the time of one item.
class RatioReporter : public benchmark::ConsoleReporter {
public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.run_type == Run::RT_Aggregate && run.aggregate_name != "median") continue;
      const auto items = run.counters.find("items_per_second");
      const auto bytes = run.counters.find("bytes_per_second");
      if (items != run.counters.end()) {
        seconds_[run.run_name.function_name + arguments(run)] = 1 / items->second.value;
      } else if (bytes != run.counters.end()) {
        seconds_[run.run_name.function_name + arguments(run)] = 1 / bytes->second.value;
      }
    }
  }

  void printRatios() const {
    fmt::print("\n{:>8}  what\n", "ratio");
    for (const Comparison& c : comparisons) {
      const auto figure = seconds_.find(c.figure);
      const auto floor = seconds_.find(c.floor);
      if (figure == seconds_.end() || floor == seconds_.end()) continue;
      fmt::print("{:8.2f}  {} ({:.0f} ns / {:.0f} ns)\n", figure->second / floor->second, c.meaning,
                 figure->second * 1e9, floor->second * 1e9);
    }
  }

private:
  static std::string arguments(const Run& run) {
    return run.run_name.args.empty() ? "" : "/" + run.run_name.args;
  }

  std::map<std::string, double> seconds_;
};

} // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.printRatios();
  benchmark::Shutdown();
}
