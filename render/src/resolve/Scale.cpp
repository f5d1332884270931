#include "resolve/Scale.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <map>
#include <optional>
#include <span>
#include <unordered_set>
#include <utility>
#include <vector>

#include <fmt/format.h>

#include "resolve/Domain.h"
#include "resolve/ScaleMethod.h"
#include "resolve/Ticks.h"

namespace render {
namespace {

constexpr double usualMargin = 0.05;

/// A share of a whole, from "5%".
std::optional<double> percentage(const Node* node, std::string_view name, Notes& notes) {
  const std::string_view text = node ? node->attribute(name) : std::string_view();
  if (text.empty()) return std::nullopt;
  const double percent = text.ends_with('%') ? numberOf(text.substr(0, text.size() - 1)) : NAN;
  if (percent >= 0 && percent <= 1000) return percent / 100;
  notes.add("Not a percentage^3", {node->name(), name, text});
  return std::nullopt;
}

/// Whether what an element draws along a role is a category; nothing when it fits both.
std::optional<bool> isCategorical(const Element& element, std::string_view role) {
  if (element.isSlice) return std::nullopt;
  if (const Variable* variable = element.along(role)) return variable->categorical;
  return !element.measuresAlong(role);
}

struct Extent {
  double low = std::numeric_limits<double>::infinity();
  double high = -low;
  bool hasBase = false; ///< zero is where bars begin

  void hold(double value) {
    if (!std::isfinite(value)) return; // a sum can be too large for a number
    low = std::min(low, value);
    high = std::max(high, value);
  }
};

bool hasBars(const Element& element) {
  return element.type() == "interval" || element.type() == "schema" || element.type() == "tile";
}

/// Fits one dimension to what some panels draw along it.
class Fit {
public:
  Fit(Dimension& dimension, std::span<Panel* const> panels, const Chart& chart, Notes& notes)
      : dimension_(dimension), panels_(panels), chart_(chart), notes_(notes),
        node_(chart.dimensionNode(dimension.role)) {}

  void fit() {
    collect();
    readScale(dimension_, node_, notes_);
    const Domain domain = domainOf(dimension_, chart_, notes_);
    if (dimension_.categorical)
      fitCategories(domain);
    else
      fitRange(domain);
    dimension_.lowerMapping = percentage(node_, "lowerMapping", notes_).value_or(0);
    dimension_.upperMapping = percentage(node_, "upperMapping", notes_).value_or(1);
  }

private:
  void collect() {
    bool isFirst = true;
    for (const Element& element : panels_.front()->elements) {
      const std::optional<bool> categorical = isCategorical(element, dimension_.role);
      if (!categorical) continue;
      if (isFirst) dimension_.categorical = *categorical;
      isFirst = false;
      if (*categorical && hasBars(element)) dimension_.isBanded = true;
      const Variable* variable = element.along(dimension_.role);
      if (variable == nullptr) continue;
      const auto add = [this](const Variable* each) {
        if (std::ranges::find(dimension_.variables, each) == dimension_.variables.end())
          dimension_.variables.push_back(each);
      };
      if (variable->members.empty()) add(variable);
      for (const Variable* member : variable->members)
        add(member);
    }
  }

  /// All that the variables have; in a panel of its own scale those that it shows.
  void fitCategories(const Domain& domain) {
    std::unordered_set<std::string_view> known;
    std::vector<const Variable*> variables = dimension_.variables;
    variables.insert(variables.end(), domain.references.begin(), domain.references.end());
    for (const Variable* variable : variables)
      for (const Category& category : variable->categories)
        if (isShown(category) && known.insert(category.key).second)
          dimension_.categories.push_back(category);
    if (variables.empty()) dimension_.categories.push_back({}); // of marks without a place
    if (domain.sort != nullptr)
      sortCategories(dimension_.categories, *domain.sort, dimension_, chart_, notes_);
  }

