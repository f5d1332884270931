#include "translate/FacetLabels.h"

#include <algorithm>
#include <cmath>

#include "compute/Bins.h"
#include "text/Show.h"
#include "text/Wrap.h"
#include "translate/Encode.h"
#include "translate/FacetCells.h"
#include "translate/Theme.h"

namespace render {
namespace {

constexpr double lineHeight = theme::labelSize + 6;
constexpr double lineDistance = theme::labelSize + 2; ///< within a label of several lines

struct Text {
  Json text;                ///< an array has several lines
  std::string expression{}; ///< of Vega, in its place
  double x;
  double y;
  double limit;
  bool isTitle = false;
  double angle = 0;
};

void addText(const Text& text, Context& context) {
  Json shown =
      text.expression.empty() ? Json{{"value", text.text}} : Json{{"signal", text.expression}};
  Json update{{"x", {{"value", text.x}}},
              {"y", {{"value", text.y}}},
              {"text", std::move(shown)},
              {"align", {{"value", "center"}}},
              {"baseline", {{"value", "middle"}}},
              {"limit", {{"value", text.limit}}},
              {"font", {{"value", theme::font(context.chart.folder->manifest)}}},
              {"fontSize", {{"value", text.isTitle ? theme::axisTitleSize : theme::labelSize}}},
              {"fill", {{"signal", "ink"}}}};
  if (text.angle != 0) update["angle"] = {{"value", text.angle}};
  if (text.text.is_array()) {
    // Vega puts the first line at the place, not the middle of the lines.
    update["y"]["offset"] = lineDistance * (1 - static_cast<double>(text.text.size())) / 2;
    update["lineHeight"] = {{"value", lineDistance}};
  }
  context.parts.marks.push_back({{"type", "text"}, {"encode", {{"update", std::move(update)}}}});
}

/// The titles of all levels, "Island, Sex".
std::string titleOf(const std::vector<FacetCell>& cells, std::size_t firstLevel,
                    const Chart& chart) {
  std::string title;
  for (const FacetCell& cell : cells)
    for (std::size_t i = 0; i < cell.size(); ++i) {
      const std::string each = facetTitle(cell[i], firstLevel + i, chart);
      if (title.find(each) == std::string::npos) title += (title.empty() ? "" : ", ") + each;
    }
  return title;
}

const Category& categoryOf(const FacetValue& value) {
  return value.variable->categories[value.category];
}

Text labelOf(const Run& run) {
  const Category& category = categoryOf(*run.value);
  return {.text = category.label,
          .expression = category.expression,
          .x = run.middle,
          .y = run.middle,
          .limit = run.length};
}

void noteTicks(const Node& ticks, const Node& label, Notes& notes) {
  for (const std::string_view attribute : {"delta", "length", "stagger"}) {
    const std::string_view value = ticks.attribute(attribute);
    if (!value.empty() && value != "false" && value != "0")
      notes.add("Attribute not drawn there^4",
                {label.name(), attribute, shown(value), notes.text("At panels")});
  }
  if (ticks.child("gridLines") != nullptr) notes.add("No grid lines^1", {label.name()});
}

/// The angle that the axis of a level asks for: upright labels read up or down. What else
/// its ticks ask for has no place at panels.
double angleOf(std::size_t level, double usual, Context& context) {
  const Node* label = facetLabel(level, context.chart);
  const Node* axis = label != nullptr ? label->child("axis") : nullptr;
  const Node* ticks = axis != nullptr ? axis->child("majorTicks") : nullptr;
  if (ticks == nullptr) return usual;
  noteTicks(*ticks, *label, context.notes);
  const std::string_view text = ticks->attribute("labelAngle");
  const double angle = numberOf(text);
  const bool isDrawn = usual == 0 ? angle == 0 : std::abs(angle) == usual;
  if (isDrawn) return angle;
  if (!text.empty())
    context.notes.add("Attribute not drawn^3", {label->name(), "labelAngle", shown(text)});
  return usual;
}

/// A label above or below panels, whose width it may fill with several lines.
Json linesOf(const Run& run) {
  constexpr std::size_t mostLines = 3;
  const Category& category = categoryOf(*run.value);
  if (!category.expression.empty()) return category.label;
  Json lines = wrap(
      category.label,
      {.width = static_cast<int>(run.length), .fontSize = theme::labelSize, .lines = mostLines});
  return lines.size() > 1 ? lines : Json(category.label);
}

/// The labels of one level of columns and the room that they need.
struct Level {
  std::vector<Run> runs;
  std::vector<Json> lines{}; ///< of each run
  double height = lineHeight;
};

Level levelOf(std::size_t level, const Context& context) {
  Level labels{.runs = runsOf(context.chart.facets.columns, level, context.layout.left,
                              context.layout.panelWidth)};
  for (const Run& run : labels.runs) {
    const Json& lines = labels.lines.emplace_back(linesOf(run));
    const double more = lines.is_array() ? static_cast<double>(lines.size() - 1) : 0;
    labels.height = std::max(labels.height, lineHeight + lineDistance * more);
  }
  return labels;
}

void addLevel(std::size_t level, const Level& labels, double y, Context& context) {
  angleOf(level + 1, 0, context);
  for (std::size_t i = 0; i < labels.runs.size(); ++i) {
    const Run& run = labels.runs[i];
    Text text = labelOf(run);
    text.text = labels.lines[i];
    text.y = y;
    if (hasCells(level + 1, context.chart))
      addStrip({run.start(), y - labels.height / 2, run.length, labels.height}, context);
    addText(text, context);
  }
}

void labelColumns(Context& context) {
  const std::vector<FacetCell>& columns = context.chart.facets.columns;
  const bool alongAxis = context.chart.facets.areAlongAxis;
  std::vector<Level> levels;
  double distance = alongAxis ? axisRoom(context) : 0; // from the plot to the title
  for (std::size_t level = 0; level < depthOf(columns); ++level)
    distance += levels.emplace_back(levelOf(level, context)).height;
  const double ofTitle = distance;
  for (std::size_t level = 0; level < levels.size(); ++level) {
    const double middle = distance - levels[level].height / 2;
    addLevel(level, levels[level], alongAxis ? context.layout.height + middle : -middle, context);
    distance -= levels[level].height;
  }
  const Layout& layout = context.layout;
  addText(
      {.text = titleOf(columns, 1, context.chart),
       .x = layout.width / 2,
       .y = alongAxis ? layout.height + ofTitle + lineHeight * 0.7 : -ofTitle - lineHeight / 2 - 2,
       .limit = layout.width,
       .isTitle = true},
      context);
}

void labelRows(Context& context) {
  const std::vector<FacetCell>& rows = context.chart.facets.rows;
  const Layout& layout = context.layout;
  const std::size_t depth = depthOf(rows);
  constexpr double downwards = 90;
  const std::size_t firstLevel = 1 + depthOf(context.chart.facets.columns);
  for (std::size_t level = 0; level < depth; ++level) {
    const double angle = angleOf(firstLevel + level, downwards, context);
    for (const Run& run : runsOf(rows, level, layout.top, layout.panelHeight)) {
      Text text = labelOf(run);
      text.x = layout.width + lineHeight * (static_cast<double>(depth - level) - 0.5);
      text.angle = angle;
      if (hasCells(firstLevel + level, context.chart))
        addStrip({text.x - lineHeight / 2, run.start(), lineHeight, run.length}, context);
      addText(text, context);
    }
  }
  addText({.text = titleOf(rows, firstLevel, context.chart),
           .x = layout.width + lineHeight * (static_cast<double>(depth) + 0.5) + 4,
           .y = layout.height / 2,
           .limit = layout.height,
           .isTitle = true,
           .angle = downwards},
          context);
}

/// The title that a facetLabel has of its own, or null.
const Node* ownTitle(std::size_t level, const Chart& chart) {
  const Node* label = facetLabel(level, chart);
  const Node* axis = label != nullptr ? label->child("axis") : nullptr;
  const Node* title = axis != nullptr ? axis->child("label") : nullptr;
  if (title == nullptr && label != nullptr) title = label->child("label");
  return title != nullptr && !title->text.empty() ? title : nullptr;
}

/// The axes of a matrix tell its variables: there is no place for one title of all.
void refuseTitles(Context& context) {
  for (const std::size_t level : {1U, 2U})
    if (const Node* title = ownTitle(level, context.chart))
      context.notes.add("Not drawn^2", {title->name(), context.notes.text("Axes of a matrix")});
}

} // namespace

void addFacetLabels(Context& context) {
  addCellFrames(context);
  if (context.chart.facets.isMatrix) return refuseTitles(context);
  if (!context.chart.facets.columns.front().empty()) labelColumns(context);
  if (!context.chart.facets.rows.front().empty()) labelRows(context);
}

const Node* facetLabel(std::size_t level, const Chart& chart) {
  const Node* labeling = chart.plot->child("facetLabeling");
  if (labeling == nullptr) return nullptr;
  const std::string wanted = std::to_string(level);
  const auto found = std::ranges::find_if(labeling->children, [&](const Node& child) {
    return child.kind == "facetLabel" && child.attribute("level") == wanted;
  });
  return found == labeling->children.end() ? nullptr : &*found;
}

int rowLabelRoom(const Chart& chart) {
  if (chart.facets.isMatrix || chart.facets.rows.front().empty()) return 0;
  return static_cast<int>(lineHeight) * static_cast<int>(depthOf(chart.facets.rows) + 1) + 6;
}

bool isRedundant(const Dimension& dimension, const Chart& chart) {
  return chart.facets.areAlongAxis && dimension.categorical && !chart.elements.empty() &&
         std::ranges::all_of(chart.elements, [&](const Element& element) {
           const Variable* place = element.along(dimension.role);
           return element.group != nullptr && place != nullptr &&
                  element.group->texts == place->texts;
         });
}

double axisRoom(const Context& context) {
  constexpr double ofLabels = 24;
  const bool hasLabels = !isRedundant(context.along("x"), context.chart);
  return hasLabels ? ofLabels + 6 : 6;
}

std::string facetTitle(const FacetValue& value, std::size_t level, const Chart& chart) {
  const Node* title = ownTitle(level, chart);
  return title != nullptr ? title->text : value.variable->title;
}

} // namespace render
