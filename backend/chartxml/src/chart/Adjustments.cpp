// Changes to what is there already, some of them throughout the chart.
#include <chartxml/Chart.h>

#include "ChildOrder.h"
#include "KindsBelow.h"
#include "NodeRule.h"
#include "Nodes.h"
#include "Placement.h"
#include <host/ChartString.h>
#include <host/ZephUni.h>

using xercesc::DOMElement;

namespace {

constexpr int allDigits = 16;

namespace rule {

constexpr AttributeRule showCollidingLabels{
    {"element", {}, nullptr}, ZephUni::_showCollidingLabels, nullptr};
constexpr AttributeRule labelCollisionHandling{
    {"element", {}, nullptr}, ZephUni::_labelCollisionHandling, "handling"};

} // namespace rule

ChartString textOf(double number) {
  ChartString text;
  text.assignDouble(number, allDigits);
  return text;
}

} // namespace

int Chart::SetDimensionSameRatio(int dimension, bool same) {
  if (!validHandle(dimension, "dimension")) return -1;
  DOMElement* target = getElement(dimension);
  if (!target) return -1;
  if (isNamed(*target, ZephUni::_dimension)) {
    target->setAttribute(_sameratio, same ? u"trueCentered" : ZephUni::_false);
  }
  DOMElement* labeling =
      firstBelow(*document_->getDocumentElement(), _facetlabeling, KindsBelow::facetLabeling);
  if (labeling) labeling->setAttribute(ZephUni::_cellAspect, u"1");
  return dimension;
}

int Chart::SetBinWidth(double width) {
  if (!(width > 0)) return -1;
  const ChartString text = textOf(width);
  int result = -1;
  visitDescendants(*document_->getDocumentElement(), ZephUni::_statistic,
                   [&](DOMElement& statistic) {
                     if (!hasValue(statistic, ZephUni::_method, _histogram)) return false;
                     DOMElement& binWidth = appendElement(statistic, ZephUni::_parameter);
                     binWidth.setAttribute(ZephUni::_name, u"bin-width");
                     binWidth.setAttribute(ZephUni::_value, text.c_str());
                     result = 1;
                     return false;
                   });
  return result;
}

int Chart::SetXYDimensionSameScale(double extent) {
  if (!(extent > 0)) return -1;
  const ChartString min = textOf(-extent);
  const ChartString max = textOf(extent);
  int result = -1;
  visitDescendants(*document_->getDocumentElement(), ZephUni::_domain, [&](DOMElement& domain) {
    DOMElement& interval = makeElement(ZephUni::_interval);
    interval.setAttribute(ZephUni::_min, min.c_str());
    interval.setAttribute(ZephUni::_max, max.c_str());
    childOrder_->insert(domain, interval, placement::interval);
    result = 1;
    return false;
  });
  return result;
}

int Chart::SetDisplayOverlappingLabels(int element, bool display) {
  return setAttributeFlag(element, rule::showCollidingLabels, display, Where::current());
}

int Chart::SetLabelCollisionHandling(int element, int handling) {
  return setAttributeText(element, rule::labelCollisionHandling, handling, Where::current());
}
