#include "translate/LabelSides.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>
#include <span>

#include <fmt/format.h>

#include "compute/Crowd.h"
#include "translate/Encode.h"
#include "translate/ItemPlace.h"
#include "translate/LabelPlace.h"
#include "translate/Style.h"
#include "translate/Theme.h"

namespace render {
namespace {

constexpr double symbolReach = 4.5;
constexpr double halfLetter = 5.5; ///< of the height of a label's letters

/// A side of a place, as Vega's text marks tell it. `lines` is how many times further up a
/// label of several lines starts, by half their height.
struct Side {
  double dx;
  double dy;
  std::string_view align;
  int lines;

  bool operator==(const Side&) const = default;
};

constexpr std::array aroundPoint{
    Side{0, -11, "center", 2}, Side{8, 0, "left", 1},   Side{-8, 0, "right", 1},
    Side{0, 11, "center", 0},  Side{6, -9, "left", 2},  Side{-6, -9, "right", 2},
    Side{6, 9, "left", 0},     Side{-6, 9, "right", 0},
};
constexpr std::array besidePoint{
    Side{8, 0, "left", 1},    Side{-8, 0, "right", 1}, Side{0, -11, "center", 2},
    Side{0, 11, "center", 0}, Side{6, -9, "left", 2},  Side{-6, -9, "right", 2},
    Side{6, 9, "left", 0},    Side{-6, 9, "right", 0},
};
/// Of names that stand alone, and so may move further.
constexpr std::array aroundNothing{
    Side{0, 0, "center", 1},   Side{0, -13, "center", 1}, Side{0, 13, "center", 1},
    Side{0, 0, "left", 1},     Side{0, 0, "right", 1},    Side{0, -13, "left", 1},
    Side{0, -13, "right", 1},  Side{0, 13, "left", 1},    Side{0, 13, "right", 1},
    Side{0, -26, "center", 1}, Side{0, 26, "center", 1},
};

struct Label {
  const Element* element;
  Json* row;
  Spot spot;
  double width;
  double height; ///< of all lines but the last
  std::span<const Side> sides;
  std::size_t side = 0;
  bool mayBeLeftOut = false;

