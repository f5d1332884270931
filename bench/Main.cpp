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
    {"node/entry/1000", "node/bare/1000", "entry point to node added, against xerces bare"},
    {"node/entry/100000", "node/bare/100000", "the same in a chart of 100 000 nodes"},
    {"node/entry/100000", "node/entry/1000", "a node at 100 000, against one at 1000"},
    {"node/placed/100000", "node/placed/1000", "a node placed before a sibling, the same"},
    {"node/found/100000", "node/found/1000", "a node looked for below a frame, the same"},
    {"value/entry/1000000", "value/push_back/1000000", "row and value, against push_back"},
    {"value/entry/1000000", "value/entry/10000", "row and value at 1 000 000, against 10 000"},
    {"text/entry", "text/copy", "text registered, against a u16string copied"},
    {"key/entry", "key/bundle", "key translated and kept, against ICU's bundle look-up"},
    {"composite/entry", "composite/fmt", "composite of four parameters, against fmt"},
    {"number/formatter", "number/to_chars", "number formatted for display, against to_chars"},
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
