#include <chartxml/Chart.h>

#include <xercesc/util/XMLString.hpp>

#include "KindsBelow.h"
#include "NodeRule.h"
#include "Nodes.h"
#include "Placement.h"
#include <chartxml/Role.h>
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

namespace rule {

constexpr ChildRule tableFacet{
    {"frame", {ZephUni::_frame}, "can't add a table facet to anything but a frame - "},
    Chart::_tablefacet,
    placement::tableFacet};
constexpr ChildRule facetLabeling{
    {"frame", {ZephUni::_frame}, "can't add a facet labeling to anything but a frame - "},
    Chart::_facetlabeling,
    placement::facetLabeling};
// The graph is named and refused all the same.
constexpr ChildRule coordinateFacet{
    {"frame", {ZephUni::_frame}, "can't add coordinateFacet to anything but graph or frame - "},
    Chart::_coordinatefacet,
    placement::coordinateFacet};

constexpr NodeRule labelParent{"facetLabeling",
                               {Chart::_facetlabeling},
                               "can't add facet label to anything but facet labeling - "};
constexpr NodeRule labelsHolder{"facetLabeling",
                                {Chart::_facetlabeling},
                                "can't get facet label from anything but facet labeling "};
constexpr AttributeRule cellAspect{{"facetLabeling",
                                    {Chart::_facetlabeling},
                                    "can't set cell aspect for anything but facet labeling "},
                                   ZephUni::_cellAspect,
                                   nullptr};
constexpr AttributeRule labelLevel{
    {"facetLabel", {Chart::_facetlabel}, nullptr}, ZephUni::_level, "level"};
constexpr AttributeRule gap{
    {"facetLabel", {Chart::_facetlabel, Chart::_facetvariable}, nullptr}, ZephUni::_gap, "gap"};
constexpr NodeRule styledLabel{
    "facetLabel", {Chart::_facetlabel}, "can't set the cellStyle for anything but a facetLabel "};
constexpr NodeRule styledNode{"element",
                              {ZephUni::_element, Chart::_gridlines},
                              "can't add a facetStyle to anything but an element or gridLines - "};

} // namespace rule

bool hasTwoChildren(const DOMElement& element) {
  const DOMElement* first = element.getFirstElementChild();
  return first && first->getNextElementSibling();
}

} // namespace

// Facets

int Chart::AddTableFacet(int frame) {
  return addOnce(frame, rule::tableFacet, KindsBelow::tableFacet, Where::current());
}

int Chart::AddFacetLabeling(int frame) {
  return addOnce(frame, rule::facetLabeling, KindsBelow::facetLabeling, Where::current());
}

// Anywhere below the frame: an outer frame finds what an inner one has.
int Chart::addOnce(int frame, const ChildRule& rule, int kind, Where where) {
  if (!valid(frame, rule.parent, where)) return -1;
  DOMElement* parent = accepted(frame, rule.parent, where);
  if (!parent) return -1;
  if (const DOMElement* known = firstBelow(*parent, rule.name, kind)) return getHandle(known);
  DOMElement& made = makeElement(rule.name);
  const int handle = place(*parent, made, rule.before);
  kindsBelow_->note(made, kind);
  return handle;
}

int Chart::AddCoordinateFacet(int frame) {
  return addChild(frame, rule::coordinateFacet, Where::current());
}

int Chart::AddNest(int parent) { return addFacetPart(parent, ZephUni::_nest, Where::current()); }
int Chart::AddBlend(int parent) { return addFacetPart(parent, ZephUni::_blend, Where::current()); }
int Chart::AddCross(int parent) { return addFacetPart(parent, ZephUni::_cross, Where::current()); }

int Chart::addFacetPart(int parent, const XMLCh* name, Where where) {
  if (!validHandle(parent, "coordinateFacet, cross, nest, or blend", where)) return -1;
  DOMElement* target = facetWithRoom(parent, where);
  return target ? append(*target, makeElement(name)) : -1;
}

// A nest has an outer and an inner part; any other node takes any number.
DOMElement* Chart::facetWithRoom(int handle, Where where) const {
  DOMElement* parent = getElement(handle);
  if (parent && !(isNamed(*parent, ZephUni::_nest) && hasTwoChildren(*parent))) return parent;
  report("Nest must have only 2 children - " + nameOf(parent), where);
  return nullptr;
}