  bool isShown(const Category& category) const {
    if (panels_.size() == chart_.panels.size()) return true;
    for (const Element& element : chart_.elements) {
      const Variable* variable = element.along(dimension_.role);
      if (variable == nullptr || variable->texts == nullptr) continue;
      for (const Item& item : panels_.front()->items[element.index])
        if ((*variable->texts)[item.row] == category.key) return true;
    }
    return false;
  }

  void fitRange(const Domain& domain) {
    Extent extent;
    for (const Panel* panel : panels_)
      for (const Element& element : panel->elements)
        if (!element.isSlice) hold(element, panel->items[element.index], extent);
    for (const Variable* variable : domain.references)
      for (const double value : variable->numbers)
        if (takes(value, dimension_)) extent.hold(value);
    if (extent.low > extent.high) {
      extent.low = domain.min.value_or(dimension_.low);
      extent.high = std::max(domain.max.value_or(dimension_.high), extent.low);
      if (!domain.min || !domain.max || !chart_.elements.empty())
        notes_.add("No values along^1", {dimension_.role});
    }
    chooseLogarithm(extent.low, dimension_);
    if (!takes(extent.low, dimension_)) {
      extent.low = 1;
      extent.high = 10;
    }
    widen(extent);
    addMargins(extent, domain);
    if (domain.min && takes(*domain.min, dimension_)) dimension_.low = *domain.min;
    if (domain.max && takes(*domain.max, dimension_)) dimension_.high = *domain.max;
    if (dimension_.low < dimension_.high) return;
    notes_.add("Domain without values^1", {dimension_.role});
    dimension_.high = dimension_.low + std::max(1.0, std::abs(dimension_.low));
  }

  void hold(const Element& element, const std::vector<Item>& items, Extent& extent) const {
    const bool isMeasure = element.measuresAlong(dimension_.role);
    const bool isLogarithm =
        dimension_.type != ScaleType::linear && dimension_.type != ScaleType::power;
    bool isPositive = true;
    const auto take = [&](double value) {
      isPositive = isPositive && value > 0;
      if (takes(value, dimension_)) extent.hold(value);
    };
    for (const Item& item : items) {
      if (dimension_.role == "z") {
        take(element.z->numbers[item.row]);
        continue;
      }
      isPositive = true;
      take(isMeasure ? item.high : item.to);
      const double start = isMeasure ? item.low : item.from;
      // A logarithm has no zero: bars begin where the scale does.
      const bool isBase = isMeasure && element.hasBase && start == 0;
      if (!isMeasure && beginsWithScale(element, item, dimension_))
        holdBeginning(element, item, extent);
      else if (!isBase || !isLogarithm)
        take(start);
      if (isBase) extent.hasBase = true;
      if (isLogarithm && !isPositive) ++dimension_.notPositive;
    }
  }

  /// The scale reaches down to the lowest value that it takes, so that the bar is not cut short.
  void holdBeginning(const Element& element, const Item& item, Extent& extent) const {
    for (const double value : element.place()->numbers)
      if (takes(value, dimension_)) extent.hold(value);
    const auto text = [](double end) { return fmt::format("{:.6g}", end); };
    notes_.add("No logarithm^4",
               {element.node->name(), text(item.from), text(item.to), dimension_.role});
  }

  /// A range that numbers can still divide, also when all values are one.
  static void widen(Extent& extent) {
    const double least = std::max(std::abs(extent.low), std::abs(extent.high)) * 1e-9;
    if (extent.high - extent.low > least) return;
    const double half = least > 0 ? std::abs(extent.low) * usualMargin : 0.5;
    extent.low -= half;
    extent.high += half;
  }

