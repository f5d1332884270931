#include <algorithm>

#include <fmt/format.h>

#include "text/Expression.h"
#include "text/Show.h"
#include "text/Wrap.h"
#include "translate/AxisTicks.h"
#include "translate/CategoryLabels.h"
#include "translate/Encode.h"
#include "translate/FacetLabels.h"
#include "translate/Matrix.h"
#include "translate/MinorTicks.h"
#include "translate/PolarAxis.h"
#include "translate/Space.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {
namespace {

constexpr int ticksAlongX = 9;
constexpr int ticksAlongY = 7;

/// As many as the panel has room for.
TickRoom roomOf(const Dimension& dimension, const Context& context) {
  constexpr double gap = 16;
  constexpr int mostDates = 12;
  const bool across = isAcross(dimension.role, context.chart);
  const double whole = across ? theme::plotWidth : theme::plotHeight;
  const double length = across ? context.layout.panelWidth : context.layout.panelHeight;
  TickRoom room{.numbers = std::max(
                    3, static_cast<int>((across ? ticksAlongX : ticksAlongY) * length / whole)),
                .dates = ticksAlongY};
  const auto* date = std::get_if<DateFormat>(&dimension.format());
  if (!across || date == nullptr) return room;
  const double width =
      gap + widestDate(*date, context.chart.folder->manifest.language, theme::labelSize);
  room.dates = std::clamp(static_cast<int>(length / width), 2, mostDates);
  return room;
}

void labelNumbers(Json& json, const Dimension& dimension, const Node& axis,
                  const Context& context) {
  const AxisTicks ticks = axisTicks(dimension, &axis, roomOf(dimension, context), context);
  json["values"] = Json::array();
  for (const double value : ticks.values)
    json["values"].push_back(jsonNumber(value));
  json["encode"]["labels"]["update"]["text"] = {{"signal", ticks.label}};
}

/// How long the ticks are, and on which side of the axis they stand.
void setTickLength(Json& json, const Node& majorTicks, const Context& context) {
  constexpr double usual = 5;
  const double length = tickLength(majorTicks, usual, context.notes);
  if (length == usual) return;
  json["tickSize"] = jsonNumber(length);
  if (majorTicks.attribute("position") == "inside")
    json["labelPadding"] = jsonNumber(usual - length);
}

/// The angle of the labels that the document asks for.
void setTickStyle(Json& json, const Node& majorTicks, const Context& context) {
  setTickLength(json, majorTicks, context);
  const std::string_view text = majorTicks.attribute("labelAngle");
  const double angle = numberOf(text);
  if (text.empty()) return;
  const bool isDrawn = angle >= -360 && angle <= 360;
  if (!isDrawn) {
    context.notes.add("Attribute not drawn^3", {majorTicks.name(), "labelAngle", shown(text)});
    return;
  }
  json["labelAngle"] = jsonNumber(angle);
  if (angle != 0 && json["orient"] == "bottom") json["labelAlign"] = angle < 0 ? "right" : "left";
}

/// The line of the other axis lies where the scale begins; a grid line would cover it.
void hideGridOnBaseline(Json& json, const Dimension& dimension) {
  const Json values = json.value("values", Json::array());
  if (dimension.categorical || values.empty() || values[0] != jsonNumber(dimension.low)) return;
  json["encode"]["grid"]["update"]["opacity"] = {
      {"signal", fmt::format("datum.value==={}?0:1", literal(dimension.low))}};
}

/// Where the axis of a role stands among the panels: whether its ticks are labelled
/// there, and whether its title is.
struct Standing {
  bool hasLabels = true;
  bool hasTitle = true;
};

Standing standingOf(const Dimension& dimension, bool opposite, const Context& context) {
  const Facets& facets = context.chart.facets;
  if (!facets.isSplit()) return {};
  const bool across = isAcross(dimension.role, context.chart);
  const std::size_t place = across ? context.panel().row : context.panel().column;
  const std::size_t last = (across ? facets.rows.size() : facets.columns.size()) - 1;
  const bool isOuter = place == (across == opposite ? 0 : last);
  const bool isFirst = (across ? context.panel().column : context.panel().row) == 0;
  const Node* node = context.chart.dimensionNode(dimension.role);
  const bool isShared = node->attribute("facetsShareScale") != "false";
  return {.hasLabels = isOuter || !isShared, .hasTitle = isOuter && (isFirst || facets.isMatrix)};
}

/// One title for all panels stands in the middle of them.
void centreTitle(Json& json, bool across, const Context& context) {
  const Layout& layout = context.layout;
  if (across)
    json["titleX"] = jsonNumber(layout.width / 2 - layout.left[context.panel().column]);
  else
    json["titleY"] = jsonNumber(layout.height / 2 - layout.top[context.panel().row]);
}

/// A title is as long as all panels, or in a matrix as its own.
double titleRoom(bool across, const Context& context) {
  const Layout& layout = context.layout;
  if (context.chart.facets.isMatrix) return across ? layout.panelWidth : layout.panelHeight;
  return across ? layout.width : layout.height;
}

Json axisOf(const Node& axis, const Dimension& dimension, Context& context) {
  const bool across = isAcross(dimension.role, context.chart);
  const bool opposite = axis.attribute("opposite") == "true";
  const char* nearSide = across ? "bottom" : "left";
  const char* farSide = across ? "top" : "right";
  const char* side = opposite ? farSide : nearSide;
  const Node* ticks = axis.child("majorTicks");
  const Standing standing = standingOf(dimension, opposite, context);
  const bool isUnlabelled = !standing.hasLabels || isRedundant(dimension, context.chart);
  const bool isUntitled = !standing.hasTitle || (context.chart.facets.areAlongAxis && across &&
                                                 !context.chart.facets.columns.front().empty());
  const bool hasTicks = ticks != nullptr && !isUnlabelled;
  const auto length = static_cast<int>(titleRoom(across, context));
  Json json{{"scale", dimension.role},
            {"orient", side},
            {"title", isUntitled
                          ? std::vector<std::string>()
                          : wrap(axisTitle(axis, dimension),
                                 {.width = length, .fontSize = theme::axisTitleSize, .lines = 3})},
            {"grid", ticks != nullptr && hasGrid(*ticks, context)},
            {"ticks", hasTicks},
            {"labels", hasTicks}};
  if (context.chart.facets.isSplit()) {
    json["domain"] = standing.hasLabels;
    // By itself a grid is as long as the whole plot.
    json["gridScale"] = dimension.role == "x" ? "y" : "x";
    if (!isUntitled && !context.chart.facets.isMatrix) centreTitle(json, across, context);
  }
  std::size_t lines = 1;
  if (dimension.categorical) {
    refuseDelta(ticks, context.notes);
    lines = labelCategories(json, dimension, ticks, context);
  } else {
    labelNumbers(json, dimension, axis, context);
  }
  if (ticks != nullptr) {
    setTickStyle(json, *ticks, context);
    const bool hasAll = dimension.categorical && !json.contains("values");
    const std::size_t count = hasAll ? dimension.categories.size() : json["values"].size();
    stagger(json, *ticks, count, lines, context.notes);
  }
  if (json["grid"] == true) hideGridOnBaseline(json, dimension);
  return json;
}

/// Polar roles are those of the flat plot going around and outward, but for a pie.
std::string_view positionRole(std::string_view role, const Chart& chart) {
  const bool isPie = std::ranges::all_of(chart.elements, &Element::isSlice);
  if (!chart.isPolar || isPie) return role;
  if (role == "theta") return "x";
  return role == "r" ? "y" : role;
}

} // namespace

