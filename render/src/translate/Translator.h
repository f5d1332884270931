#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "compute/Crowd.h"
#include "resolve/Chart.h"
#include "text/Json.h"
#include "text/Words.h"
#include "translate/Layout.h"

namespace render {

/// An element or guide that a legend calls by its name.
struct Named {
  const Node* node;
  std::string title{}; ///< of the legend
  std::string text{};
  std::string color;     ///< an expression
  std::string filling{}; ///< one, where that is not the color
  std::string_view shape{};
  Json dash = Json::array();
  double opacity = 0; ///< of its filling
};

/// The parts of a Vega specification as the translators collect them.
struct Parts {
  std::vector<std::string> title;
  std::vector<std::string> subtitle;
  std::vector<std::string> footnotes;

  Json data = Json::array();
  Json positionScales = Json::array(); ///< of the plot; panels have their own
  Json scales = Json::array();
  Json axes = Json::array();
  Json legends = Json::array();
  Json marks = Json::array();
  Json overlay = Json::array(); ///< marks over all others of the plot or the panel

  std::vector<const Node*> functions; ///< the guides drawn as function lines
  std::vector<const Node*> lines;     ///< those drawn as lines across the plot
  std::vector<Area> linesAcross;      ///< where these are in the panel, but for those at categories
  std::vector<Named> named;           ///< in the order of the legends
  int symbolSize = 0;                 ///< of points; 0 before it is known
  std::map<const Node*, std::size_t> labelsLeftOut; ///< of elements, in all panels

  bool hasScale(std::string_view name) const;
  /// The marks from the lowest to the uppermost, of which nothing is left.
  Json takeMarks();
};

/// What a translator works with.
struct Context {
  const Chart& chart;
  const Layout& layout;
  const Words& words;
  Notes& notes;
  Parts parts;
  std::size_t panelIndex = 0; ///< of the panel that is drawn

  const Panel& panel() const { return chart.panels[panelIndex]; }
  const Dimension& along(std::string_view role) const { return panel().along(role); }
  /// The element of a node as the panel draws it, or null when it cannot be drawn.
  const Element* find(const Node& node) const;
  /// A name of what each panel has: with the panel's number, where there are several.
  std::string inPanel(std::string_view name) const;
};

using Translator = void (*)(const Node& node, Context& context);

// One translator a kind of node, each in a file of its own.
void translateArea(const Node& node, Context& context);
void translateBox(const Node& guide, Context& context);
void translateBoxPlot(const Node& node, Context& context);
void translateContour(const Node& node, Context& context);
void translateDimension(const Node& node, Context& context);
void translateFunction(const Node& guide, Context& context);
void translateInterval(const Node& node, Context& context);
void translateLegend(const Node& legend, Context& context);
void translateLine(const Node& node, Context& context);
void translatePlane(const Node& guide, Context& context);
void translatePoint(const Node& node, Context& context);
void translatePolygon(const Node& node, Context& context);
void translateReferenceLine(const Node& guide, Context& context);
void translateStyle(const Node& style, Context& context);
void translateText(const Node& label, Context& context);
void translateTile(const Node& node, Context& context);

/// Walks the document in its order and calls each node's translator, below the plot once
/// for each panel. A node or an attribute that no rule knows is noted, and nothing below
/// such a node is drawn.
Parts translate(const Chart& chart, const Layout& layout, const Words& words, Notes& notes);

} // namespace render
