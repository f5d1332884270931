#include "translate/Encode.h"

#include <algorithm>
#include <cmath>

#include <fmt/format.h>

#include "text/Expression.h"
#include "translate/Beyond.h"
#include "translate/Groups.h"
#include "translate/Space.h"
#include "translate/StyleCycle.h"
#include "translate/Theme.h"
#include "translate/Tooltip.h"

namespace render {
namespace {

/// A place on a polar plot: x goes around from the top, y outward from the middle.
Json polarPositions(const Element& element, const Context& context) {
  const auto length = [&](std::string_view role) {
    const Json place =
        position(element, role, role == placeRole(element) ? "place" : "high", context);
    const std::string name = literal(role);
    const std::string value = place.contains("field") ? datum(place["field"].get<std::string>())
                                                      : literal(place["value"].get<std::string>());
    const std::string middle =
        context.along(role).categorical ? fmt::format("+bandwidth({})/2", name) : "";
    return fmt::format("(scale({},{}){})", name, value, middle);
  };
  const std::string angle = length("x");
  const std::string radius = length("y");
  return {{"x",
           {{"signal",
             fmt::format("{}+{}*sin({})", literal(context.layout.panelWidth / 2), radius, angle)}}},
          {"y",
           {{"signal", fmt::format("{}-{}*cos({})", literal(context.layout.panelHeight / 2), radius,
                                   angle)}}}};
}

void addShadeScale(const Element& element, Context& context) {
  const std::string name = scaleName("shade", element.shade->id);
  if (context.parts.hasScale(name)) return;
  double low = 0;
  double high = 0;
  bool isFirst = true;
  for (const double value : element.shade->numbers) {
    if (std::isnan(value)) continue;
    low = isFirst ? value : std::min(low, value);
    high = isFirst ? value : std::max(high, value);
    isFirst = false;
  }
  context.parts.scales.push_back({{"name", name},
                                  {"type", "linear"},
                                  {"domain", {jsonNumber(low), jsonNumber(high)}},
                                  {"range", {{"signal", theme::ramp(theme::of(context.chart))}}}});
}

/// The field of each variable that tells apart what a mark joins.
std::vector<std::string> splitFields(const Element& element) {
  std::vector<std::string> fields;
  if (element.group != nullptr) fields.push_back(element.group->id);
  for (const Variable* split : element.splits)
    fields.push_back(split->id);
  if (element.isComposed() || element.method == Method::contours) fields.emplace_back("member");
  return fields;
}

} // namespace

bool isAcross(std::string_view role, const Chart& chart) {
  return (role == "x") != chart.isTransposed;
}

Channels channelsOf(std::string_view role, const Chart& chart) {
  if (isAcross(role, chart)) return {"x", "x2", "xc", "width"};
  return {"y", "y2", "yc", "height"};
}

std::string_view placeRole(const Element& element) { return element.measuresX ? "y" : "x"; }
std::string_view measureRole(const Element& element) { return element.measuresX ? "x" : "y"; }

Json position(const Element& element, std::string_view role, std::string_view field,
              const Context& context) {
  const Dimension& dimension = context.along(role);
  const Variable* variable = element.along(role);
  if (!dimension.categorical) {
    const bool isRow = element.isPlain();
    return {{"scale", role}, {"field", isRow ? fieldPath(variable->id) : std::string(field)}};
  }
  Json json{{"scale", role}};
  if (variable != nullptr)
    json["field"] = fieldPath(variable->id);
  else
    json["value"] = dimension.categories.front().key;
  if (dimension.isBanded) json["band"] = 0.5;
  return json;
}

Json positions(const Element& element, const Context& context) {
  if (context.chart.isPolar) return polarPositions(element, context);
  if (context.chart.space != nullptr) return spatialPositions();
  Json json = Json::object();
  for (const std::string_view role : {"x", "y"})
    json[channelsOf(role, context.chart).start] =
        position(element, role, role == placeRole(element) ? "place" : "high", context);
  return json;
}

Json color(const Element& element, Context& context) {
  if (element.shade != nullptr && element.method == Method::none) {
    addShadeScale(element, context);
    return {{"scale", scaleName("shade", element.shade->id)},
            {"field", fieldPath(element.shade->id)}};
  }
  if (element.group == nullptr) return {{"signal", ownColor(element, context.chart)}};
  addGroupScales(*element.group, context.parts);
  return {{"scale", scaleName("color", element.group->id)},
          {"field", fieldPath(element.group->id)}};
}

void addSlotOffset(Json& channel, const Element& element, double share, const Context& context) {
  const std::size_t slots = slotCount(element, context);
  if (slots < 2) return;
  const double width = share / static_cast<double>(slots);
  const double first = -share / 2 + width / 2;
  channel["offset"] = {{"signal", fmt::format("bandwidth({})*({}+datum.slot*{})",
                                              literal(placeRole(element)), first, width)}};
}

bool isClipped(const Chart& chart) { return chart.plot->attribute("clip") == "true"; }

void addOnPaper(Json text, Json& marks) {
  Json paper = text;
  paper["aria"] = false; // one text for those who hear it
  Json& update = paper["encode"]["update"];
  update["fill"] = update["stroke"] = {{"signal", "paper"}};
  update["strokeWidth"] = {{"value", theme::haloWidth}};
  update["strokeJoin"] = {{"value", "round"}};
  marks.push_back(std::move(paper));
  marks.push_back(std::move(text));
}

void addMark(const Element& element, Json mark, bool isSplit, Context& context) {
  if (liesFarBeyond(context.chart)) mark["clip"] = true;
  const std::string data = context.inPanel(element.node->id());
  if (mark["encode"]["update"].contains("tooltip")) {
    Json walk = walkOf(element, context);
    walk.update(mark.value("walk", Json::object()));
    mark["walk"] = std::move(walk);
  }
  const std::vector<std::string> fields =
      isSplit ? splitFields(element) : std::vector<std::string>();
  if (fields.empty()) {
    mark["from"] = {{"data", data}};
    context.parts.marks.push_back(std::move(mark));
    return;
  }
  // Vega keeps groups in a plain object: a category must not be named like one
  // of the properties that every object has.
  Json keys = Json::array();
  for (const std::string& field : fields) {
    const std::string key = scaleName("facet", field);
    context.parts.data.back()["transform"].push_back(
        {{"type", "formula"}, {"as", key}, {"expr", "\"=\" + " + datum(field)}});
    keys.push_back(fieldPath(key));
  }
  const std::string group = data + "_group";
  mark["from"] = {{"data", group}};
  context.parts.marks.push_back(
      {{"type", "group"},
       {"from", {{"facet", {{"name", group}, {"data", data}, {"groupby", std::move(keys)}}}}},
       {"marks", Json::array({std::move(mark)})}});
}

} // namespace render
