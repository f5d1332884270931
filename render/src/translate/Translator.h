#pragma once

#include <string>
#include <vector>

#include "resolve/Chart.h"
#include "text/Json.h"

namespace render {

/// The parts of a Vega specification as the translators collect them.
struct Parts {
  std::vector<std::string> title;
  std::vector<std::string> subtitle;
  std::vector<std::string> footnotes;

  Json data = Json::array();
  Json scales = Json::array();
  Json axes = Json::array();
  Json legends = Json::array();
  Json marks = Json::array();

  std::vector<const Node*> functions; ///< the guides drawn as function lines

  bool hasScale(std::string_view name) const;
};

/// What a translator works with.
struct Context {
  const Chart& chart;
  Notes& notes;
  Parts parts;
};

using Translator = void (*)(const Node& node, Context& context);

// One translator a kind of node, each in a file of its own.
void translateDimension(const Node& node, Context& context);
void translateFunction(const Node& guide, Context& context);
void translateLegend(const Node& legend, Context& context);
void translateLine(const Node& node, Context& context);
void translatePoint(const Node& node, Context& context);
void translateStyle(const Node& style, Context& context);
void translateText(const Node& label, Context& context);

/// Walks the document in its order and calls each node's translator. A node or an
/// attribute that no rule knows is noted, and nothing below such a node is drawn.
Parts translate(const Chart& chart, Notes& notes);

} // namespace render
