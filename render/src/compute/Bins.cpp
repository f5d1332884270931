#include "compute/Bins.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "resolve/Ticks.h"
#include "text/Show.h"

namespace render {
namespace {

constexpr double mostBins = 1000;

/// A positive number; 0 when it is absent or cannot be used, which is noted.
double positive(const Node& statistic, std::string_view name, Notes& notes) {
  const std::string_view text = parameter(statistic, name);
  const double value = numberOf(text);
  if (text.empty()) return 0;
  if (value > 0) return value;
  notes.add("Not positive^3", {statistic.name(), name, shown(text)});
  return 0;
}

/// Between two multiples of a width; both ends inside.
Bins ofWidth(double width, double anchor, const Sample& places) {
  const double first = std::floor((places.low() - anchor) / width);
  const double last = std::floor((places.high() - anchor) / width);
  return {.start = anchor + first * width,
          .width = width,
          .count = static_cast<std::size_t>(last - first) + 1};
}

double usualWidth(const Sample& places) {
  const double range = places.high() - places.low();
  if (!(range > 0)) return 1;
  const double bins = std::ceil(std::log2(std::max(2.0, places.count()))) + 1;
  return stepWithin(range, static_cast<int>(bins));
}

} // namespace

std::size_t Bins::of(double value) const {
  const double bin = std::floor((value - start) / width);
  return static_cast<std::size_t>(std::clamp(bin, 0.0, static_cast<double>(count - 1)));
}

Bins Bins::of(const Node& statistic, const Sample& places, Notes& notes) {
  const double range = places.high() - places.low();
  double bins = std::floor(positive(statistic, "bins", notes));
  double width = positive(statistic, "bin-width", notes);
  if (bins > mostBins) {
    notes.add("Bins beyond the most^3",
              {statistic.name(), fmt::to_string(bins), fmt::to_string(mostBins)});
    bins = 0;
  }
  if (width == 0 && bins >= 1 && range > 0)
    return {.start = places.low(), .width = range / bins, .count = static_cast<std::size_t>(bins)};
  if (width > 0 && range / width > mostBins) {
    notes.add("Too many bins^3",
              {statistic.name(), fmt::to_string(width), fmt::to_string(mostBins)});
    width = 0;
  }
  const double anchor = numberOf(parameter(statistic, "bin-start"));
  if (width == 0) width = usualWidth(places);
  return ofWidth(width, std::isnan(anchor) ? 0 : anchor, places);
}

std::string_view parameter(const Node& node, std::string_view name) {
  // The last one is the one that was set last.
  const auto found =
      std::ranges::find_if(node.children.rbegin(), node.children.rend(), [name](const Node& child) {
        return child.kind == "parameter" && child.attribute("name") == name;
      });
  return found == node.children.rend() ? std::string_view() : found->attribute("value");
}

} // namespace render
