#pragma once

#include <cstddef>
#include <deque>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "read/ChartFolder.h"
#include "resolve/Notes.h"
#include "resolve/Variable.h"

namespace render {

/// A graphic element that can be drawn: its variables have data, of one source.
struct Element {
  const Node* node;
  const Variable* x;
  const Variable* y;
  const Variable* group; ///< tells groups apart by colour and shape; may be null

  /// Whether a row has every value that the element needs.
  bool draws(std::size_t row) const;
};

/// One position scale of the plot.
struct Dimension {
  std::string_view role;                    ///< "x" or "y"
  std::vector<const Variable*> variables{}; ///< drawn along it, each once
  bool categorical = false;
  std::vector<Category> categories{}; ///< of a categorical dimension
  double low = 0;                     ///< of a continuous one, margins included
  double high = 1;

  /// That of the first of the variables that has one: a fitted value is shown as the
  /// values that it is fitted to.
  const Format& format() const;
};

/// A chart with every reference resolved. It borrows the folder.
struct Chart {
  const ChartFolder* folder;
  std::deque<Variable> variables{};
  std::unordered_map<std::string_view, const Variable*> variableOfId{};

  const Node* plot = nullptr;         ///< the frame that is drawn; null when there is none
  std::vector<const Node*> leftOut{}; ///< further frames with a plot of their own
  std::deque<Element> elements{};     ///< those of the plot that can be drawn
  Dimension x{.role = "x"};
  Dimension y{.role = "y"};

  /// The element of a node, or null when it cannot be drawn.
  const Element* find(const Node& node) const;
  /// The dimension of a role, or null for a role that is not drawn.
  const Dimension* dimension(std::string_view role) const;
};

/// Resolves a chart; what cannot be resolved is noted.
Chart resolve(const ChartFolder& folder, Notes& notes);

} // namespace render
