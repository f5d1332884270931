#include "resolve/ReadElements.h"

#include <algorithm>
#include <array>

#include "compute/Bins.h"
#include "compute/Sample.h"
#include "text/Show.h"

namespace render {
namespace {

struct Type {
  std::string_view name;
  bool hasBase = false;
  bool needsMeasure = true; ///< categories on both scales have none
};

constexpr Type types[] = {
    {"point", false, false},   {"line"},    {"path", false, false}, {"edge", false, false},
    {"polygon", false, false}, {"schema"},  {"interval", true},     {"area", true},
    {"tile", false, false},    {"contour"},
};

const Type* typeOf(const Node& element) {
  const auto* const found = std::ranges::find(types, element.attribute("type"), &Type::name);
  return found == std::end(types) ? nullptr : found;
}

bool hasData(const Variable* variable) {
  return variable != nullptr && (variable->texts != nullptr || !variable->members.empty());
}

/// The node of a position role, which stands in the element or its position.
const Node* roleNode(const Node& element, std::string_view role) {
  const Node* position = element.child("position");
  const Node* node = position ? position->child(role) : nullptr;
  return node != nullptr ? node : element.child(role);
}

const Node* statisticOf(const Node& element) {
  const Node* position = element.child("position");
  const Node* statistic = position ? position->child("statistic") : nullptr;
  return statistic != nullptr ? statistic : element.child("statistic");
}

class Reader {
public:
  Reader(const Node& node, Chart& chart, Notes& notes)
      : node_(node), chart_(chart), notes_(notes) {}

  void read() {
    Element element{.node = &node_};
    const Type& type = *typeOf(node_);
    element.x = position("x", "theta");
    element.y = position("y", "r");
    element.z = position("z", "z");
    element.isSlice = type.hasBase && roleNode(node_, "theta") != nullptr &&
                      roleNode(node_, "r") == nullptr && element.y == nullptr;
    element.hasBase = type.hasBase;
    readMethod(element);
    readModifier(element);
    // A pie measures the angle of what stands nowhere; its pieces follow one another,
    // whether the element says so or not.
    if (element.isSlice) {
      std::swap(element.x, element.y);
      element.modifier = Modifier::stack;
    }
    element.measuresX = !element.isSlice && measuresAlongX(element);
    if (const std::string_view why = lack(element, type); !why.empty()) return refuse(why);
    if (chart_.space != nullptr && !fitsSpace(element)) return refuse("Space needs three numbers");
    if (chart_.space == nullptr && roleNode(node_, "z") != nullptr) {
      notes_.add("Flat plot without z^1", {node_.name()});
      element.z = nullptr;
    }
    if (element.isOfMatrix() && !fitsMatrix(element)) return refuse("Matrix of points");

    readAesthetics(element);
    std::vector<const Variable*> variables{element.y, element.group, element.shade, element.size};
    variables.insert(variables.end(), element.splits.begin(), element.splits.end());
    variables.insert(variables.end(), element.labels.begin(), element.labels.end());
    for (const Variable* variable : variables)
      if (variable != nullptr && variable->source != sourceOf(element))
        return refuse("Different sources");
    if (element.method != Method::none) element.weight = weightOf(sourceOf(element));
    const bool standsAtNumber = element.place() != nullptr && !element.place()->categorical;
    if (element.modifier == Modifier::dodge && standsAtNumber) {
      notes_.add("Not side by side^1", {node_.name()});
      element.modifier = Modifier::none;
    }
    element.index = chart_.elements.size();
    chart_.elements.push_back(std::move(element));
  }

private:
  void refuse(std::string_view why) { notes_.add("Not drawn^2", {node_.name(), notes_.text(why)}); }

  const Variable* position(std::string_view role, std::string_view polarRole) const {
    const Node* node = roleNode(node_, role);
    if (node == nullptr) node = roleNode(node_, polarRole);
    return node != nullptr ? chart_.variableOf(*node) : nullptr;
  }

  static std::string_view sourceOf(const Element& element) {
    return (element.x != nullptr ? element.x : element.y)->source;
  }

  const Variable* weightOf(std::string_view source) const {
    const auto found = std::ranges::find_if(chart_.variables, [=](const Variable& variable) {
      return variable.isWeight && variable.source == source && !variable.numbers.empty();
    });
    return found == chart_.variables.end() ? nullptr : &*found;
  }

