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
  /// A value as the axis shows it: its label, else in the variable's format; null is no
  /// variable.
  std::string value(const Variable* variable, double value) const;
  std::string label(const Variable& variable, const Category& category) const;
  /// "x from 1 to 5".
  std::string range(const std::string& title, const Variable* variable, double low,
                    double high) const;
  /// "from 1 to 5".
  std::string span(const Variable* variable, double low, double high) const;
  /// "a: b".
  std::string pair(std::string_view name, std::string_view text) const;
  /// "a (b)", or a alone where there is nothing to add.
  std::string withAddition(const std::string& text, const std::string& addition) const;
  /// Texts one after the other, the first `mostListed` of them and how many there are more,
  /// between commas; between semicolons when they have commas of their own, in numbers too.
  /// Blank ones are left out.
  std::string list(const std::vector<std::string>& texts) const;
};

/// Lists are cut here: who listens cannot skip.
constexpr std::size_t mostListed = 12;

/// Whether a variable shows its numbers below zero without their sign, as the two sides of a
/// pyramid do.
bool isMirrored(const Variable* variable);

/// The values of a continuous variable in the rows that an element draws; of all its members,
/// when it is composed.
std::vector<double> drawnValues(const Element& element, const Variable& variable);

/// Whether an element is one of the lines or points of a control chart.
bool isOfControlChart(const Element& element);
/// Whether an element is a survival curve, its band or its censored cases.
bool isOfSurvival(const Element& element);
bool isBoxPlot(const Element& element);
/// Whether points stand on a line of the same values, of which they are a part.
bool areOnLine(const Element& points, const Chart& chart);

/// The kind of the chart.
std::vector<std::string> tellKind(const Telling& telling);
/// What is drawn beside an element of a kind that has the mark `own`; null: nothing is known.
std::string tellBeside(const Telling& telling, std::string_view own);
/// What an element is called beside others; nothing for one that is a chart of its own.
std::string_view markOf(const Element& element);
/// What the panels are for; what is drawn along each axis, with its range.
std::vector<std::string> tellAxes(const Telling& telling);
/// Groups; what bars, lines, boxes and pieces show.
std::vector<std::string> tellValues(const Telling& telling);
/// Counts in bins and hexagons; the ranges of colors and sizes.
std::vector<std::string> tellAmounts(const Telling& telling);
/// Correlations.
std::vector<std::string> tellTrend(const Telling& telling);
std::vector<std::string> tellOutliers(const Telling& telling);

/// The first element whose points or cells show two continuous values of a row, else the
/// first line that does; null where a correlation says nothing.
const Element* continuousElement(const Chart& chart);

} // namespace render
