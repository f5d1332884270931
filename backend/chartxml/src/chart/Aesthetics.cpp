// Variables bound to an element: its positions and what else its variables decide.
#include <chartxml/Chart.h>

#include <array>
#include <string>

#include <fmt/format.h>

#include "ChildOrder.h"
#include "NodeRule.h"
#include "Nodes.h"
#include "Placement.h"
#include <chartxml/Role.h>
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

/// A node that takes its place by the values of a variable, and takes no other node
/// for one.
struct Chart::MeasureRule {
  const char* name;
  const char* parents; ///< what a report calls them
  std::array<const XMLCh*, 2> kinds;
  ConstChartStringSet before;
};

namespace {

namespace rule {

constexpr ChildRule position{
    {"element", {ZephUni::_element}, "can't add position to anything but element - "},
    ZephUni::_position,
    placement::position};
constexpr ChildRule color{
    {"element", {ZephUni::_element}, "can't add color to anything but element - "},
    ZephUni::_color,
    placement::color};
constexpr ChildRule split{
    {"element", {ZephUni::_element}, "can't add split to anything but element - "},
    ZephUni::_split,
    {}};
constexpr ChildRule labeling{
    {"element", {ZephUni::_element}, "can't add labeling to anything but element - "},
    ZephUni::_labeling,
    placement::labeling};
constexpr ChildRule styleBy{
    {"element", {ZephUni::_element}, "can't add styleBy to anything but element - "},
    Chart::_styleby,
    placement::styleBy};
// The procedures know these refusals without the dash.
constexpr ChildRule styleByCycle{
    {"element", {ZephUni::_element}, "can't add styleBy to anything but element "},
    Chart::_styleby,
    placement::styleBy};

constexpr NodeRule size{"size", {ZephUni::_size}, nullptr};
constexpr AttributeRule low{size, ZephUni::_low, "low"};
constexpr AttributeRule high{size, ZephUni::_high, "high"};

} // namespace rule

} // namespace

// Positions

int Chart::AddPosition(int element) { return addChild(element, rule::position, Where::current()); }

int Chart::addMeasure(int parent, int variable, const MeasureRule& rule, Where where) {
  if (!validHandle(parent, rule.parents, where) || !validHandle(variable, "variable", where)) {
    return -1;
  }
  DOMElement* target = getElement(parent);
  if (!target || !isNamedAmong(*target, rule.kinds)) {
    report(fmt::format("can't add {} to anything but {} - {}", rule.name, rule.parents,
                       nameOf(target)),
           where);
    return -1;
  }
  const DOMElement* bound = getElement(variable);
  if (!bound || !isNamed(*bound, ZephUni::_variable)) {
    report(fmt::format("{} requires a variable id reference {}", rule.name, nameOf(bound)), where);
    return -1;
  }
  return place(*target, makeBound(host::utf16(rule.name).c_str(), variable), rule.before, where);
}

int Chart::addRole(int parent, int variable, int role, ConstChartStringSet before, Where where) {
  return addMeasure(parent, variable,
                    {Role::getString(role),
                     "element or position",
                     {ZephUni::_element, ZephUni::_position},
                     before},
                    where);
}

int Chart::AddX(int parent, int variable) {
  return addRole(parent, variable, 1, placement::x, Where::current());
}
int Chart::AddY(int parent, int variable) {
  return addRole(parent, variable, 2, placement::y, Where::current());
}
int Chart::AddZ(int parent, int variable) {
  return addRole(parent, variable, 3, placement::z, Where::current());
}
int Chart::AddR(int parent, int variable) {
  return addRole(parent, variable, 4, placement::r, Where::current());
}
int Chart::AddTheta(int parent, int variable) {
  return addRole(parent, variable, 5, placement::theta, Where::current());
}
int Chart::AddPhi(int parent, int variable) {
  return addRole(parent, variable, 6, placement::phi, Where::current());
}

// Sizes

int Chart::AddSize(int elementOrLabeling, int variable) {
  return addMeasure(
      elementOrLabeling, variable,
      {"size", "element or labeling", {ZephUni::_element, ZephUni::_labeling}, placement::size},
      Where::current());
}