  void readMethod(Element& element) {
    element.statistic = statisticOf(node_);
    if (node_.attribute("type") == "contour") {
      element.method = Method::contours;
      if (element.statistic != nullptr)
        notes_.add("Contours of density^2",
                   {node_.name(), shown(element.statistic->attribute("method"))});
      return;
    }
    readDots(element);
    if (node_.attribute("type") == "schema") {
      element.method = Method::summary;
      element.summary = &boxPlot();
    }
    if (element.statistic == nullptr) return;
    const std::string_view name = element.statistic->attribute("method");
    const std::string_view grid = parameter(*element.statistic, "grid");
    if (name == "histogram" || (name == "bin" && grid.empty())) {
      element.method = Method::histogram;
    } else if (name == "bin") {
      element.method = Method::hexagons;
    } else if (name == "percent") {
      element.method = Method::share;
    } else if (isNormalCurve(name)) {
      element.method = Method::distribution;
    } else if (const Summary* summary = findSummary(name)) {
      element.method = Method::summary;
      element.summary = summary;
    } else {
      notes_.add("Statistic not drawn yet^2", {node_.name(), shown(name)});
    }
  }

  /// Dots stand on each other where nothing measures them.
  void readDots(Element& element) {
    const std::string_view layout = node_.attribute("dot");
    if (layout.empty() || layout == "none") return;
    const bool hasOnePlace = (element.x == nullptr) != (element.y == nullptr);
    if (node_.attribute("type") == "point" && element.statistic == nullptr && hasOnePlace)
      element.method = Method::dots;
    else
      notes_.add("Dots of one variable^2", {node_.name(), shown(layout)});
  }

  bool isNormalCurve(std::string_view name) const {
    if (name == "normal") return true;
    const std::string_view type = parameter(*statisticOf(node_), "type");
    return name == "distribution" && (type.empty() || type == "normal");
  }

  void readModifier(Element& element) {
    static constexpr std::pair<std::string_view, Modifier> modifiers[] = {
        {"stack", Modifier::stack},
        {"stackinterpolating", Modifier::stackInterpolating},
        {"center", Modifier::center},
        {"minusIntersection", Modifier::minusIntersection},
        {"dodge", Modifier::dodge}};
    const std::string_view name = node_.attribute("positionModifier");
    const auto* const found =
        std::ranges::find(modifiers, name, &std::pair<std::string_view, Modifier>::first);
    if (found != std::end(modifiers)) element.modifier = found->second;
  }

  /// Along y, unless y has the categories and x the numbers.
  static bool measuresAlongX(const Element& element) {
    const bool yIsPlace = element.y != nullptr && element.y->categorical;
    if (element.x == nullptr)
      return yIsPlace || element.method == Method::histogram || element.method == Method::dots;
    const bool hasOnlyValues = element.y == nullptr && element.method == Method::summary &&
                               element.summary->needsMeasure && !element.x->categorical;
    if (hasOnlyValues) return true;
    return yIsPlace && !element.x->categorical;
  }

  /// What keeps an element from being drawn, a key of the texts of notes, or nothing.
  static std::string_view lack(const Element& element, const Type& type) {
    if (const std::string_view why = lackOfData(element); !why.empty()) return why;
    const Variable* measure = element.measure();
    const bool needsNumbers = (type.needsMeasure && type.hasBase) || element.method != Method::none;
    if (needsNumbers && measure != nullptr && measure->categorical) return "Measures categories";
    return lackOfMethod(element);
  }

  static std::string_view lackOfData(const Element& element) {
    const bool countsRows = element.method == Method::histogram || element.method == Method::dots ||
                            element.method == Method::distribution ||
                            element.method == Method::share ||
                            (element.method == Method::summary && !element.summary->needsMeasure);
    const Variable* place = element.place();
    const Variable* measure = element.measure();
    if (element.isSlice && !hasData(measure)) return "No theta";
    const bool mayLackPlace = element.isSlice || element.method == Method::summary;
    const auto lacks = [](const Variable* variable, bool may) {
      return variable == nullptr ? !may : !hasData(variable);
    };
    const std::string_view noX = "No x";
    const std::string_view noY = "No y";
    if (lacks(place, mayLackPlace)) return element.measuresX ? noY : noX;
    if (lacks(measure, countsRows)) return element.measuresX ? noX : noY;
    if (place == nullptr && measure == nullptr) return "No variable";
    if (place && measure && place->source != measure->source) return "Different sources";
    return {};
  }

  static std::string_view lackOfMethod(const Element& element) {
    const Variable* place = element.place();
    const Variable* measure = element.measure();
    const bool isComposed = place != nullptr && !place->members.empty();
    const bool needsNumbers =
        element.method == Method::histogram || element.method == Method::distribution ||
        element.method == Method::hexagons || element.method == Method::contours;
    if (needsNumbers && (place == nullptr || place->categorical || isComposed))
      return "Statistic needs numbers";
    if (isComposed && element.method != Method::none) return "Statistic needs one variable";
    const bool needsTwo = element.method == Method::hexagons || element.method == Method::contours;
    if (needsTwo && (measure == nullptr || !measure->members.empty()))
      return "Statistic needs two variables";
    return {};
  }