  Area areaAt(const Side& at) const {
    const double half = width / 2;
    const double toRight = at.align == "left" ? half : 0;
    const double middle = at.align == "right" ? -half : toRight;
    const double down = at.dy + (1 - at.lines) * height / 2;
    return Area{.left = -half,
                .top = -height / 2 - halfLetter,
                .right = half,
                .bottom = height / 2 + halfLetter}
        .movedBy(spot.x + at.dx + middle, spot.y + down);
  }
  Area area() const { return areaAt(sides[side]); }
};

bool isHidden(const Element& element) { return lookOf(*element.node) == Look::hidden; }

bool mayCollide(const Element& element) {
  return element.node->attribute("showCollidingLabels") != "false";
}

std::span<const Side> sidesOf(const Element& element, const Chart& chart) {
  if (isHidden(element)) return aroundNothing;
  return chart.isTransposed ? std::span<const Side>(besidePoint) : aroundPoint;
}

bool areArranged(const Element& element, const Context& context) {
  return !element.labels.empty() && (element.type() == "point" || element.isLine()) &&
         element.method != Method::dots && context.chart.space == nullptr;
}

Json* dataOf(const Element& element, Context& context) {
  const std::string name = context.inPanel(element.node->id());
  for (Json& data : context.parts.data)
    if (data["name"] == name && data.contains("values")) return &data["values"];
  return nullptr;
}

std::vector<Label> labelsOf(const Element& element, Context& context) {
  std::vector<Label> labels;
  Json* rows = dataOf(element, context);
  if (rows == nullptr) return labels;
  const std::vector<Spot> spots = spotsOf(element, context);
  for (std::size_t i = 0; i < std::min(rows->size(), spots.size()); ++i) {
    const LabelSize size = labelSize(element, (*rows)[i], context);
    labels.push_back({.element = &element,
                      .row = &(*rows)[i],
                      .spot = spots[i],
                      .width = size.width,
                      .height = size.height - labelLineHeight,
                      .sides = sidesOf(element, context.chart),
                      .mayBeLeftOut = !mayCollide(element)});
  }
  return labels;
}

/// Names that stand alone first: they are few, and mean much.
std::vector<Label> allLabels(Context& context) {
  std::vector<Label> labels;
  for (const bool hidden : {true, false})
    for (const Element& element : context.panel().elements) {
      if (isHidden(element) != hidden || !areArranged(element, context)) continue;
      for (const Label& label : labelsOf(element, context))
        labels.push_back(label);
    }
  return labels;
}

void addSymbols(const Element& element, Crowd& marks, const Context& context) {
  for (const Spot& spot : spotsOf(element, context))
    marks.add({.left = spot.x - symbolReach,
               .top = spot.y - symbolReach,
               .right = spot.x + symbolReach,
               .bottom = spot.y + symbolReach});
}

/// A line as small pieces on its way.
void addWay(const Spot& from, const Spot& to, Crowd& marks) {
  constexpr double piece = 4;
  constexpr double most = 400;
  const double steps =
      std::clamp(std::ceil(std::hypot(to.x - from.x, to.y - from.y) / piece), 1.0, most);
  for (double step = 0; step <= steps; ++step) {
    const double x = from.x + (to.x - from.x) * step / steps;
    const double y = from.y + (to.y - from.y) * step / steps;
    marks.add({.left = x - 1, .top = y - 1, .right = x + 1, .bottom = y + 1});
  }
}

void addLines(const Element& element, Crowd& marks, const Context& context) {
  const std::vector<const Item*> items = drawnItems(element, context);
  const std::vector<Spot> spots = spotsOf(element, context);
  std::map<std::vector<double>, std::vector<Spot>> lines;
  for (std::size_t i = 0; i < items.size(); ++i)
    lines[groupOf(element, *items[i])].push_back(spots[i]);
  const bool goesAlong = element.type() == "line";
  const bool isAcrossPlace = isAcross(placeRole(element), context.chart);
  for (auto& [group, way] : lines) {
    if (goesAlong && !context.chart.isPolar)
      std::ranges::stable_sort(way, {}, isAcrossPlace ? &Spot::x : &Spot::y);
    for (std::size_t i = 1; i < way.size(); ++i)
      addWay(way[i - 1], way[i], marks);
  }
}

Crowd marksOf(const Context& context) {
  Crowd marks;
  for (const Element& element : context.panel().elements) {
    if (isHidden(element) || element.method == Method::dots) continue;
    if (element.type() == "point") addSymbols(element, marks, context);
    if (element.isLine()) addLines(element, marks, context);
  }
  for (const Area& line : context.parts.linesAcross)
    marks.add(line);
  return marks;
}

/// How much is against a place: other labels most.
class Cost {
public:
  Cost(const Crowd& marks, const Layout& layout)
      : marks_(marks), panel_{.right = layout.panelWidth, .bottom = layout.panelHeight} {}