int Chart::SetSizeLow(int size, int low) {
  return setAttributeText(size, rule::low, low, Where::current()) == -1 ? -1 : 0;
}

int Chart::SetSizeHigh(int size, int high) {
  return setAttributeText(size, rule::high, high, Where::current()) == -1 ? -1 : 0;
}

// Other aesthetics take any node as the variable and write its id

// The element that takes the aesthetic, or null.
DOMElement* Chart::aestheticParent(int element, int variable, const NodeRule& rule,
                                   Where where) const {
  if (!valid(element, rule, where) || !validHandle(variable, "variable", where)) return nullptr;
  DOMElement* target = accepted(element, rule, where);
  return target && getElement(variable) ? target : nullptr;
}

DOMElement& Chart::makeBound(const XMLCh* name, int variable) {
  DOMElement& node = makeElement(name);
  AddIDREFAttribute(node, variable, ZephUni::_variable);
  return node;
}

int Chart::addAesthetic(int element, int variable, const ChildRule& rule, Where where) {
  DOMElement* target = aestheticParent(element, variable, rule.parent, where);
  return target ? place(*target, makeBound(rule.name, variable), rule.before, where) : -1;
}

int Chart::AddColor(int element, int variable) {
  return addAesthetic(element, variable, rule::color, Where::current());
}

int Chart::AddSplit(int element, int variable) {
  return addAesthetic(element, variable, rule::split, Where::current());
}

int Chart::AddLabeling(int element, int variable) {
  return AddLabelingSuffix(element, variable, -1);
}

int Chart::AddLabelingSuffix(int element, int variable, int suffix) {
  DOMElement* target = aestheticParent(element, variable, rule::labeling.parent, Where::current());
  if (!target) return -1;
  DOMElement& labeling = makeBound(ZephUni::_labeling, variable);
  describeAsLabeling(*getElement(variable));
  // Templates know the name with its underscore, suffix or not.
  std::u16string style = ZephUni::_labeling;
  style += _underscore;
  if (suffix >= 0) style += legalText(suffix);
  style += _default_style;
  setOwnStyle(labeling, ZephUni::_style, style);
  return place(*target, labeling, rule::labeling.before);
}

// Style cycles: which styles the categories of a variable go through

int Chart::addStyleBy(int element, int variable, const ChildRule& rule, const XMLCh* cycle,
                      Where where) {
  DOMElement* target = aestheticParent(element, variable, rule.parent, where);
  if (!target) return -1;
  DOMElement& styleBy = makeBound(rule.name, variable);
  AddIDAttribute(styleBy, -1, where);
  styleBy.setAttribute(_stylecycle, cycle);
  return place(*target, styleBy, rule.before, where);
}

int Chart::AddStyleBy(int element, int variable) {
  const int handle =
      addStyleBy(element, variable, rule::styleBy, _styleCycleDefault, Where::current());
  const DOMElement* target = handle == -1 ? nullptr : getElement(element);
  if (target && hasValue(*target, ZephUni::_type, ZephUni::_point)) {
    std::u16string hollow = ZephUni::_fill;
    hollow += u':';
    hollow += _transparent;
    appendToStyle(*target, hollow);
  }
  return handle;
}

int Chart::AddStyleByColor(int element, int variable) {
  return addStyleByCycle(element, variable, _styleCycleColor, Where::current());
}

int Chart::AddStyleByPattern(int element, int variable) {
  return addStyleByCycle(element, variable, _styleCyclePattern, Where::current());
}

int Chart::AddStyleByColorAndPattern(int element, int variable) {
  std::u16string pair = _styleCycleColor;
  pair += _underscore;
  pair += _styleCyclePattern;
  return addStyleByCycle(element, variable, pair.c_str(), Where::current());
}

int Chart::addStyleByCycle(int element, int variable, const XMLCh* cycle, Where where) {
  const int handle = addStyleBy(element, variable, rule::styleByCycle, cycle, where);
  if (handle != -1 && !document_->getElementById(cycle)) {
    childOrder_->append(*document_->getDocumentElement(), *addNamedCycle(cycle));
  }
  return handle;
}
