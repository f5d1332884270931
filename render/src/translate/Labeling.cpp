#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "compute/Sample.h"
#include "text/Expression.h"
#include "translate/Beyond.h"
#include "translate/Encode.h"
#include "translate/Filling.h"
#include "translate/Groups.h"
#include "translate/LabelPlace.h"
#include "translate/Style.h"
#include "translate/Theme.h"

namespace render {
namespace {

/// Outliers are rows, whatever sums up the others.
bool showsRows(const Element& element) {
  return element.type() == "schema" ||
         (element.summary != nullptr &&
          (element.summary->name == "tukeyOutliers" || element.summary->name == "tukeyExtremes"));
}

/// The value of what a statistic makes, else that of the row.
std::string textOf(const Element& element, const Variable& variable, Context& context) {
  if (variable.categorical) {
    addLabelScale(variable, context.parts);
    return fmt::format("scale({},{})", literal(scaleName("label", variable.id)),
                       datum(variable.id));
  }
  const bool isOfRow = element.method == Method::none || showsRows(element);
  if (isOfRow) return textOf(variable, datum(variable.id));
  const bool hasFormat = !std::holds_alternative<std::monostate>(variable.format);
  if (element.method == Method::share && !hasFormat) return "format(datum.value,\".1f\")+\"%\"";
  return textOf(variable, "datum.value");
}

/// One line for each labeling.
std::string linesOf(const Element& element, Context& context) {
  std::vector<std::string> lines;
  lines.reserve(element.labels.size());
  for (const Variable* variable : element.labels)
    lines.push_back(textOf(element, *variable, context));
  return lines.size() == 1 ? lines.front() : fmt::format("[{}]", fmt::join(lines, ","));
}

/// An expression for a letter color that can be read on a color.
std::string readableOn(const std::string& color) {
  return fmt::format("luminance({})>0.179?'#111111':'#ffffff'", color);
}

/// The color of the mark as an expression.
std::string colorExpression(const Element& element, Context& context) {
  const Json shown = color(element, context);
  if (shown.contains("signal")) return shown["signal"];
  const Variable& variable = element.shade != nullptr ? *element.shade : *element.group;
  return fmt::format("scale({},{})", literal(shown["scale"].get<std::string>()),
                     datum(variable.id));
}

Json letters(const Element& element, Context& context) {
  return {{"text", {{"signal", linesOf(element, context)}}},
          {"align", {{"value", "center"}}},
          {"baseline", {{"value", "middle"}}},
          {"fontSize", {{"value", labelFontSize}}},
          {"font", {{"value", theme::font(context.chart.folder->manifest)}}},
          {"fill", {{"signal", "ink"}}}};
}

/// Where the first line stands when the middle of all is at zero.
double firstLineOf(const Element& element) {
  return (1 - static_cast<double>(element.labels.size())) * labelLineHeight / 2;
}

/// Beyond the end of what is drawn: above it, or beside it in a transposed plot.
void placeBeyond(Json& update, const Element& element, double gap, const Context& context) {
  const double first = firstLineOf(element);
  if (isAcross(measureRole(element), context.chart)) {
    update["align"] = {{"signal", "datum.low>datum.high?'right':'left'"}};
    update["dx"] = {{"signal", "datum.low>datum.high?-4:4"}};
    update["dy"] = {{"value", first}};
    return;
  }
  update["dy"] = {{"signal", fmt::format("datum.low>datum.high?{}:{}", gap, 2 * first - gap)}};
}

/// Beside a mark of no length the sign of its value decides nothing.
void placeBesidePoint(Json& update, const Element& element, const Context& context) {
  const double first = firstLineOf(element);
  if (context.chart.isTransposed) {
    update["align"] = {{"value", "left"}};
    update["dx"] = {{"value", 8}};
    update["dy"] = {{"value", first}};
    return;
  }
  update["dy"] = {{"value", 2 * first - 11}};
}

void placeAtBar(Json& update, const Element& element, Context& context) {
  const LabelPlaces places = placeLabels(element, context);
  const std::string_view role = measureRole(element);
  const Channels along = channelsOf(role, context.chart);
  placeBeyond(update, element, 9, context);
  if (places.inside == 0) return;
  const std::string middle =
      fmt::format("(scale({0},datum.low)+scale({0},datum.high))/2", literal(role));
  const std::string end = fmt::format("scale({},datum.high)", literal(role));
  update[along.start] = {{"signal", fmt::format("datum.label==='inside'?{}:{}", middle, end)}};
  // Within the bar it stands about the middle, whatever it does beyond the end.
  const std::pair<const char*, std::string> within[] = {
      {"dx", "0"}, {"dy", literal(firstLineOf(element))}, {"align", "'center'"}};
  for (const auto& [property, inside] : within) {
    if (!update.contains(property) || update[property].contains("value")) continue;
    const auto beyond = update[property]["signal"].get<std::string>();
    update[property] = {{"signal", fmt::format("datum.label==='inside'?{}:({})", inside, beyond)}};
  }
  update["fill"] = {{"signal", fmt::format("datum.label==='inside'?({}):ink",
                                           readableOn(colorExpression(element, context)))}};
}

/// Within the piece where it is wide enough, else beyond it.
void placeAtSlice(Json& update, const Element& element, Context& context) {
  placeLabels(element, context);
  const double radius = std::min(context.layout.panelWidth, context.layout.panelHeight) / 2;
  const std::string angle =
      fmt::format("(datum.low+datum.high)/2*{}", literal(turnsOf(element, context)));
  const std::string away = fmt::format("(datum.label==='inside'?{}:{})",
                                       literal(radius * sliceShare), literal(radius + 8));
  update["x"] = {{"signal", fmt::format("{}+{}*sin({})", literal(context.layout.panelWidth / 2),
                                        away, angle)}};
  update["y"] = {{"signal", fmt::format("{}-{}*cos({})", literal(context.layout.panelHeight / 2),
                                        away, angle)}};
  update["align"] = {{"signal", fmt::format("datum.label==='inside'||abs(sin({0}))<0.1?'center':"
                                            "sin({0})>0?'left':'right'",
                                            angle)}};
  // Above the pie all lines stand above their place, below it under it.
  update["dy"] = {{"signal", fmt::format("datum.label==='inside'?{0}:{0}-{1}*cos({2})",
                                         literal(firstLineOf(element)),
                                         literal(6 - firstLineOf(element)), angle)}};
  update["fill"] = {{"signal", fmt::format("datum.label==='inside'?({}):ink",
                                           readableOn(colorExpression(element, context)))}};
}

void place(Json& update, const Element& element, Context& context) {
  if (element.isSlice) return placeAtSlice(update, element, context);
  update.update(positions(element, context));
  Json& along = update[channelsOf(placeRole(element), context.chart).start];
  if (element.modifier == Modifier::dodge) addSlotOffset(along, element, theme::barBand, context);
  const std::string_view type = element.type();
  if (type == "interval" && !context.chart.isPolar) return placeAtBar(update, element, context);
  const bool isHidden = lookOf(*element.node) == Look::hidden;
  const bool isBesideMark = type == "point" || element.isLine();
  if (isBesideMark && !isHidden) return placeBesidePoint(update, element, context);
  update["dy"] = {{"value", firstLineOf(element)}};
  if (type == "tile") update["fill"] = {{"signal", readableOn(colorExpression(element, context))}};
}

} // namespace

void addLabels(const Element& element, Context& context) {
  if (element.labels.empty()) return;
  Json update = letters(element, context);
  place(update, element, context);
  const bool hasSome = update["fill"] != Json{{"signal", "ink"}};
  if (hasSome) update["opacity"] = {{"signal", "datum.label==='none'?0:1"}};
  if (element.labels.size() > 1) update["lineHeight"] = {{"value", labelLineHeight}};
  const bool isOnPattern = hasSome && isPatterned(element, context.chart);
  if (isOnPattern) update["fill"] = {{"signal", "ink"}};
  Json mark{{"type", "text"},
            {"from", {{"data", context.inPanel(element.node->id())}}},
            {"interactive", false},
            {"encode", {{"update", std::move(update)}}}};
  if (liesFarBeyond(context.chart)) mark["clip"] = true;
  if (isOnPattern) return addOnPaper(std::move(mark), context.parts.marks);
  context.parts.marks.push_back(std::move(mark));
}

void addOutlierLabels(const Element& element, const char* part, Context& context) {
  if (element.labels.empty()) return;
  Json update = letters(element, context);
  update.update(positions(element, context));
  addSlotOffset(update[channelsOf(placeRole(element), context.chart).start], element,
                theme::boxBand, context);
  update["align"] = {{"value", "left"}};
  update["dx"] = {{"value", 7}};
  update["dy"] = {{"value", firstLineOf(element)}};
  Json mark{{"type", "text"},
            {"from", {{"data", fmt::format("{}_{}", context.inPanel(element.node->id()), part)}}},
            {"interactive", false},
            {"encode", {{"update", std::move(update)}}}};
  if (liesFarBeyond(context.chart)) mark["clip"] = true;
  context.parts.marks.push_back(std::move(mark));
}

void addLabelsAlone(const Element& element, Context& context) {
  if (element.labels.empty()) return;
  context.parts.data.push_back(elementData(element, context));
  addLabels(element, context);
}

} // namespace render
