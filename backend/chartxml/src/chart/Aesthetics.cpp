#include <chartxml/Chart.h>

#include <string>

#include "ChildOrder.h"
#include "Nodes.h"
#include "Placement.h"
#include <chartxml/Role.h>
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

/// A position role: its number and where its node goes.
struct Chart::RoleRule {
  int role;
  ConstChartStringSet before;
};

/// An aesthetic of an element: its name and where its node goes.
struct Chart::AestheticRule {
  const XMLCh* name;
  const char* refusal;
  ConstChartStringSet before;
};

namespace {

constexpr const XMLCh* roleParents[] = {ZephUni::_element, ZephUni::_position};
constexpr const XMLCh* aestheticParents[] = {ZephUni::_element};

} // namespace

// Positions

int Chart::addRole(int parent, int variable, const RoleRule& rule, Where where) {
  if (!validHandle(parent, "element or position", where) ||
      !validHandle(variable, "variable", where)) {
    return -1;
  }
  const std::string role = Role::getString(rule.role);
  DOMElement* target = getElement(parent);
  if (!target || !isNamedAmong(*target, roleParents)) {
    report("can't add " + role + " to anything but element or position - " + nameOf(target), where);
    return -1;
  }
  DOMElement* bound = getElement(variable);
  if (!bound || !isNamed(*bound, ZephUni::_variable)) {
    report(role + " requires a variable id reference " + nameOf(bound), where);
    return -1;
  }
  DOMElement& node = makeElement(host::utf16(role).c_str());
  AddIDREFAttribute(node, variable, ZephUni::_variable);
  return place(*target, node, rule.before);
}

int Chart::AddX(int parent, int variable) {
  return addRole(parent, variable, {1, placement::x}, Where::current());
}
int Chart::AddY(int parent, int variable) {
  return addRole(parent, variable, {2, placement::y}, Where::current());
}
int Chart::AddZ(int parent, int variable) {
  return addRole(parent, variable, {3, placement::z}, Where::current());
}
int Chart::AddR(int parent, int variable) {
  return addRole(parent, variable, {4, placement::r}, Where::current());
}
int Chart::AddTheta(int parent, int variable) {
  return addRole(parent, variable, {5, placement::theta}, Where::current());
}
int Chart::AddPhi(int parent, int variable) {
  return addRole(parent, variable, {6, placement::phi}, Where::current());
}

// Other aesthetics take any node as the variable and write its id

int Chart::addAesthetic(int element, int variable, const AestheticRule& rule, Where where) {
  if (!validHandle(element, "element", where) || !validHandle(variable, "variable", where)) {
    return -1;
  }
  DOMElement* target = acceptedParent(element, aestheticParents, rule.refusal, where);
  if (!target || !getElement(variable)) return -1;
  DOMElement& node = makeElement(rule.name);
  AddIDREFAttribute(node, variable, ZephUni::_variable);
  return place(*target, node, rule.before);
}

int Chart::AddColor(int element, int variable) {
  return addAesthetic(
      element, variable,
      {ZephUni::_color, "can't add color to anything but element - ", placement::color},
      Where::current());
}

// Style cycles: which styles the categories of a variable go through

int Chart::addStyleBy(int element, int variable, const char* refusal, const XMLCh* cycle,
                      Where where) {
  const int handle =
      addAesthetic(element, variable, {_styleby, refusal, placement::styleBy}, where);
  if (handle == -1) return -1;
  DOMElement& styleBy = *getElement(handle);
  AddIDAttribute(styleBy, -1, where);
  styleBy.setAttribute(_stylecycle, cycle);
  return handle;
}

int Chart::AddStyleBy(int element, int variable) {
  const int handle = addStyleBy(element, variable, "can't add styleBy to anything but element - ",
                                _styleCycleDefault, Where::current());
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
  const int handle =
      addStyleBy(element, variable, "can't add styleBy to anything but element ", cycle, where);
  if (handle != -1 && !document_->getElementById(cycle)) {
    childOrder_->append(*document_->getDocumentElement(), *addNamedCycle(cycle));
  }
  return handle;
}