  void addMargins(const Extent& extent, const Domain& domain) {
    const auto margin = [&](std::string_view name, double end) {
      const bool isLower = name == "lowerMargin";
      const bool isAsked = isLower ? domain.isExactBelow || domain.isNiceBelow
                                   : domain.isExactAbove || domain.isNiceAbove;
      if (isAsked || (extent.hasBase && end == 0)) return 0.0;
      return percentage(node_, name, notes_).value_or(usualMargin);
    };
    const double low = scaled(extent.low, dimension_);
    const double high = scaled(extent.high, dimension_);
    const double below = (high - low) * margin("lowerMargin", extent.low);
    const double above = (high - low) * margin("upperMargin", extent.high);
    // Without a margin the end is the value itself, to the last digit.
    const auto moved = [this](double length, double by, double value) {
      const double there = by != 0 ? unscaled(length + by, dimension_) : value;
      return std::isfinite(there) ? there : value;
    };
    dimension_.low = moved(low, -below, extent.low);
    dimension_.high = moved(high, above, extent.high);
    if (dimension_.type == ScaleType::linear) roundEnds(domain);
  }

  /// To the next of the round numbers that ticks have.
  void roundEnds(const Domain& domain) {
    if (!domain.isNiceBelow && !domain.isNiceAbove) return;
    constexpr int count = 7;
    const double step = stepWithin(dimension_.high - dimension_.low, count);
    if (domain.isNiceBelow) dimension_.low = std::floor(dimension_.low / step) * step;
    if (domain.isNiceAbove) dimension_.high = std::ceil(dimension_.high / step) * step;
  }

  Dimension& dimension_;
  std::span<Panel* const> panels_;
  const Chart& chart_;
  Notes& notes_;
  const Node* node_;
};

/// The panels that share a scale: all, or those of a variable of a matrix.
std::vector<std::vector<Panel*>> sharingPanels(std::string_view role, Chart& chart) {
  const Node* node = chart.dimensionNode(role);
  const bool isShared = node == nullptr || node->attribute("facetsShareScale") != "false";
  std::map<std::size_t, std::vector<Panel*>> sharing;
  for (std::size_t i = 0; i < chart.panels.size(); ++i) {
    Panel& panel = chart.panels[i];
    const std::size_t ofMatrix = role == "x" ? panel.column : panel.row;
    const std::size_t shared = chart.facets.isMatrix ? ofMatrix : 0;
    sharing[isShared ? shared : i].push_back(&panel);
  }
  std::vector<std::vector<Panel*>> all;
  all.reserve(sharing.size());
  for (auto& [key, panels] : sharing)
    all.push_back(std::move(panels));
  return all;
}

void fitRole(Dimension Panel::* along, Chart& chart, Notes& notes) {
  for (const std::vector<Panel*>& panels :
       sharingPanels((chart.panels.front().*along).role, chart)) {
    Dimension& first = panels.front()->*along;
    Fit(first, panels, chart, notes).fit();
    for (Panel* panel : panels)
      if (&(panel->*along) != &first) {
        panel->*along = first;
        (panel->*along).notPositive = 0; // counted once for all
      }
  }
}

} // namespace

void agreeOnKinds(Chart& chart, Notes& notes) {
  for (const std::string_view role : {"x", "y"}) {
    std::optional<bool> first;
    std::erase_if(chart.elements, [&](const Element& element) {
      const std::optional<bool> categorical = isCategorical(element, role);
      if (!categorical) return false;
      if (!first) first = categorical;
      if (*categorical == *first) return false;
      notes.add(*first ? "Continuous beside categories^2" : "Categorical beside numbers^2",
                {element.node->name(), role});
      return true;
    });
  }
  std::size_t index = 0;
  for (Element& element : chart.elements)
    element.index = index++;
}

void fitDimensions(Chart& chart, Notes& notes) {
  const bool hasScales =
      std::ranges::any_of(chart.elements, [](const Element& element) { return !element.isSlice; });
  if (!chart.elements.empty() && !hasScales) return;
  fitRole(&Panel::x, chart, notes);
  fitRole(&Panel::y, chart, notes);
  if (chart.space != nullptr) fitRole(&Panel::z, chart, notes);
}

} // namespace render
