#include <chartxml/Chart.h>

#include <algorithm>
#include <string_view>

#include "ChildOrder.h"
#include "Nodes.h"
#include "Placement.h"
#include <chartxml/Role.h>
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

bool precedesDimensions(const DOMElement& child) {
  return std::ranges::none_of(placement::dimension,
                              [&](const XMLCh* name) { return isNamed(child, name); });
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
  // Dimensions stand before guides and elements, however many of those there are.
  for (DOMElement* child = childOrder_->first(*parent, ZephUni::_dimension);
       child && precedesDimensions(*child); child = child->getNextElementSibling()) {
    if (hasValue(*child, ZephUni::_role, name.c_str())) return getHandle(child);
  }

  DOMElement& dimension = makeElement(ZephUni::_dimension);
  const int handle = place(*parent, dimension, placement::dimension);
  dimension.setAttribute(ZephUni::_role, name.c_str());
  if (domain != -1) AddIDREFAttribute(dimension, domain, ZephUni::_domain);
  const std::u16string_view frameId = parent->getAttribute(ZephUni::_id);
  if (frameId.find(u"pie") == frameId.npos) {
    dimension.setAttribute(_facetssharescale, ZephUni::_true);
  }
  return handle;
}

int Chart::GetDimension(int frame, int role) {
  if (!validRole(role) || !validHandle(frame, "frame")) return -1;
  const DOMElement* parent = getElement(frame);
  if (!parent) return -1;
  const std::u16string name = host::utf16(Role::getString(role));
  const DOMElement* found = nullptr;
  visitDescendants(*parent, ZephUni::_dimension, [&](const DOMElement& dimension) {
    if (!hasValue(dimension, ZephUni::_role, name.c_str())) return false;
    found = &dimension;
    return true;
  });
  return found ? getHandle(found) : -1;
}

int Chart::setDimensionText(int dimension, int string, const XMLCh* attribute, const char* what,
                            Where where) {
  if (!validHandle(dimension, "dimension", where) || !validString(string, what, where)) return -1;
  DOMElement* target = elementOfKind(dimension, ZephUni::_dimension);
  if (!target) return -1;
  setText(*target, attribute, string);
  return dimension;
}

int Chart::SetDimensionLowerMargin(int dimension, int margin) {
  return setDimensionText(dimension, margin, ZephUni::_lowerMargin, "margin", Where::current());
}
int Chart::SetDimensionUpperMargin(int dimension, int margin) {
  return setDimensionText(dimension, margin, ZephUni::_upperMargin, "margin", Where::current());
}
int Chart::SetDimensionLowerMapping(int dimension, int mapping) {
  return setDimensionText(dimension, mapping, _lowermapping, "mapping", Where::current());
}
int Chart::SetDimensionUpperMapping(int dimension, int mapping) {
  return setDimensionText(dimension, mapping, _uppermapping, "mapping", Where::current());
}

int Chart::AddAxis(int parent, int suffix, bool opposite) {
  const Where here = Where::current();
  if (!validHandle(parent, "dimension") || !validOptionalString(suffix, "id", here)) return -1;
  DOMElement* target = getElement(parent);
  if (!target) return -1;
  DOMElement& axis = makeElement(ZephUni::_axis);
  AddIDAttribute(axis, suffix);
  if (opposite) axis.setAttribute(ZephUni::_opposite, ZephUni::_true);
  if (isNamed(*target, ZephUni::_dimension)) {
    axis.setAttribute(ZephUni::_combineAxisLabels, ZephUni::_true);
  }
  return append(*target, axis);
}

int Chart::AddMajorTicks(int parent, int position, bool gridLines, int length, int labelAngle,
                         bool stagger, int delta) {
  const Where here = Where::current();
  if (!validHandle(parent, "parent") || !validOptionalString(position, "position", here) ||
      !validOptionalString(length, "length", here) ||
      !validOptionalString(labelAngle, "labelAngle", here) ||
      !validOptionalString(delta, "delta", here)) {
    return -1;
  }
  DOMElement* target = getElement(parent);
  if (!target) return -1;

  DOMElement& ticks = makeElement(ZephUni::_majorTicks);
  setOptionalText(ticks, ZephUni::_position, position);
  if (gridLines) addGridLines(ticks, *target);
  setOptionalText(ticks, ZephUni::_length, length);
  setOptionalText(ticks, ZephUni::_labelAngle, labelAngle);
  setFlag(ticks, ZephUni::_stagger, stagger);
  setOptionalText(ticks, ZephUni::_delta, delta);
  AddStyleAttribute(*target, ticks, ZephUni::_markStyle);
  AddStyleAttribute(*target, ticks, ZephUni::_tickLabelStyle);
  return place(*target, ticks, placement::majorTicks);
}

void Chart::addGridLines(DOMElement& ticks, const DOMElement& axis) {
  std::u16string style = ticks.getNodeName();
  style += _underscore;
  style += axis.getAttribute(ZephUni::_id);
  style += _gridLineStyle;
  DOMElement& lines = makeElement(_gridlines);
  lines.setAttribute(ZephUni::_style, style.c_str());
  AddStyle(*styleContainer_, style.c_str());
  append(ticks, lines);
}

int Chart::AddTransform(int parent, int method) {
  const Where here = Where::current();
  if (!validHandle(parent, "parent") || !validString(method, "method", here)) return -1;
  DOMElement* target = getElement(parent);
  if (!target) return -1;
  DOMElement& transform = makeElement(ZephUni::_transform);
  setText(transform, ZephUni::_method, method);
  return append(*target, transform);
}