int Chart::AddFacetVariable(int parent, int role, int variable) {
  if (!validHandle(parent, "facet") || !validRole(role) || !validHandle(variable, "variable")) {
    return -1;
  }
  DOMElement* target = facetWithRoom(parent, Where::current());
  if (!target || !getElement(variable)) return -1;
  DOMElement& facetVariable = makeElement(_facetvariable);
  facetVariable.setAttribute(ZephUni::_role, host::utf16(Role::getString(role)).c_str());
  AddIDREFAttribute(facetVariable, variable, ZephUni::_variable);
  return append(*target, facetVariable);
}

// Labels of panels

int Chart::AddFacetLabel(int facetLabeling, int suffix, int level, bool reverse) {
  const Where here = Where::current();
  if (!valid(facetLabeling, rule::labelParent, here) ||
      !validOptionalString(suffix, "suffix", here)) {
    return -1;
  }
  DOMElement* parent = accepted(facetLabeling, rule::labelParent, here);
  if (!parent) return -1;
  DOMElement& label = makeElement(_facetlabel);
  AddIDAttribute(label, suffix);
  if (reverse) label.setAttribute(ZephUni::_reverse, ZephUni::_true);
  label.setAttribute(ZephUni::_level, host::utf16(asString(level)).c_str());
  return append(*parent, label);
}

int Chart::GetFacetLabel(int facetLabeling, int level) {
  const Where here = Where::current();
  if (!valid(facetLabeling, rule::labelsHolder, here)) return -1;
  const DOMElement* labeling = accepted(facetLabeling, rule::labelsHolder, here);
  if (!labeling) return -1;
  const std::u16string text = host::utf16(asString(level));
  const DOMElement* found = nullptr;
  visitDescendants(*labeling, _facetlabel, [&](const DOMElement& label) {
    if (!hasValue(label, ZephUni::_level, text.c_str())) return false;
    found = &label;
    return true;
  });
  return found ? getHandle(found) : -1;
}

int Chart::SetFacetLabelLevel(int facetLabel, int level) {
  return setAttributeText(facetLabel, rule::labelLevel, level, Where::current());
}

int Chart::SetFacetLabelGap(int facetLabel, int gap) {
  return setAttributeText(facetLabel, rule::gap, gap, Where::current());
}

int Chart::SetFacetLabelCellStyle(int facetLabel, int suffix) {
  const Where here = Where::current();
  if (!valid(facetLabel, rule::styledLabel, here) || !validOptionalString(suffix, "suffix", here)) {
    return -1;
  }
  DOMElement* label = accepted(facetLabel, rule::styledLabel, here);
  if (!label) return -1;
  setOwnStyle(*label, _cellstyle, styleName(_facetlabel, suffix));
  return facetLabel;
}

int Chart::SetFacetLabelingCellAspect(int facetLabeling, double aspect) {
  return setAttribute(facetLabeling, rule::cellAspect, host::utf16(asString(aspect)).c_str(),
                      Where::current());
}

int Chart::AddFacetStyle(int elementOrGridLines, int when, int suffix) {
  const Where here = Where::current();
  if (!valid(elementOrGridLines, rule::styledNode, here) || !validString(when, "when", here) ||
      !validOptionalString(suffix, "suffix", here)) {
    return -1;
  }
  DOMElement* parent = accepted(elementOrGridLines, rule::styledNode, here);
  if (!parent) return -1;
  DOMElement& facetStyle = makeElement(_facetstyle);
  setText(facetStyle, ZephUni::_when, when);
  setOwnStyle(facetStyle, ZephUni::_style, styleName(_facetstyle, suffix));
  return place(*parent, facetStyle, placement::facetStyle);
}

// Coordinates

int Chart::AddCoordinateTransform(int frame, int method) {
  const Where here = Where::current();
  if (!validHandle(frame, "frame") || !validString(method, "method", here)) return -1;
  DOMElement* parent = getElement(frame);
  if (!parent) return -1;
  DOMElement& transform = makeElement(_coordinatetransform);
  setText(transform, ZephUni::_method, method);
  return place(*parent, transform, placement::coordinateTransform);
}
