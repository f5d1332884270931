#include "compute/Sample.h"

#include <algorithm>
#include <cmath>

namespace render {
namespace {

std::vector<Span> one(const Sample& sample, double value) {
  return {{.low = value, .high = value, .row = sample.values().front().row}};
}

std::vector<Span> whiskers(const Sample& sample) {
  const Box box = Box::of(sample);
  const std::size_t row = sample.values().front().row;
  return {{.low = box.lowerFence, .high = box.lowerHinge, .row = row, .part = BoxPart::whisker},
          {.low = box.upperHinge, .high = box.upperFence, .row = row, .part = BoxPart::whisker}};
}

std::vector<Span> hinges(const Sample& sample) {
  const Box box = Box::of(sample);
  return {{.low = box.lowerHinge,
           .high = box.upperHinge,
           .row = sample.values().front().row,
           .part = BoxPart::box}};
}

std::vector<Span> median(const Sample& sample) {
  std::vector<Span> spans = one(sample, sample.median());
  spans.front().part = BoxPart::median;
  return spans;
}

template <BoxPart part> std::vector<Span> beyond(const Sample& sample) {
  const Box box = Box::of(sample);
  std::vector<Span> spans;
  for (const Sample::Value& each : sample.values())
    if (box.partOf(each.value) == part)
      spans.push_back({.low = each.value, .high = each.value, .row = each.row, .part = part});
  return spans;
}

std::vector<Span> wholeBox(const Sample& sample) {
  std::vector<Span> all;
  for (auto* part :
       {&whiskers, &hinges, &median, &beyond<BoxPart::outlier>, &beyond<BoxPart::extreme>})
    for (const Span& span : part(sample))
      all.push_back(span);
  return all;
}

constexpr Summary summaries[] = {
    {"count", [](const Sample& s) { return one(s, s.count()); }, false},
    {"cumulativeCount", [](const Sample& s) { return one(s, s.count()); }, false, true},
    {"sum", [](const Sample& s) { return one(s, s.sum()); }},
    {"cumulativeSum", [](const Sample& s) { return one(s, s.sum()); }, true, true},
    {"mean", [](const Sample& s) { return one(s, s.mean()); }},
    {"median", median},
    {"min", [](const Sample& s) { return one(s, s.low()); }},
    {"max", [](const Sample& s) { return one(s, s.high()); }},
    {"standardDeviation", [](const Sample& s) { return one(s, s.standardDeviation()); }},
    {"range",
     [](const Sample& s) -> std::vector<Span> {
       return {{.low = s.low(), .high = s.high(), .row = s.values().front().row}};
     }},
    {"tukeyHinges", hinges},
    {"tukeyInnerFence", whiskers},
    {"tukeyOutliers", beyond<BoxPart::outlier>},
    {"tukeyExtremes", beyond<BoxPart::extreme>},
};

constexpr Summary boxes{"box", wholeBox};

} // namespace

Sample::Sample(std::vector<Value> values) : values_(std::move(values)) {
  std::ranges::stable_sort(values_, {}, &Value::value);
  for (const Value& each : values_)
    ranks_.push_back(count_ += each.weight);
}

double Sample::sum() const {
  double total = 0;
  for (const Value& each : values_)
    total += each.value * each.weight;
  return total;
}

double Sample::standardDeviation() const {
  if (count_ <= 1) return 0;
  const double middle = mean();
  double squares = 0;
  for (const Value& each : values_)
    squares += each.weight * (each.value - middle) * (each.value - middle);
  return std::sqrt(squares / (count_ - 1));
}

double Sample::atRank(double rank) const {
  const auto value = [this](double whole) {
    const auto found = std::ranges::lower_bound(ranks_, whole);
    return found == ranks_.end() ? values_.back().value
                                 : values_[static_cast<std::size_t>(found - ranks_.begin())].value;
  };
  const double below = std::floor(rank);
  const double low = value(below);
  return low + (rank - below) * (value(std::ceil(rank)) - low);
}

Box Box::of(const Sample& sample) {
  const double depth = (std::floor((sample.count() + 1) / 2) + 1) / 2;
  Box box{};
  box.lowerHinge = sample.atRank(depth);
  box.median = sample.median();
  box.upperHinge = sample.atRank(sample.count() + 1 - depth);
  const double height = box.upperHinge - box.lowerHinge;
  box.lowerExtreme = box.lowerHinge - 3 * height;
  box.upperExtreme = box.upperHinge + 3 * height;
  box.lowerFence = box.lowerHinge;
  box.upperFence = box.upperHinge;
  for (const Sample::Value& each : sample.values()) {
    if (each.value >= box.lowerHinge - 1.5 * height)
      box.lowerFence = std::min(box.lowerFence, each.value);
    if (each.value <= box.upperHinge + 1.5 * height)
      box.upperFence = std::max(box.upperFence, each.value);
  }
  return box;
}

BoxPart Box::partOf(double value) const {
  if (value >= lowerFence && value <= upperFence) return BoxPart::none;
  return value < lowerExtreme || value > upperExtreme ? BoxPart::extreme : BoxPart::outlier;
}

const Summary* findSummary(std::string_view name) {
  const auto* const found = std::ranges::find(summaries, name, &Summary::name);
  return found == std::end(summaries) ? nullptr : found;
}

const Summary& boxPlot() { return boxes; }

} // namespace render
