#include <chartxml/Chart.h>

#include "Nodes.h"
#include "Placement.h"
#include "StringHandles.h"
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr double functionPoints = 1000;

constexpr const XMLCh* guideParents[] = {ZephUni::_frame};
constexpr const XMLCh* targetParents[] = {ZephUni::_legend};

} // namespace

int Chart::AddGuide(int frame, int type, int suffix) {
  const Where here = Where::current();
  if (!validHandle(frame, "frame") || !validString(type, "type", here) ||
      !validOptionalString(suffix, "suffix", here)) {
    return -1;
  }
  DOMElement* target =
      acceptedParent(frame, guideParents, "can't add guide to anything but frame - ", here);
  if (!target) return -1;
  DOMElement& guide = makeElement(ZephUni::_guide);
  AddIDAttribute(guide, suffix);
  setText(guide, ZephUni::_type, type);
  return append(*target, guide);
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
  if (AddParam(guide, strings::y, function) == -1 ||
      AddParam(guide, strings::numPoints, stringHandler_->LRValue(functionPoints, -1)) == -1) {
    takeOut(*getElement(guide));
    return -1;
  }
  return guide;
}

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
  if (!validHandle(legend, "legend") || !validHandle(elementOrGuide, "element or guide") ||
      !validOptionalString(suffix, "suffix", here) ||
      !validOptionalString(aesthetic, "aesthetic", here)) {
    return -1;
  }
  DOMElement* target = acceptedParent(legend, targetParents,
                                      "can't add legendTarget to anything but a legend - ", here);
  if (!target || !getElement(elementOrGuide)) return -1;
  DOMElement& legendTarget = makeElement(ZephUni::_legendTarget);
  AddIDREFAttribute(legendTarget, elementOrGuide, ZephUni::_element);
  AddIDAttribute(legendTarget, suffix);
  setOptionalText(legendTarget, ZephUni::_aesthetic, aesthetic);
  return append(*target, legendTarget);
}
