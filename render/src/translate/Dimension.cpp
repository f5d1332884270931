#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "resolve/DateTicks.h"
#include "resolve/Ticks.h"
#include "text/Expression.h"
#include "text/Show.h"
#include "text/Wrap.h"
#include "translate/CategoryLabels.h"
#include "translate/Encode.h"
#include "translate/FacetLabels.h"
#include "translate/MinorTicks.h"
#include "translate/PolarAxis.h"
#include "translate/Space.h"
#include "translate/Theme.h"
#include "translate/Translator.h"

namespace render {
namespace {

constexpr int ticksAlongX = 9;
constexpr int ticksAlongY = 7;

void setTicks(Json& axis, const std::vector<double>& values, std::string text) {
  axis["values"] = Json::array();
  for (const double value : values)
    axis["values"].push_back(jsonNumber(value));
  axis["encode"]["labels"]["update"]["text"] = {{"signal", std::move(text)}};
}

/// At places of the calendar; far outside of it there are none.
std::vector<double> timeTicks(const Dimension& dimension, const DateFormat& format,
                              const Context& context) {
  constexpr double gap = 16;
  constexpr int mostDates = 12;
  int most = ticksAlongY;
  if (isAcross(dimension.role, context.chart)) {
    const double width =
        gap + widestDate(format, context.chart.folder->manifest.language, theme::labelSize);
    most = std::clamp(static_cast<int>(context.layout.panelWidth / width), 2, mostDates);
  }
  const auto ticks = format.isDuration() ? durationTicks : dateTicks;
  return ticks(dimension.low, dimension.high, format.resolution(), static_cast<std::size_t>(most));
}

/// As many as the panel has room for.
int tickCount(const Dimension& dimension, const Context& context) {
  const bool across = isAcross(dimension.role, context.chart);
  const double whole = across ? theme::plotWidth : theme::plotHeight;
  const double length = across ? context.layout.panelWidth : context.layout.panelHeight;
  return std::max(3, static_cast<int>((across ? ticksAlongX : ticksAlongY) * length / whole));
}

/// At multiples of "delta", at powers, or at round numbers.
Ticks ticksOf(const Dimension& dimension, const Node* majorTicks, const Context& context) {
  const std::string_view text = majorTicks ? majorTicks->attribute("delta") : std::string_view();
  const double delta = numberOf(text);
  constexpr double mostSteps = 100;
  if (delta > 0 && (dimension.high - dimension.low) / delta <= mostSteps)
    return ticksEvery(delta, dimension.low, dimension.high);
  if (!text.empty())
    context.notes.add(
        fmt::format("{}: delta=\"{}\" is not drawn", majorTicks->name(), shown(text)));
  if (dimension.type == ScaleType::log)
    return ticksOfPowers(dimension.parameter, dimension.low, dimension.high);
  if (dimension.type == ScaleType::symmetricLog)
    return ticksOfLogarithm(dimension.parameter, dimension.low, dimension.high);
  return ticksWithin(dimension.low, dimension.high, tickCount(dimension, context));
}

bool showsPercent(const Node& axis) {
  const Node* transform = axis.child("transform");
  return transform != nullptr && transform->attribute("method") == "percent";
}

/// The axis's own format, else that of the values along it.
std::optional<NumberFormat> formatOf(const Node& axis, const Format& usual, Notes& notes) {
  if (const Node* own = axis.child("numberFormat")) return NumberFormat::read(*own, notes);
  const auto* number = std::get_if<NumberFormat>(&usual);
  return number != nullptr ? std::optional(*number) : std::nullopt;
}

/// What a delta asks for and ticks at categories or dates do not have.
void refuseDelta(const Node* majorTicks, Notes& notes) {
  if (majorTicks == nullptr || majorTicks->attribute("delta").empty()) return;
  notes.add(fmt::format("{}: delta=\"{}\" is not drawn", majorTicks->name(),
                        shown(majorTicks->attribute("delta"))));
}

/// The labels of values along a dimension: those of the first variable that has some.
const std::vector<ValueLabel>& valueLabelsOf(const Dimension& dimension) {
  static const std::vector<ValueLabel> none;
  for (const Variable* variable : dimension.variables)
    if (!variable->valueLabels.empty()) return variable->valueLabels;
  return none;
}

void labelNumbers(Json& json, const Dimension& dimension, const Node& axis,
                  const Context& context) {
  const Node* majorTicks = axis.child("majorTicks");
  const Format& format = dimension.format();
  if (const auto* date = std::get_if<DateFormat>(&format)) {
    const std::vector<double> values = timeTicks(dimension, *date, context);
    refuseDelta(majorTicks, context.notes);
    if (!values.empty()) return setTicks(json, values, dateText(*date, "datum.value"));
  }
  const Ticks ticks = ticksOf(dimension, majorTicks, context);
  const bool isPercent = showsPercent(axis);
  const double magnitude = std::max(std::abs(dimension.low), std::abs(dimension.high));
  std::string text = tickText(
      formatOf(axis, format, context.notes), isPercent ? "(datum.value*100)" : "datum.value",
      isPercent ? std::max(0, ticks.decimals - 2) : ticks.decimals,
      isPercent ? 100 * magnitude : magnitude, dimension.type == ScaleType::log);
  setTicks(json, ticks.values, labelled(valueLabelsOf(dimension), "datum.value", std::move(text)));
}

/// How long the ticks are, and on which side of the axis they stand.
void setTickLength(Json& json, const Node& majorTicks, const Context& context) {
  constexpr double usual = 5;
  constexpr double most = 50;
  const std::string_view text = majorTicks.attribute("length");
  double length = numberOf(text);
  const bool isDrawn = length >= 0 && length <= most;
  if (!isDrawn) {
    if (!text.empty())
      context.notes.add(
          fmt::format("{}: length=\"{}\" is not drawn", majorTicks.name(), shown(text)));
    length = usual;
  }
  const bool isInside = majorTicks.attribute("position") == "inside";
  if (length == usual && !isInside) return;
  json["tickSize"] = jsonNumber(isInside ? -length : length);
  if (isInside) json["labelPadding"] = jsonNumber(usual + length);
}

/// The angle of the labels that the document asks for.
void setTickStyle(Json& json, const Node& majorTicks, const Context& context) {
  setTickLength(json, majorTicks, context);
  const std::string_view text = majorTicks.attribute("labelAngle");
  const double angle = numberOf(text);
  if (text.empty()) return;
  const bool isDrawn = angle >= -360 && angle <= 360;
  if (!isDrawn) {
    context.notes.add(
        fmt::format("{}: labelAngle=\"{}\" is not drawn", majorTicks.name(), shown(text)));
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
            {"grid", ticks != nullptr && ticks->child("gridLines") != nullptr},
            {"ticks", hasTicks},
            {"labels", hasTicks}};
  if (context.chart.facets.isSplit()) {
    json["domain"] = standing.hasLabels;
    // By itself a grid is as long as the whole plot.
    json["gridScale"] = dimension.role == "x" ? "y" : "x";
    if (!isUntitled && !context.chart.facets.isMatrix) centreTitle(json, across, context);
  }
  if (dimension.categorical) {
    refuseDelta(ticks, context.notes);
    labelCategories(json, dimension, context);
  } else {
    labelNumbers(json, dimension, axis, context);
  }
  if (ticks != nullptr) setTickStyle(json, *ticks, context);
  if (json["grid"] == true) hideGridOnBaseline(json, dimension);
  return json;
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
  const std::string_view role = node.attribute("role");
  if (context.chart.space != nullptr && (role == "x" || role == "y" || role == "z"))
    return addSpatialAxis(node, context);
  if (role == "z") context.notes.add(fmt::format("{}: role=\"z\" is not drawn yet", node.name()));
  if (role != "x" && role != "y") {
    if (node.child("axis") != nullptr)
      context.notes.add(fmt::format("the axis of {} is not drawn yet", shown(role)));
    return;
  }
  if (context.chart.isPolar) return addPolarAxis(node, context);
  for (const Node& child : node.children) {
    if (child.kind != "axis") continue;
    Json axis = axisOf(child, context.along(role), context);
    if (const Node* minorTicks = child.child("minorTicks"))
      addMinorTicks(axis, *minorTicks, context.along(role), context);
    context.parts.axes.push_back(std::move(axis));
  }
}

} // namespace render
