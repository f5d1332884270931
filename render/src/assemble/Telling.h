#pragma once

#include <string>
#include <vector>

#include "text/Words.h"
#include "translate/Translator.h"

/// The sentences of a description, without their full stops; empty where there is nothing
/// to tell.
namespace render {

/// What they are made from.
struct Telling {
  const Chart& chart;
  const Parts& parts;
  const Words& words;

  /// A count, or another number without a format.
  std::string number(double value) const;
  /// A value as the variable's format has it; null is no variable.
  std::string value(const Variable* variable, double value) const;
  std::string label(const Variable& variable, const Category& category) const;
};

/// Lists are cut here: who listens cannot skip.
constexpr std::size_t mostListed = 12;

/// Texts one after the other, the first `mostListed` of them, between commas; between
/// semicolons when they have commas of their own, in numbers too. Blank ones are left out.
std::string listed(const std::vector<std::string>& texts);

/// The values of a continuous variable in the rows that an element draws; of all its members,
/// when it is composed.
std::vector<double> drawnValues(const Element& element, const Variable& variable);

/// The kind of the chart, and what is drawn beside it.
std::vector<std::string> tellKind(const Telling& telling);
/// What the panels are for; what is drawn along each axis, with its range.
std::vector<std::string> tellAxes(const Telling& telling);
/// Groups; what bars, boxes and pieces show.
std::vector<std::string> tellValues(const Telling& telling);
/// Correlations and outliers.
std::vector<std::string> tellTrend(const Telling& telling);

} // namespace render
