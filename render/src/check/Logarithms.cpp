// Logarithmic scales over values that have no logarithm.
#include <fmt/format.h>

#include "check/Check.h"

namespace render {
namespace {

const Node& scaleNode(const Node& dimension) {
  const Node* scale = dimension.child("scale");
  return scale != nullptr ? *scale : dimension;
}

} // namespace

void checkLogarithms(const Chart& chart, Report& report) {
  if (chart.space != nullptr) return; // scales are even there
  for (const std::string_view role : {"x", "y"}) {
    const Node* dimension = chart.dimensionNode(role);
    if (dimension == nullptr) continue;
    std::size_t count = 0;
    bool isSafe = false;
    for (const Panel& panel : chart.panels) {
      count += panel.along(role).notPositive;
      isSafe = isSafe || panel.along(role).type == ScaleType::symmetricLog;
    }
    if (count == 0) continue;
    const std::string what = fmt::format("marks along {} at zero or less, where there is no "
                                         "logarithm: {}",
                                         role, count);
    report.add(scaleNode(*dimension),
               isSafe ? what + "; its scale is even between -1 and 1 for them: make it a power "
                               "scale, or draw what is above zero"
                      : what + ", which are left out; make the scale safe, linear or a power, or "
                               "draw what is above zero");
  }
}

} // namespace render