  double of(const Area& area, const Crowd& labels, std::size_t self) const {
    constexpr double ofLabels = 4;
    const double outside = area.on(area) - area.on(panel_);
    return ofLabels * labels.covered(area, self) + marks_.covered(area) + outside;
  }

private:
  const Crowd& marks_;
  Area panel_;
};

/// A name that stands alone rather moves away from the middle, as the line that it names does.
double reluctance(const Label& label, std::size_t side, const Layout& layout) {
  constexpr double ofSides = 2;
  if (!isHidden(*label.element) || side == 0) return ofSides * static_cast<double>(side);
  const Area area = label.areaAt(label.sides[side]);
  const Area usual = label.areaAt(label.sides[0]);
  const double x = (area.left - usual.left) * (label.spot.x - layout.panelWidth / 2);
  const double y = (area.top - usual.top) * (label.spot.y - layout.panelHeight / 2);
  return ofSides * static_cast<double>(side) + (x + y < 0 ? 20.0 : 0.0);
}

void findSide(Label& label, std::size_t self, const Crowd& labels, const Cost& cost,
              const Layout& layout) {
  double least = INFINITY;
  for (std::size_t side = 0; side < label.sides.size(); ++side) {
    const double pixels = cost.of(label.areaAt(label.sides[side]), labels, self);
    if (side == 0 && pixels == 0) {
      label.side = 0;
      return;
    }
    const double against = pixels + reluctance(label, side, layout);
    if (against >= least) continue;
    least = against;
    label.side = side;
  }
}

/// First each where it suits those before it, then those again that still meet something.
void findSides(std::vector<Label>& labels, const Context& context) {
  constexpr int rounds = 4;
  const Crowd marks = marksOf(context);
  const Cost cost(marks, context.layout);
  Crowd placed;
  for (Label& label : labels) {
    findSide(label, Crowd::nobody, placed, cost, context.layout);
    placed.add(label.area());
  }
  for (int round = 0; round < rounds; ++round)
    for (std::size_t i = 0; i < labels.size(); ++i) {
      if (cost.of(labels[i].area(), placed, i) == 0) continue;
      findSide(labels[i], i, placed, cost, context.layout);
      placed.move(i, labels[i].area());
    }
}

/// Those that lie on one that stays, in their order.
void leaveOut(std::vector<Label>& labels, Context& context) {
  Crowd kept;
  for (const Label& label : labels)
    if (!label.mayBeLeftOut) kept.add(label.area());
  for (Label& label : labels) {
    if (!label.mayBeLeftOut) continue;
    if (kept.covered(label.area()) == 0) {
      kept.add(label.area());
      continue;
    }
    (*label.row)["label"] = "none";
    ++context.parts.labelsLeftOut[label.element->node];
  }
}

/// Tells Vega the side of each label that is not the usual one.
void drawSides(const Element& element, std::span<const Side> sides, Context& context) {
  const double first = (1 - static_cast<double>(element.labels.size())) * labelLineHeight / 2;
  Json dx = Json::array(), dy = Json::array(), align = Json::array();
  for (const Side& side : sides) {
    dx.push_back(side.dx);
    dy.push_back(side.dy + side.lines * first);
    align.push_back(side.align);
  }
  const auto atSide = [](const Json& values) {
    return Json{{"signal", fmt::format("{}[datum.side||0]", values.dump())}};
  };
  const std::string data = context.inPanel(element.node->id());
  for (Json& mark : context.parts.marks) {
    const bool isLabel = mark["type"] == "text" && mark.contains("from");
    if (!isLabel || mark["from"]["data"] != data) continue;
    Json& update = mark["encode"]["update"];
    update["dx"] = atSide(dx);
    update["dy"] = atSide(dy);
    update["align"] = atSide(align);
    update["opacity"] = {{"signal", "datum.label==='none'?0:1"}};
  }
}

} // namespace

void arrangeLabels(Context& context) {
  std::vector<Label> labels = allLabels(context);
  if (labels.empty()) return;
  findSides(labels, context);
  leaveOut(labels, context);
  for (const Label& label : labels)
    if (label.side != 0) (*label.row)["side"] = label.side;
  for (const Element& element : context.panel().elements) {
    const bool isMoved = std::ranges::any_of(labels, [&](const Label& label) {
      return label.element == &element && (label.side != 0 || label.row->contains("label"));
    });
    if (isMoved) drawSides(element, sidesOf(element, context.chart), context);
  }
}

void noteLabelsLeftOut(Context& context) {
  for (const Element& element : context.chart.elements) {
    const auto found = context.parts.labelsLeftOut.find(element.node);
    if (found != context.parts.labelsLeftOut.end())
      context.notes.add("Labels left out^2", {element.node->name(), fmt::to_string(found->second)});
    else if (!element.labels.empty() && !mayCollide(element) && !areArranged(element, context))
      context.notes.add("Overlapping labels^1", {element.node->name()});
  }
}

} // namespace render
