#include "translate/Layout.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "text/Show.h"
#include "translate/FacetLabels.h"
#include "translate/Theme.h"

namespace render {
namespace {

constexpr double tableGap = 14;
constexpr double axisGap = 8;

/// "5%" of the plot, or a number of pixels.
double lengthOf(std::string_view text, double whole, double usual, const Node& node, Notes& notes) {
  if (text.empty()) return usual;
  const bool isPercent = text.ends_with('%');
  std::string_view number = isPercent ? text.substr(0, text.size() - 1) : text;
  if (number.ends_with("px")) number.remove_suffix(2);
  const double value = numberOf(number);
  if (value >= 0 && value <= 100) return isPercent ? whole * value / 100 : value;
  notes.add("Attribute not drawn^3", {node.name(), "gap", shown(text)});
  return usual;
}

/// The gap of a facet variable, or else of the label of its level.
double gapOf(const FacetValue& value, std::size_t level, double whole, double usual,
             const Chart& chart, Notes& notes) {
  const Node* node = value.node;
  const Node* label = facetLabel(level, chart);
  if (node->attribute("gap").empty() && label != nullptr) node = label;
  return lengthOf(node->attribute("gap"), whole, usual, *node, notes);
}

/// What all gaps of one direction have in common.
struct Direction {
  double whole;           ///< the length of the plot
  double usual;           ///< between neighbours of the innermost level
  std::size_t firstLevel; ///< of the labels
};

/// The first level at which two neighbours differ decides how far they are apart.
double gapBetween(const FacetCell& one, const FacetCell& next, const Direction& direction,
                  const Chart& chart, Notes& notes) {
  for (std::size_t i = 0; i < std::min(one.size(), next.size()); ++i) {
    if (one[i] == next[i]) continue;
    const double atLevel = i + 1 < one.size() ? 2 * direction.usual : direction.usual;
    return gapOf(one[i], direction.firstLevel + i, direction.whole, atLevel, chart, notes);
  }
  return direction.usual;
}

std::vector<double> gapsBetween(const std::vector<FacetCell>& cells, const Direction& direction,
                                const Chart& chart, Notes& notes) {
  std::vector<double> gaps;
  for (std::size_t i = 1; i < cells.size(); ++i)
    gaps.push_back(gapBetween(cells[i - 1], cells[i], direction, chart, notes));
  return gaps;
}

std::vector<double> placesOf(const std::vector<double>& gaps, double length) {
  std::vector<double> places{0};
  for (const double gap : gaps)
    places.push_back(places.back() + length + gap);
  return places;
}

/// The ratio of a panel's height to its width; 0 where it does not matter.
double aspectOf(const Chart& chart, Notes& notes) {
  const Node* labeling = chart.plot ? chart.plot->child("facetLabeling") : nullptr;
  const std::string_view text = labeling ? labeling->attribute("cellAspect") : std::string_view();
  const double aspect = numberOf(text);
  if (aspect >= 0.05 && aspect <= 20) return aspect;
  if (!text.empty())
    notes.add("Attribute not drawn^3", {labeling->name(), "cellAspect", shown(text)});
  return 0;
}

/// The side along which the bars of an icicle plot stand has room for a label at every
/// second one.
void makeRoomForIcicles(Layout& layout, const Chart& chart) {
  constexpr double least = 8; // of a bar
  constexpr std::size_t most = 1000;
  const std::optional<Icicle>& icicle = chart.folder->manifest.icicle;
  if (!icicle || chart.facets.isSplit()) return;
  double& side = chart.isTransposed ? layout.panelHeight : layout.panelWidth;
  side = std::max(side, least * static_cast<double>(std::min(icicle->bars, most)));
}

double sum(const std::vector<double>& values) {
  return std::accumulate(values.begin(), values.end(), 0.0);
}

} // namespace

Layout Layout::of(const Chart& chart, Notes& notes) {
  constexpr double least = 20; // of a panel's side, however many there are
  const double usual = chart.facets.areAlongAxis ? axisGap : tableGap;
  const std::vector<FacetCell>& columns = chart.facets.columns;
  const std::vector<FacetCell>& rows = chart.facets.rows;
  const std::size_t firstRowLevel = 1 + columns.front().size();
  const double plotWidth = theme::of(chart).plotWidth;
  const double plotHeight = theme::of(chart).plotHeight;
  const std::vector<double> across =
      gapsBetween(columns, {.whole = plotWidth, .usual = usual, .firstLevel = 1}, chart, notes);
  const std::vector<double> down = gapsBetween(
      rows, {.whole = plotHeight, .usual = usual, .firstLevel = firstRowLevel}, chart, notes);
  double width =
      std::max(least, std::floor((plotWidth - sum(across)) / static_cast<double>(columns.size())));
  double height =
      std::max(least, std::floor((plotHeight - sum(down)) / static_cast<double>(rows.size())));
  if (const double aspect = aspectOf(chart, notes); aspect > 0) {
    const double narrower = std::floor(std::min(width, height / aspect));
    height = std::floor(std::min(height, width * aspect));
    width = narrower;
  }
  Layout layout{.width = 0,
                .height = 0,
                .panelWidth = width,
                .panelHeight = height,
                .left = placesOf(across, width),
                .top = placesOf(down, height)};
  makeRoomForIcicles(layout, chart);
  layout.width = layout.left.back() + layout.panelWidth;
  layout.height = layout.top.back() + layout.panelHeight;
  return layout;
}

void makeUnitsEqual(Chart& chart, const Layout& layout, Notes& notes) {
  const auto asks = [&](std::string_view role) {
    const Node* node = chart.dimensionNode(role);
    return node != nullptr && node->attribute("sameRatio") == "trueCentered";
  };
  if (!asks("x") && !asks("y")) return;
  if (chart.facets.isMatrix) {
    notes.add("Units of a matrix");
    return;
  }
  for (Panel& panel : chart.panels) {
    const auto isEven = [](const Dimension& dimension) {
      return !dimension.categorical && dimension.type == ScaleType::linear;
    };
    if (!isEven(panel.x) || !isEven(panel.y)) {
      notes.add("Units of uneven scales");
      return;
    }
    const double alongX = chart.isTransposed ? layout.panelHeight : layout.panelWidth;
    const double alongY = chart.isTransposed ? layout.panelWidth : layout.panelHeight;
    const double unit =
        std::max((panel.x.high - panel.x.low) / alongX, (panel.y.high - panel.y.low) / alongY);
    const auto stretch = [unit](Dimension& dimension, double length) {
      const double middle = dimension.low + (dimension.high - dimension.low) / 2;
      dimension.low = middle - unit * length / 2;
      dimension.high = middle + unit * length / 2;
    };
    stretch(panel.x, alongX);
    stretch(panel.y, alongY);
  }
}

} // namespace render
