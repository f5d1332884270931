#pragma once

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

#include "resolve/Element.h"

namespace render {

/// Values of one group of rows, ascending, each counted as often as its weight says.
class Sample {
public:
  struct Value {
    double value;
    double weight;
    std::size_t row;
  };

  explicit Sample(std::vector<Value> values);

  std::span<const Value> values() const { return values_; }
  double count() const { return count_; } ///< the sum of the weights
  double sum() const;
  double mean() const { return sum() / count_; }
  double standardDeviation() const; ///< about the mean, of n - 1
  double low() const { return values_.front().value; }
  double high() const { return values_.back().value; }
  /// The value of a rank, counted from 1; between two ranks halfway as far as it says.
  double atRank(double rank) const;
  double median() const { return atRank((count_ + 1) / 2); }

private:
  std::vector<Value> values_;
  std::vector<double> ranks_; ///< the last rank of each value
  double count_ = 0;
};

/// The box of a box plot: hinges are medians of the halves, both with the median when
/// the count is odd; whiskers end at the farthest values within 1.5 times the height of
/// the box; values beyond are outliers, beyond 3 times extremes.
struct Box {
  double lowerHinge, median, upperHinge;
  double lowerFence, upperFence; ///< where the whiskers end
  double lowerExtreme, upperExtreme;

  static Box of(const Sample& sample);
  BoxPart partOf(double value) const; ///< outlier, extreme or none
};

/// A part of what a summary shows, along the measure.
struct Span {
  double low;
  double high;
  std::size_t row; ///< of an outlier; else the first of the sample
  BoxPart part = BoxPart::none;
};

/// A statistic of the values at one place.
struct Summary {
  std::string_view name;
  std::vector<Span> (*spans)(const Sample& sample);
  bool needsMeasure = true; ///< without it rows are counted
  bool runs = false;        ///< each place goes on from the one before
};

/// The summary of that name, or null.
const Summary* findSummary(std::string_view name);

/// That of a whole box plot.
const Summary& boxPlot();

} // namespace render
