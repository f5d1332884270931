#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <map>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

#include "read/ChartFolder.h"
#include "resolve/Element.h"
#include "resolve/Facets.h"
#include "resolve/Notes.h"
#include "resolve/Variable.h"

namespace render {

enum class ScaleType : std::uint8_t { linear, log, symmetricLog, power };

/// One position scale of a panel.
struct Dimension {
  std::string_view role;                    ///< "x" or "y"
  std::vector<const Variable*> variables{}; ///< drawn along it, each once
  bool categorical = false;
  std::vector<Category> categories{}; ///< of a categorical dimension
  bool isBanded = false;              ///< categories have a width that marks fill
  double low = 0;                     ///< of a continuous one, margins included
  double high = 1;
  ScaleType type = ScaleType::linear;
  double parameter = 10; ///< the base of a logarithm, or the exponent
  bool isInverted = false;
  double lowerMapping = 0; ///< where along the frame its ends stand, 0 to 1
  double upperMapping = 1;
  std::size_t notPositive = 0; ///< marks where a logarithmic scale has no logarithm

  /// That of the first of the variables that has one: a fitted value is shown as the
  /// values that it is fitted to.
  const Format& format() const;
};

/// One panel of the plot with what is drawn in it; the only one, or one of a facet.
struct Panel {
  std::size_t column = 0;
  std::size_t row = 0;
  Dimension x{.role = "x"};
  Dimension y{.role = "y"};
  Dimension z{.role = "z"};               ///< of a chart in space
  std::vector<Element> elements{};        ///< those of the chart, along the variables shown here
  std::vector<std::vector<Item>> items{}; ///< of each element

  const Dimension& along(std::string_view role) const {
    if (role == "z") return z;
    return role == "x" ? x : y;
  }
};

/// A chart with every reference resolved. It borrows the folder.
struct Chart {
  const ChartFolder* folder;
  std::deque<Variable> variables{};
  std::unordered_map<std::string_view, const Variable*> variableOfId{};

  const Node* plot = nullptr;         ///< the frame that is drawn; null when there is none
  std::vector<const Node*> leftOut{}; ///< further frames with a plot of their own
  std::deque<Element> elements{};     ///< those of the plot that can be drawn
  bool isTransposed = false;          ///< x goes up, y goes across
  bool isPolar = false;               ///< x goes around, y goes outward
  const Node* space = nullptr;        ///< tells how a box of three dimensions is seen; or null
  Facets facets{};
  std::vector<Panel> panels{}; ///< at least one
  /// Of sources with too many rows those that are drawn one by one.
  std::unordered_map<std::string_view, std::unordered_set<std::size_t>> drawnRows{};

  /// Whether an item that stands for one row of its own is drawn.
  bool draws(const Element& element, const Item& item) const;
  /// The element of a node, or null when it cannot be drawn.
  const Element* find(const Node& node) const;
  /// The variable that a node names, or null.
  const Variable* variableOf(const Node& aesthetic) const;
  /// The dimension of the plot for a role, or null.
  const Node* dimensionNode(std::string_view role) const;
};

/// Resolves a chart; what cannot be resolved is noted.
Chart resolve(const ChartFolder& folder, Notes& notes);

} // namespace render