std::string axisTitle(const Node& axis, const Dimension& dimension) {
  const Node* label = axis.child("label");
  if (label != nullptr) return label->text;
  std::string title;
  for (const Variable* variable : dimension.variables) {
    if (title.find(variable->title) != std::string::npos) continue;
    if (!title.empty()) title += ", ";
    title += variable->title;
  }
  return title;
}

/// The axes of a dimension; its scale is there whether it has a node or not.
void translateDimension(const Node& node, Context& context) {
  const std::string_view role = positionRole(node.attribute("role"), context.chart);
  if (context.chart.space != nullptr && (role == "x" || role == "y" || role == "z"))
    return addSpatialAxis(node, context);
  if (role == "z") context.notes.add("Attribute not drawn yet^3", {node.name(), "role", "z"});
  if (role != "x" && role != "y") {
    if (node.child("axis") != nullptr) context.notes.add("Axis not drawn yet^1", {shown(role)});
    return;
  }
  if (context.chart.isPolar) return addPolarAxis(node, role, context);
  for (const Node& child : node.children) {
    if (child.kind != "axis") continue;
    Json axis = axisOf(child, context.along(role), context);
    if (const Node* minorTicks = child.child("minorTicks"))
      addMinorTicks(axis, *minorTicks, context.along(role), context);
    context.parts.axes.push_back(std::move(axis));
  }
}

} // namespace render