  static bool fitsSpace(const Element& element) {
    const auto isNumber = [&](const Variable* variable) {
      return variable != nullptr && !variable->numbers.empty() &&
             variable->source == sourceOf(element);
    };
    return element.type() == "point" && element.method == Method::none &&
           element.modifier == Modifier::none && isNumber(element.x) && isNumber(element.y) &&
           isNumber(element.z);
  }

  /// Whether an element can be drawn in the panels of a matrix, beside those before it.
  bool fitsMatrix(const Element& element) const {
    const auto isAlike = [](const Variable* one, const Variable* other) {
      const bool areMatrices =
          one != nullptr && other != nullptr && one->isMatrix && other->isMatrix;
      return !areMatrices || one->members == other->members;
    };
    const bool isOfRows = element.type() == "point" && element.method == Method::none &&
                          element.modifier == Modifier::none;
    return isOfRows && !chart_.isTransposed && !chart_.isPolar &&
           std::ranges::all_of(chart_.elements, [&](const Element& other) {
             return isAlike(element.x, other.x) && isAlike(element.y, other.y);
           });
  }

  /// What tells the element's rows apart, colors and sizes them; what it asks for beyond
  /// that is noted.
  void readAesthetics(Element& element) {
    // Color first, so that a styleBy beside it is shown by shape.
    static constexpr std::array<std::string_view, 5> kinds{"color", "styleBy", "split", "size",
                                                           "labeling"};
    for (const std::string_view kind : kinds)
      for (const Node& child : node_.children)
        if (child.kind == kind) findAesthetic(element, child);
  }

  void findAesthetic(Element& element, const Node& child) {
    const Variable* variable = chart_.variableOf(child);
    if (variable == nullptr || variable->texts == nullptr)
      notes_.add("No data^2", {node_.name(), child.kind});
    else
      readAesthetic(element, child, *variable);
  }

  void readAesthetic(Element& element, const Node& child, const Variable& variable) {
    const auto note = [&](std::string_view key) {
      notes_.add(key, {node_.name(), variable.title});
    };
    if (child.kind == "labeling") {
      element.labels.push_back(&variable);
    } else if (child.kind == "split") {
      if (!variable.categorical) return note("Split by numbers^2");
      element.splits.push_back(&variable);
    } else if (child.kind == "size") {
      if (element.method == Method::hexagons) return; // sized by its count
      if (variable.categorical) return note("Size by categories^2");
      element.size = &variable;
    } else if (!variable.categorical && child.kind == "color") {
      element.shade = &variable;
    } else if (!variable.categorical) {
      notes_.add("Aesthetic by numbers^3", {node_.name(), child.kind, variable.title});
    } else if (element.group != nullptr && element.group != &variable) {
      readShape(element, variable);
    } else {
      element.group = &variable;
      readPatterns(element, child.attribute("styleCycle"));
    }
  }

  /// Only what fills something has patterns. Points and lines show a pattern beside colors by
  /// their symbols and dashes.
  void readPatterns(Element& element, std::string_view cycle) {
    static constexpr std::array<std::string_view, 4> filled{"interval", "area", "schema", "tile"};
    const auto names = [cycle](std::string_view word) { return cycle.find(word) != cycle.npos; };
    if (!names("Pattern")) return;
    const bool isFilled = std::ranges::find(filled, element.type()) != filled.end();
    element.hasPatterns = isFilled && !names("Color");
    element.hasColoredPatterns = isFilled && names("Color");
    if (!isFilled && !names("Color")) notes_.add("Patterns as colors^1", {node_.name()});
  }

  /// Points and lines show a second grouping; others have nothing left to show it by.
  void readShape(Element& element, const Variable& variable) {
    const bool hasShapes = element.type() == "point" || element.isLine();
    if (!hasShapes || (element.shape != nullptr && element.shape != &variable)) {
      notes_.add("One grouping too many^2", {node_.name(), variable.title});
      return;
    }
    if (element.shape == &variable) return;
    element.shape = &variable;
    element.splits.push_back(&variable);
  }

  const Node& node_;
  Chart& chart_;
  Notes& notes_;
};

} // namespace

void readElements(Chart& chart, Notes& notes) {
  const auto readAll = [&](const Node& parent, const auto& again) -> void {
    for (const Node& node : parent.children) {
      if (node.kind == "elementGroup") again(node, again);
      if (node.kind == "element" && typeOf(node) != nullptr) Reader(node, chart, notes).read();
    }
  };
  readAll(*chart.plot, readAll);
}

} // namespace render
