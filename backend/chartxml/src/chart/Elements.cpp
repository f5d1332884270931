// Elements, and what belongs to an element or to any node: names, labels, places.
#include <chartxml/Chart.h>

#include <xercesc/dom/DOMText.hpp>

#include "ChildOrder.h"
#include "NodeRule.h"
#include "Nodes.h"
#include "Placement.h"
#include "StringHandles.h"
#include <host/Text.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

namespace rule {

constexpr NodeRule elementParent{"frame or elementGroup",
                                 {ZephUni::_frame, Chart::_elementgroup},
                                 "can't add element to anything but frame or elementGroup - "};
// The procedures know the refusal by the word element, not elementGroup.
constexpr NodeRule groupParent{
    "frame", {ZephUni::_frame}, "can't add element to anything but frame - "};
constexpr NodeRule modified{"element",
                            {ZephUni::_element},
                            "can't set positionModifier attribute for anything but an element "};

constexpr AttributeRule name{
    {"element", {ZephUni::_element, ZephUni::_guide}, nullptr}, ZephUni::_name, "name"};
constexpr AttributeRule dot{{"element", {ZephUni::_element}, nullptr}, ZephUni::_dot, "dot"};
constexpr AttributeRule positionModifier{modified, ZephUni::_positionModifier, "positionModifier"};

} // namespace rule

} // namespace

int Chart::AddElement(int parent, int type, int suffix) {
  const Where here = Where::current();
  if (!valid(parent, rule::elementParent, here) || !validString(type, "type", here) ||
      !validOptionalString(suffix, "suffix", here)) {
    return -1;
  }
  DOMElement* target = accepted(parent, rule::elementParent, here);
  if (!target) return -1;

  DOMElement& element = makeElement(ZephUni::_element);
  setText(element, ZephUni::_type, type);
  AddIDAttribute(element, suffix);
  if (hasValue(element, ZephUni::_type, ZephUni::_point)) {
    appendToStyle(element, std::u16string(_fill_pattern) + u":0");
    element.setAttribute(ZephUni::_labelCollisionHandling, ZephUni::_normal);
  }
  element.setAttribute(ZephUni::_showCollidingLabels, ZephUni::_true);
  return append(*target, element);
}

// Elements without a suffix share one style, and each adds to it.
void Chart::appendToStyle(const DOMElement& element, std::u16string_view text) {
  DOMElement* style = document_->getElementById(element.getAttribute(ZephUni::_style));
  if (!style) return;
  std::u16string& value = styleValues_[style];
  if (!value.empty()) value += _semicolon;
  value += text;
}

// The values grow beside the document and are written when it is read: a style that
// thousands of elements share would else be copied by each.
void Chart::writeStyleValues() const {
  for (const auto& [style, value] : styleValues_) {
    style->setAttribute(ZephUni::_value, value.c_str());
  }
}

int Chart::AddElementGroup(int frame, int suffix) {
  const Where here = Where::current();
  if (!valid(frame, rule::groupParent, here) || !validOptionalString(suffix, "suffix", here)) {
    return -1;
  }
  DOMElement* target = accepted(frame, rule::groupParent, here);
  if (!target) return -1;
  DOMElement& group = makeElement(_elementgroup);
  AddIDAttribute(group, suffix);
  return append(*target, group);
}

int Chart::SetElementName(int element, int name) {
  return setAttributeText(element, rule::name, name, Where::current());
}

int Chart::SetElementDot(int element, int dot) {
  return setAttributeText(element, rule::dot, dot, Where::current());
}

int Chart::SetElementPositionModifier(int element, int modifier) {
  return setAttributeText(element, rule::positionModifier, modifier, Where::current());
}

int Chart::AddStack(int position, bool stack) {
  if (!validHandle(position, "position")) return -1;
  const DOMElement* target = getElement(position);
  xercesc::DOMNode* element = target ? target->getParentNode() : nullptr;
  if (!element || !isNamed(*element, ZephUni::_element)) {
    report(rule::modified.refusal + nameOf(element), Where::current());
    return -1;
  }
  setText(static_cast<DOMElement&>(*element), ZephUni::_positionModifier,
          stack ? strings::stack : strings::none);
  return position;
}

int Chart::AddLabel(int parent, int suffix, int content) {
  const Where here = Where::current();
  if (!validHandle(parent, "parent") || !validOptionalString(suffix, "id", here) ||
      !validOptionalString(content, "content", here)) {
    return -1;
  }
  DOMElement* target = getElement(parent);
  if (!target) return -1;
  if (DOMElement* former = childOrder_->first(*target, ZephUni::_label)) takeOut(*former);

  DOMElement& label = makeElement(ZephUni::_label);
  AddIDAttribute(label, suffix);
  if (content != -1) {
    label.appendChild(document_->createTextNode(brokenIntoLines(content).c_str()));
  }
  return place(*target, label, placement::label);
}

void Chart::AddLocation(DOMElement& element, const XMLCh* unit, double left, double top,
                        double right, double bottom) {
  if (childOrder_->first(element, ZephUni::_location)) return;
  DOMElement& location = makeElement(ZephUni::_location);
  place(element, location, placement::location);
  const std::pair<const XMLCh*, double> sides[] = {{ZephUni::_left, left},
                                                   {ZephUni::_top, top},
                                                   {ZephUni::_right, right},
                                                   {ZephUni::_bottom, bottom}};
  for (const auto& [side, number] : sides) {
    std::u16string text = host::utf16(asString(number));
    if (unit) text += unit;
    location.setAttribute(side, legalText(text.c_str(), text.size()));
  }
}
