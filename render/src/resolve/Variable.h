#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "read/ChartFolder.h"
#include "resolve/Format.h"
#include "resolve/Notes.h"

namespace render {

struct Category {
  std::string key;          ///< the value as the data hold it
  std::string label;        ///< the text shown for it
  std::string expression{}; ///< of Vega, in place of the label of a value with a format
};

/// A number and the text that is shown in its place.
struct ValueLabel {
  double value;
  std::string label;
};

/// A variable of the chart with its values. Its id names its field in Vega.
struct Variable {
  std::string id;
  std::string title;  ///< its label, else its short label, else its id
  std::string source; ///< of rows, also where the node names another variable
  std::string domain; ///< the id of a domain node; empty without one
  bool categorical = false;
  bool isWeight = false; ///< tells how often each row counts
  Format format;

  const Column* texts = nullptr;          ///< null when it has no data
  std::vector<double> numbers;            ///< of a continuous variable; NaN is missing
  std::vector<Category> categories{};     ///< of a categorical one, in drawing order
  std::vector<double> codes{};            ///< the index of each row's category; NaN is missing
  std::vector<const Variable*> members{}; ///< of a variable that is composed of others
  std::vector<ValueLabel> valueLabels{};  ///< of a continuous variable
  bool isMatrix = false; ///< each member has panels of its own; rows need all of them
  std::shared_ptr<const Column> constants{}; ///< the values of a constant

  bool isMissing(std::size_t row) const;
};

/// Finds the values of a "variable" node and how they are shown. Values that are
/// not numbers, or too large to draw, become missing values of a continuous
/// variable and are noted.
Variable readVariable(const Node& node, const ChartFolder& folder, Notes& notes);

/// An expression for the text of a value of a continuous variable, which is an expression
/// too: its label, or else the value in the variable's format.
std::string textOf(const Variable& variable, std::string_view value);

/// The label of a value where it has one, else what another expression makes of it.
std::string labelled(const std::vector<ValueLabel>& labels, std::string_view value,
                     std::string otherwise);

/// The number of a whole text, or NaN.
double numberOf(std::string_view text);

} // namespace render
