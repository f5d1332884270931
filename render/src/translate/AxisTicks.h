#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "translate/Translator.h"

/// The ticks of axes, wherever they stand.
namespace render {

/// Where a continuous dimension has ticks, and what they say.
struct AxisTicks {
  std::vector<double> values;
  std::string label; ///< an expression of datum.value

  /// The label of one value, as an expression.
  std::string labelOf(double value) const;
};

/// How many ticks there is room for.
struct TickRoom {
  int numbers;
  int dates;
};

/// The ticks that an axis asks for with its delta, its format and its transform, or those
/// that are usual; `axis` may be null. Dates have theirs at places of the calendar. What
/// cannot be drawn is noted.
AxisTicks axisTicks(const Dimension& dimension, const Node* axis, TickRoom room,
                    const Context& context);

/// Notes a delta where there are no numbers.
void refuseDelta(const Node* majorTicks, Notes& notes);

/// The length of ticks that a node asks for, negative where they stand inside of the plot.
double tickLength(const Node& ticks, double usual, Notes& notes);

/// Moves every other label of an axis that lies across one step of so many lines away, as
/// far as the document asks for it. `count` is the number of labels.
void stagger(Json& axis, const Node& majorTicks, std::size_t count, std::size_t lines,
             Notes& notes);

/// Whether the ticks are to be staggered.
bool isStaggered(const Node* majorTicks);

/// Notes what an axis asks for and only straight axes have; `where` tells where it stands.
void noteStraightAxis(const Node& axis, std::string_view where, bool hasAngles, Notes& notes);

} // namespace render
