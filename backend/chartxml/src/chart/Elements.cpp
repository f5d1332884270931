#include <chartxml/Chart.h>

#include <xercesc/dom/DOMText.hpp>

#include "ChildOrder.h"
#include "Nodes.h"
#include "Placement.h"
#include <host/ZephUni.h>

using xercesc::DOMElement;
using xercesc::XMLString;

namespace {

constexpr const XMLCh* elementParents[] = {ZephUni::_frame, Chart::_elementgroup};
constexpr const XMLCh* groupParents[] = {ZephUni::_frame};
constexpr const XMLCh* positionParents[] = {ZephUni::_element};

} // namespace

int Chart::AddElement(int parent, int type, int suffix) {
  const Where here = Where::current();
  if (!validHandle(parent, "frame or elementGroup") || !validString(type, "type", here) ||
      !validOptionalString(suffix, "suffix", here)) {
    return -1;
  }
  DOMElement* target = acceptedParent(
      parent, elementParents, "can't add element to anything but frame or elementGroup - ", here);
  if (!target) return -1;

  DOMElement& element = makeElement(ZephUni::_element);
  setText(element, ZephUni::_type, type);
  AddIDAttribute(element, suffix);
  if (hasValue(element, ZephUni::_type, ZephUni::_point)) {
    appendToStyle(element, u"fill-pattern:0");
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
  if (!validHandle(frame, "frame") || !validOptionalString(suffix, "suffix", here)) return -1;
  // The procedures know the message by the word element, not elementGroup.
  DOMElement* target =
      acceptedParent(frame, groupParents, "can't add element to anything but frame - ", here);
  if (!target) return -1;
  DOMElement& group = makeElement(_elementgroup);
  AddIDAttribute(group, suffix);
  return append(*target, group);
}

int Chart::SetElementName(int element, int name) {
  const Where here = Where::current();
  if (!validHandle(element, "element") || !validString(name, "name", here)) return -1;
  DOMElement* target = getElement(element);
  if (!target || (!isNamed(*target, ZephUni::_element) && !isNamed(*target, ZephUni::_guide))) {
    return -1;
  }
  setText(*target, ZephUni::_name, name);
  return element;
}

int Chart::AddPosition(int element) {
  if (!validHandle(element, "element")) return -1;
  DOMElement* target = acceptedParent(
      element, positionParents, "can't add position to anything but element - ", Where::current());
  if (!target) return -1;
  return place(*target, makeElement(ZephUni::_position), placement::position);
}

int Chart::AddStatistic(int parent, int method) {
  const Where here = Where::current();
  if (!validHandle(parent, "parent") || !validString(method, "method", here)) return -1;
  DOMElement* target = getElement(parent);
  if (!target) return -1;
  DOMElement& statistic = makeElement(ZephUni::_statistic);
  setText(statistic, ZephUni::_method, method);
  if (hasValue(statistic, ZephUni::_method, _histogram)) {
    DOMElement& shared = appendElement(statistic, ZephUni::_parameter);
    shared.setAttribute(ZephUni::_name, u"facetsShareSpecification");
    shared.setAttribute(ZephUni::_value, ZephUni::_true);
  }
  return place(*target, statistic, placement::statistic);
}

int Chart::AddParam(int statistic, int name, int value) {
  const Where here = Where::current();
  if (!validHandle(statistic, "statistic") || !validString(name, "name", here) ||
      !validString(value, "value", here)) {
    return -1;
  }
  DOMElement* target = getElement(statistic);
  if (!target) return -1;
  DOMElement& parameter = makeElement(ZephUni::_parameter);
  setText(parameter, ZephUni::_name, name);
  setText(parameter, ZephUni::_value, value);
  return append(*target, parameter);
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
    ChartString text = stringHandler_->getXMLString(content);
    text.unescapeLineFeeds();
    label.appendChild(document_->createTextNode(legalText(text.c_str(), text.text().size())));
  }
  return place(*target, label, placement::label);
}
