// Operations on elements, guides, dimensions and variables beyond the procedures' own.
#include "EntryCall.h"

#include <chartxml/EntryPoints.h>

using namespace entry;

int64_t chartxml_addr_(const int64_t* chart, const int64_t* parent, const int64_t* variable) {
  return call(__func__, &ChartXml::AddR, chart, parent, variable);
}
int64_t chartxml_addphi_(const int64_t* chart, const int64_t* parent, const int64_t* variable) {
  return call(__func__, &ChartXml::AddPhi, chart, parent, variable);
}
int64_t chartxml_addsize_(const int64_t* chart, const int64_t* elementOrLabeling,
                          const int64_t* variable) {
  return call(__func__, &ChartXml::AddSize, chart, elementOrLabeling, variable);
}
int64_t chartxml_setsizelow_(const int64_t* chart, const int64_t* size, const int64_t* low) {
  return call(__func__, &ChartXml::SetSizeLow, chart, size, low);
}
int64_t chartxml_setsizehigh_(const int64_t* chart, const int64_t* size, const int64_t* high) {
  return call(__func__, &ChartXml::SetSizeHigh, chart, size, high);
}
int64_t chartxml_addstack_(const int64_t* chart, const int64_t* positionNode,
                           const int64_t* stack) {
  return call(__func__, &ChartXml::AddStack, chart, positionNode, stack);
}
int64_t chartxml_addtransform_(const int64_t* chart, const int64_t* node, const int64_t* method) {
  return call(__func__, &ChartXml::AddTransform, chart, node, method);
}
int64_t chartxml_addreferenceline_(const int64_t* chart, const int64_t* frame,
                                   const int64_t* lineRole, const int64_t* valueString,
                                   const int64_t* guideStyle) {
  return call(__func__, &ChartXml::AddReferenceLine, chart, frame, lineRole, valueString,
              guideStyle);
}
int64_t chartxml_addyofxwithab_(const int64_t* chart, const int64_t* frame,
                                const int64_t* composite, const int64_t* guideStyle,
                                const double* b1, const double* b2) {
  return call(__func__, &ChartXml::AddYOfXWithAB, chart, frame, composite, guideStyle, b1, b2);
}
int64_t chartxml_addlegendtarget_(const int64_t* chart, const int64_t* legendNode,
                                  const int64_t* target, const int64_t* suffix,
                                  const int64_t* aesthetic) {
  return call(__func__, &ChartXml::AddLegendTarget, chart, legendNode, target, suffix, aesthetic);
}
int64_t chartxml_setfacetsdifferentscale_(const int64_t* chart, const int64_t* dimension) {
  return call(__func__, &ChartXml::SetFacetsDifferentScale, chart, dimension);
}
int64_t chartxml_copyvariable_(const int64_t* chart, const int64_t* variable) {
  return call(__func__, &ChartXml::CopyVariable, chart, variable);
}
int64_t chartxml_getvariableindex_(const int64_t* variableNumber) {
  return guarded(__func__, [&](ChartXml& registry) {
    return registry.getVariableIndex(integer(variableNumber));
  });
}
