#include "translate/Space.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "compute/Bins.h"
#include "compute/View.h"
#include "text/Expression.h"
#include "text/PlainValue.h"
#include "text/Show.h"
#include "text/Wrap.h"
#include "translate/AxisTicks.h"
#include "translate/Encode.h"
#include "translate/Theme.h"

namespace render {
namespace {

constexpr std::array<std::string_view, 3> roles{"x", "y", "z"};
constexpr int ticksAlongEdge = 5;

std::size_t indexOf(std::string_view role) {
  return static_cast<std::size_t>(std::ranges::find(roles, role) - roles.begin());
}

/// A parameter of the view within its limits; one beyond them is noted.
double viewParameter(std::string_view name, double usual, double low, double high,
                     const Context& context) {
  const std::string_view text = parameter(*context.chart.space, name);
  const double value = numberOf(text);
  if (value >= low && value <= high) return value;
  if (!text.empty())
    context.notes.add("Parameter not drawn^3", {context.chart.space->name(), name, shown(text)});
  return usual;
}

View viewOf(const Context& context) {
  constexpr ViewAngles usual;
  constexpr double usualShare = 0.1;
  constexpr double mostShare = 0.4;
  const auto angle = [&](std::string_view name, double otherwise) {
    return viewParameter(name, otherwise, -360, 360, context);
  };
  return View({.theta = angle("theta", usual.theta),
               .phi = angle("phi", usual.phi),
               .zeta = angle("zeta", usual.zeta),
               .distance = viewParameter("distance", usual.distance, 0.6, 100, context)},
              {.width = context.layout.panelWidth,
               .height = context.layout.panelHeight,
               .sideShare = viewParameter("dx", usualShare, 0, mostShare, context),
               .endShare = viewParameter("dy", usualShare, 0, mostShare, context)});
}

/// Which end of each dimension is at the back of the box, -0.5 or 0.5.
BoxPlace backOf(const View& view) {
  BoxPlace back{};
  for (std::size_t i = 0; i < back.size(); ++i)
    back[i] = view.turn[2][i] > 0 ? -0.5 : 0.5;
  return back;
}

/// Where a value stands along its dimension of the box.
double inBox(double value, const Dimension& dimension) {
  const double share = (value - dimension.low) / (dimension.high - dimension.low) - 0.5;
  return dimension.isInverted ? -share : share;
}

AxisTicks ticksAlong(std::string_view role, const Context& context) {
  const Node* node = context.chart.dimensionNode(role);
  const Node* axis = node != nullptr ? node->child("axis") : nullptr;
  return axisTicks(context.along(role), axis, {.numbers = ticksAlongEdge, .dates = ticksAlongEdge},
                   context);
}

/// The angle of the labels that the document asks for.
double labelAngle(const Node& majorTicks, Notes& notes) {
  const std::string_view text = majorTicks.attribute("labelAngle");
  const double angle = numberOf(text);
  if (angle >= -360 && angle <= 360) return angle;
  if (!text.empty())
    notes.add("Attribute not drawn^3", {majorTicks.name(), "labelAngle", shown(text)});
  return 0;
}

std::string pathOf(const std::vector<BoxPlace>& places, const View& view) {
  std::string path;
  for (const BoxPlace& place : places) {
    const View::Point point = view.at(place);
    path += fmt::format("{}{:.6g},{:.6g}", path.empty() ? 'M' : 'L', point.x, point.y);
  }
  return path;
}

void addPath(Json update, const std::string& path, Context& context) {
  update["path"] = {{"value", path}};
  context.parts.marks.push_back(
      {{"type", "path"}, {"interactive", false}, {"encode", {{"update", std::move(update)}}}});
}

void addLine(const BoxPlace& start, const BoxPlace& end, const View& view, const char* color,
             Context& context) {
  addPath({{"stroke", {{"signal", color}}}}, pathOf({start, end}, view), context);
}

/// The edge along which a dimension is labelled: of the upright ones that at the left, of
/// the others the lowest in the picture.
BoxPlace edgeOf(std::size_t along, const View& view) {
  BoxPlace edge{};
  double least = INFINITY;
  for (const double one : {-0.5, 0.5})
    for (const double other : {-0.5, 0.5}) {
      BoxPlace middle{};
      middle[(along + 1) % 3] = one;
      middle[(along + 2) % 3] = other;
      const View::Point point = view.at(middle);
      const double rank = roles[along] == "y" ? point.x : -point.y;
      if (rank >= least) continue;
      least = rank;
      edge = middle;
    }
  return edge;
}

/// The way out of the box in the picture, of length 1, at right angles to an edge.
std::array<double, 2> wayOut(const BoxPlace& edge, std::size_t along, const View& view) {
  BoxPlace start = edge;
  BoxPlace end = edge;
  start[along] = -0.5;
  end[along] = 0.5;
  const View::Point from = view.at(start);
  const View::Point to = view.at(end);
  const View::Point middle = view.at(edge);
  const View::Point centre = view.at({});
  const double length = std::max(1.0, std::hypot(to.x - from.x, to.y - from.y));
  std::array<double, 2> way{(to.y - from.y) / length, (from.x - to.x) / length};
  const double outward = way[0] * (middle.x - centre.x) + way[1] * (middle.y - centre.y);
  if (outward < 0) way = {-way[0], -way[1]};
  return way;
}

struct Label {
  Json text;
  double x, y;
  const char* align;
  int size = theme::labelSize;
  double angle = 0;
};

void addLabel(const Label& label, Context& context) {
  context.parts.marks.push_back(
      {{"type", "text"},
       {"interactive", false},
       {"encode",
        {{"update",
          {{"x", {{"value", label.x}}},
           {"y", {{"value", label.y}}},
           {"text", label.text},
           {"align", {{"value", label.align}}},
           {"baseline", {{"value", "middle"}}},
           {"angle", {{"value", label.angle}}},
           {"font", {{"value", theme::font(context.chart.folder->manifest)}}},
           {"fontSize", {{"value", label.size}}},
           {"fill", {{"signal", "ink"}}}}}}}});
}

const char* alignOf(double across) {
  constexpr double slant = 0.3;
  if (std::abs(across) < slant) return "center";
  return across > 0 ? "left" : "right";
}

/// Every how many ticks there is room for a label, which are about as wide as they are told
/// plainly.
std::size_t stepOfLabels(const std::vector<View::Point>& places, const AxisTicks& ticks,
                         const Dimension& dimension, const Context& context) {
  constexpr double gap = 6;
  constexpr double height = theme::labelSize + 3;
  const PlainValue text(dimension.format(), context.chart.folder->manifest);
  double width = 0;
  for (const double value : ticks.values)
    width = std::max(width, gap + textWidth(text(value), theme::labelSize));
  const auto fits = [&](std::size_t step) {
    for (std::size_t i = step; i < places.size(); i += step) {
      const View::Point& one = places[i - step];
      if (std::abs(places[i].x - one.x) < width && std::abs(places[i].y - one.y) < height)
        return false;
    }
    return true;
  };
  std::size_t step = 1;
  while (step < places.size() && !fits(step))
    ++step;
  return step;
}

void addAxis(const Node& axis, std::size_t along, Context& context) {
  constexpr double labelGap = 14;
  constexpr double titleGap = 52;   // beyond labels above each other
  constexpr double uprightGap = 80; // beyond labels side by side
  constexpr int longest = 260;
  const View view = viewOf(context);
  const Dimension& dimension = context.along(roles[along]);
  const BoxPlace edge = edgeOf(along, view);
  const auto [outX, outY] = wayOut(edge, along, view);
  noteStraightAxis(axis, "In space", true, context.notes);
  if (const Node* majorTicks = axis.child("majorTicks")) {
    const double angle = labelAngle(*majorTicks, context.notes);
    const AxisTicks ticks = ticksAlong(roles[along], context);
    std::vector<View::Point> places;
    for (const double value : ticks.values) {
      BoxPlace place = edge;
      place[along] = inBox(value, dimension);
      places.push_back(view.at(place));
    }
    const std::size_t step = angle == 0 ? stepOfLabels(places, ticks, dimension, context) : 1;
    for (std::size_t i = 0; i < places.size(); i += step) {
      addLabel({.text = {{"signal", ticks.labelOf(ticks.values[i])}},
                .x = places[i].x + labelGap * outX,
                .y = places[i].y + labelGap * outY,
                .align = alignOf(outX),
                .angle = angle},
               context);
    }
  }
  const View::Point middle = view.at(edge);
  const bool isUpright = std::abs(outX) > 0.8;
  const double gap = isUpright ? uprightGap : titleGap;
  addLabel(
      {.text = {{"value", wrap(axisTitle(axis, dimension),
                               {.width = longest, .fontSize = theme::axisTitleSize, .lines = 2})}},
       .x = middle.x + gap * outX,
       .y = middle.y + gap * outY,
       .align = isUpright ? "center" : alignOf(outX),
       .size = theme::axisTitleSize,
       .angle = isUpright ? -90.0 : 0.0},
      context);
}

} // namespace

void addSpatialAxis(const Node& dimension, Context& context) {
  const std::string_view role = dimension.attribute("role");
  if (context.along(role).type != ScaleType::linear)
    context.notes.add("Even in space^1", {dimension.name()});
  for (const Node& axis : dimension.children)
    if (axis.kind == "axis") addAxis(axis, indexOf(role), context);
}

/// The edges of the box; without "complete" those that meet in its front corner are left
/// out, as they would cover what is in it.
void translateBox(const Node& guide, Context& context) {
  if (context.chart.space == nullptr) {
    context.notes.add("Not drawn^2", {guide.name(), context.notes.text("Flat plot")});
    return;
  }
  const View view = viewOf(context);
  const BoxPlace back = backOf(view);
  const bool isComplete = parameter(guide, "complete") != "false";
  for (std::size_t along = 0; along < roles.size(); ++along)
    for (const double one : {-0.5, 0.5})
      for (const double other : {-0.5, 0.5}) {
        const std::size_t first = (along + 1) % 3;
        const std::size_t second = (along + 2) % 3;
        const bool isInFront = one != back[first] && other != back[second];
        if (isInFront && !isComplete) continue;
        BoxPlace start{};
        start[first] = one;
        start[second] = other;
        BoxPlace end = start;
        start[along] = -0.5;
        end[along] = 0.5;
        addLine(start, end, view, "ink", context);
      }
}

/// The side of the box at the back whose normal the guide names, with lines at ticks.
void translatePlane(const Node& guide, Context& context) {
  const std::size_t normal = indexOf(parameter(guide, "normal"));
  if (context.chart.space == nullptr || normal == roles.size()) {
    context.notes.add("Not drawn^2", {guide.name(), context.notes.text("No side of a box")});
    return;
  }
  constexpr double opacity = 0.3;
  const View view = viewOf(context);
  const std::size_t first = (normal + 1) % 3;
  const std::size_t second = (normal + 2) % 3;
  const auto place = [&, back = backOf(view)](double one, double other) {
    BoxPlace corner = back;
    corner[first] = one;
    corner[second] = other;
    return corner;
  };
  const std::string side =
      pathOf({place(-0.5, -0.5), place(-0.5, 0.5), place(0.5, 0.5), place(0.5, -0.5)}, view);
  addPath({{"fill", {{"signal", "faint"}}}, {"fillOpacity", {{"value", opacity}}}}, side + "Z",
          context);
  const AxisTicks ticksOfFirst = ticksAlong(roles[first], context);
  for (const double value : ticksOfFirst.values) {
    const double at = inBox(value, context.along(roles[first]));
    addLine(place(at, -0.5), place(at, 0.5), view, "faint", context);
  }
  const AxisTicks ticksOfSecond = ticksAlong(roles[second], context);
  for (const double value : ticksOfSecond.values) {
    const double at = inBox(value, context.along(roles[second]));
    addLine(place(-0.5, at), place(0.5, at), view, "faint", context);
  }
}

void addProjection(Json& transforms, const Element& element, const Context& context) {
  const View view = viewOf(context);
  const auto add = [&transforms](std::string_view field, std::string expression) {
    transforms.push_back({{"type", "formula"}, {"as", field}, {"expr", std::move(expression)}});
  };
  std::array<std::string, 3> places;
  for (std::size_t i = 0; i < roles.size(); ++i) {
    const Dimension& dimension = context.along(roles[i]);
    const double length = dimension.high - dimension.low;
    places[i] = fmt::format(
        "(({}-{})/{}{})", datum(element.along(roles[i])->id), literal(dimension.low),
        literal(dimension.isInverted ? -length : length), dimension.isInverted ? "+0.5" : "-0.5");
  }
  const auto turned = [&](const BoxPlace& row) {
    return fmt::format("({}*{}+{}*{}+{}*{})", literal(row[0]), places[0], literal(row[1]),
                       places[1], literal(row[2]), places[2]);
  };
  const std::string size =
      fmt::format("{}/({}-datum.near)", literal(view.scale), literal(view.eye));
  add("near", turned(view.turn[2]));
  add("across", fmt::format("{}+{}*{}", literal(view.middleX), turned(view.turn[0]), size));
  add("down", fmt::format("{}-{}*{}", literal(view.middleY), turned(view.turn[1]), size));
  transforms.push_back({{"type", "collect"}, {"sort", {{"field", "near"}}}});
}

std::vector<Spot> spotsInSpace(const Element& element, const Context& context) {
  const View view = viewOf(context);
  std::vector<Spot> spots;
  for (const Item* item : drawnItems(element, context)) {
    BoxPlace place{};
    for (std::size_t i = 0; i < roles.size(); ++i)
      place[i] = inBox(element.along(roles[i])->numbers[item->row], context.along(roles[i]));
    const View::Point point = view.at(place);
    spots.push_back({.x = point.x, .y = point.y});
  }
  return spots;
}

Json spatialPositions() { return {{"x", {{"field", "across"}}}, {"y", {{"field", "down"}}}}; }

} // namespace render
