#include <chartxml/Chart.h>

#include <numbers>
#include <string_view>

#include "ChildOrder.h"
#include "KindsBelow.h"
#include "NodeRule.h"
#include "Nodes.h"
#include "Placement.h"
#include "StringHandles.h"
#include <chartxml/Role.h>
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

namespace rule {

constexpr NodeRule dimension{"dimension", {ZephUni::_dimension}, nullptr};
constexpr AttributeRule lowerMargin{dimension, ZephUni::_lowerMargin, "margin"};
constexpr AttributeRule upperMargin{dimension, ZephUni::_upperMargin, "margin"};
constexpr AttributeRule lowerMapping{dimension, Chart::_lowermapping, "mapping"};
constexpr AttributeRule upperMapping{dimension, Chart::_uppermapping, "mapping"};
constexpr AttributeRule facetsShareScale{dimension, Chart::_facetssharescale, nullptr};
constexpr AttributeRule unionDomain{
    {"dimension",
     {ZephUni::_dimension},
     "can't set unionDomain attribute for anything but a dimension "},
    ZephUni::_unionDomain,
    nullptr};

} // namespace rule

// The cells of a pie are not comparable by their scales.
bool isPie(const DOMElement& frame) {
  return std::u16string_view(frame.getAttribute(ZephUni::_id)).find(u"pie") !=
         std::u16string_view::npos;
}

} // namespace

// One dimension a role and frame: asked for again, the first one answers.
int Chart::AddDimension(int frame, int role, int domain) {
  if (!validHandle(frame, "frame") || !validRole(role) ||
      (domain != -1 && !validHandle(domain, "domain"))) {
    return -1;
  }
  DOMElement* parent = getElement(frame);
  if (!parent || (domain != -1 && !getElement(domain))) return -1;

  const std::u16string name = host::utf16(Role::getString(role));
  if (const DOMElement* known = childInRole(*parent, role, name.c_str())) return getHandle(known);

  DOMElement& dimension = makeElement(ZephUni::_dimension);
  const int handle = place(*parent, dimension, placement::dimension);
  kindsBelow_->note(dimension, role);
  dimension.setAttribute(ZephUni::_role, name.c_str());
  if (domain != -1) AddIDREFAttribute(dimension, domain, ZephUni::_domain);
  if (!isPie(*parent)) dimension.setAttribute(_facetssharescale, ZephUni::_true);
  return handle;
}

// For a role that came to the node in another way.
void Chart::noteRole(const DOMElement& node) {
  for (int role = Role::first; role <= Role::last; ++role) {
    const std::u16string name = host::utf16(Role::getString(role));
    if (hasValue(node, ZephUni::_role, name.c_str())) kindsBelow_->note(node, role);
  }
}

// Whatever the child's kind: a facet variable that a procedure put right below the
// frame has a role too.
DOMElement* Chart::childInRole(const DOMElement& parent, int role, const XMLCh* name) const {
  if (!kindsBelow_->holds(parent, role) && !childOrder_->first(parent, _facetvariable)) {
    return nullptr;
  }
  DOMElement* child = parent.getFirstElementChild();
  while (child && !hasValue(*child, ZephUni::_role, name))
    child = child->getNextElementSibling();
  return child;
}

int Chart::GetDimension(int frame, int role) {
  if (!validRole(role) || !validHandle(frame, "frame")) return -1;
  const DOMElement* parent = getElement(frame);
  if (!parent) return -1;
  const std::u16string name = host::utf16(Role::getString(role));
  const DOMElement* found = firstBelow(*parent, ZephUni::_dimension, role, name.c_str());
  return found ? getHandle(found) : -1;
}

// The first node of that name in document order, and of that role unless it is null.
DOMElement* Chart::firstBelow(const DOMElement& root, const XMLCh* name, int kind,
                              const XMLCh* role) const {
  const auto holds = [&](const DOMElement& node) { return kindsBelow_->holds(node, kind); };
  if (!holds(root)) return nullptr;
  DOMElement* found = nullptr;
  const auto take = [&](DOMElement& node) {
    if (role && !hasValue(node, ZephUni::_role, role)) return false;
    found = &node;
    return true;
  };
  visitDescendants(root, name, take, holds);
  return found;
}

int Chart::SetDimensionDomain(int dimension, int domain) {
  if (!validHandle(dimension, "dimension") || !validHandle(domain, "domain")) return -1;
  DOMElement* target = getElement(dimension);
  if (!target || !getElement(domain)) return -1;
  AddIDREFAttribute(*target, domain, ZephUni::_domain);
  return dimension;
}

// Logarithms to a base and exponents take their value from the caller; every other
// scale has e for a base.
int Chart::SetDimensionScale(int dimension, int method, int value, bool invert) {
  const Where here = Where::current();
  const bool isNatural = method == strings::naturalLog;
  if (!valid(dimension, rule::dimension, here) || !validString(method, "method", here) ||
      (!isNatural && !validString(value, "value", here))) {
    return -1;
  }
  DOMElement* target = accepted(dimension, rule::dimension, here);
  if (!target) return -1;

  DOMElement& scale = makeElement(ZephUni::_scale);
  setText(scale, ZephUni::_method, isNatural ? strings::log : method);
  if (invert) scale.setAttribute(ZephUni::_invert, ZephUni::_true);
  const int handle = place(*target, scale, placement::scale);

  const bool isGiven = method == strings::log || method == strings::exponent;
  AddParam(handle, method == strings::exponent ? strings::exponent : strings::base,
           isGiven ? value : stringHandler_->LRValue(std::numbers::e, -1));
  const int safe = stringHandler_->AddChartString(ChartString(_safe));
  AddParam(handle, safe, stringHandler_->AddChartString(ChartString(ZephUni::_true)));
  return handle;
}

int Chart::SetDimensionLowerMargin(int dimension, int margin) {
  return setAttributeText(dimension, rule::lowerMargin, margin, Where::current());
}
int Chart::SetDimensionUpperMargin(int dimension, int margin) {
  return setAttributeText(dimension, rule::upperMargin, margin, Where::current());
}
int Chart::SetDimensionLowerMapping(int dimension, int mapping) {
  return setAttributeText(dimension, rule::lowerMapping, mapping, Where::current());
}
int Chart::SetDimensionUpperMapping(int dimension, int mapping) {
  return setAttributeText(dimension, rule::upperMapping, mapping, Where::current());
}
int Chart::SetUnionDomain(int dimension) {
  return setAttributeFlag(dimension, rule::unionDomain, true, Where::current());
}
int Chart::SetFacetsDifferentScale(int dimension) {
  return setAttributeFlag(dimension, rule::facetsShareScale, false, Where::current());
}
