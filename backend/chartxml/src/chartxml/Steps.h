#pragma once

#include <cstdint>

#include <chartxml/ChartXml.h>

namespace entry {

/// Operations on one chart, one after the other. After the first that fails none is
/// carried out any more, and each answers with that one's result.
class Steps {
public:
  Steps(ChartXml& registry, int chart) : registry_(registry), chart_(chart) {}

  /// An operation on the chart.
  template <class... Parameters, class... Arguments>
  int operator()(int (ChartXml::*operation)(int, Parameters...), Arguments... arguments) {
    return make(operation, chart_, arguments...);
  }

  /// An operation on the registry, such as one that makes a string.
  template <class... Parameters, class... Arguments>
  int make(int (ChartXml::*operation)(Parameters...), Arguments... arguments) {
    return run([&] { return (registry_.*operation)(arguments...); });
  }

  template <class Step> int run(Step step) {
    if (failed()) return failure_;
    const int result = step();
    if (result < 0) failure_ = result;
    return result;
  }

  /// An operation on the chart whose failure does not count.
  template <class... Parameters, class... Arguments>
  void attempt(int (ChartXml::*operation)(int, Parameters...), Arguments... arguments) {
    if (!failed()) (registry_.*operation)(chart_, arguments...);
  }

  bool failed() const { return failure_ < 0; }
  /// `result`, unless a step failed.
  std::int64_t orFailure(std::int64_t result) const { return failed() ? failure_ : result; }

private:
  ChartXml& registry_;
  int chart_;
  int failure_ = 0;
};

} // namespace entry
