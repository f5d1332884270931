#include <chartxml/Chart.h>

#include <cstdint>

#include "NodeRule.h"
#include "Nodes.h"
#include "StringHandles.h"
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr double functionPoints = 1000;
constexpr std::int64_t stylesPerRole = 100;

namespace rule {

constexpr NodeRule guideParent{
    "frame", {ZephUni::_frame}, "can't add guide to anything but frame - "};
constexpr NodeRule targetParent{
    "legend", {ZephUni::_legend}, "can't add legendTarget to anything but a legend - "};

} // namespace rule

} // namespace

int Chart::AddGuide(int frame, int type, int suffix) {
  const Where here = Where::current();
  if (!valid(frame, rule::guideParent, here) || !validString(type, "type", here) ||
      !validOptionalString(suffix, "suffix", here)) {
    return -1;
  }
  DOMElement* target = accepted(frame, rule::guideParent, here);
  if (!target) return -1;
  DOMElement& guide = makeElement(ZephUni::_guide);
  AddIDAttribute(guide, suffix);
  setText(guide, ZephUni::_type, type);
  return append(*target, guide);
}

// Every role has styles of its own.
int Chart::AddReferenceLine(int frame, int role, int value, int styleIndex) {
  const Where here = Where::current();
  if (!validHandle(frame, "frame") || !validString(value, "value", here)) return -1;
  int suffix = -1;
  if (styleIndex >= 0) {
    const auto style = static_cast<int>(role * stylesPerRole + styleIndex);
    suffix = stringHandler_->StyleString(strings::referenceLine, style);
    if (suffix == -1) return -1;
  }
  const int guide = AddGuide(frame, strings::line, suffix);
  if (guide == -1 || (role != 1 && role != 2)) return guide;
  return keepIfWhole(guide, AddParam(guide, role == 1 ? strings::x : strings::y, value) != -1);
}

int Chart::AddYFunctionOfX(int frame, int function, int styleIndex) {
  const Where here = Where::current();
  if (!validHandle(frame, "frame") || !validString(function, "function", here)) return -1;
  int suffix = -1;
  if (styleIndex >= 0) {
    suffix = stringHandler_->StyleString(strings::yFunctionOfX, styleIndex);
    if (suffix == -1) return -1;
  }
  const int guide = AddGuide(frame, strings::function, suffix);
  if (guide == -1) return -1;
  return keepIfWhole(guide, AddParam(guide, strings::y, function) != -1 &&
                                AddParam(guide, strings::numPoints,
                                         stringHandler_->LRValue(functionPoints, -1)) != -1);
}

int Chart::keepIfWhole(int guide, bool whole) {
  if (whole) return guide;
  takeOut(*getElement(guide));
  return -1;
}

// Legends

int Chart::AddLegend(int frame, int suffix) {
  const Where here = Where::current();
  if (!validHandle(frame, "frame") || !validOptionalString(suffix, "suffix", here)) return -1;
  DOMElement* target = getElement(frame);
  if (!target) return -1;
  DOMElement& legend = makeElement(ZephUni::_legend);
  AddIDAttribute(legend, suffix);
  return append(*target, legend);
}

int Chart::AddLegendTarget(int legend, int elementOrGuide, int suffix, int aesthetic) {
  const Where here = Where::current();
  if (!valid(legend, rule::targetParent, here) ||
      !validHandle(elementOrGuide, "element or guide") ||
      !validOptionalString(suffix, "suffix", here) ||
      !validOptionalString(aesthetic, "aesthetic", here)) {
    return -1;
  }
  DOMElement* parent = accepted(legend, rule::targetParent, here);
  if (!parent || !getElement(elementOrGuide)) return -1;
  DOMElement& target = makeLegendTarget(elementOrGuide, suffix, here);
  setOptionalText(target, ZephUni::_aesthetic, aesthetic);
  return append(*parent, target);
}

int Chart::AddLegendTargetEx(int legend, int elementOrGuide, int styleBy, int suffix) {
  const Where here = Where::current();
  if (!valid(legend, rule::targetParent, here) ||
      !validHandle(elementOrGuide, "element or guide") || !validHandle(styleBy, "styleby") ||
      !validOptionalString(suffix, "suffix", here)) {
    return -1;
  }
  DOMElement* parent = accepted(legend, rule::targetParent, here);
  if (!parent || !getElement(elementOrGuide) || !getElement(styleBy)) return -1;
  DOMElement& target = makeLegendTarget(elementOrGuide, suffix, here);
  AddIDREFAttribute(target, styleBy, ZephUni::_aesthetic);
  return append(*parent, target);
}

DOMElement& Chart::makeLegendTarget(int elementOrGuide, int suffix, Where where) {
  DOMElement& target = makeElement(ZephUni::_legendTarget);
  AddIDREFAttribute(target, elementOrGuide, ZephUni::_element);
  AddIDAttribute(target, suffix, where);
  return target;
}
