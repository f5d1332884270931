// Frames, elements, dimensions and guides.
#include "EntryCall.h"

#include <chartxml/EntryPoints.h>

using namespace entry;

int64_t cx_addframe_(const int64_t* chart, const int64_t* parent, const int64_t* suffix) {
  return call(__func__, &ChartXml::AddFrame, chart, parent, suffix);
}
int64_t cx_setframeclipping_(const int64_t* chart, const int64_t* frame, const int64_t* clip) {
  return call(__func__, &ChartXml::SetFrameClipping, chart, frame, clip);
}
int64_t cx_addfacetlabeling_(const int64_t* chart, const int64_t* frame) {
  return call(__func__, &ChartXml::AddFacetLabeling, chart, frame);
}
int64_t cx_addfacetlabel_(const int64_t* chart, const int64_t* facetLabeling, const int64_t* suffix,
                          const int64_t* level, const int64_t* reverse) {
  return call(__func__, &ChartXml::AddFacetLabel, chart, facetLabeling, suffix, level, reverse);
}
int64_t cx_setfacetlabelcellstyle_(const int64_t* chart, const int64_t* facetLabel,
                                   const int64_t* suffix) {
  return call(__func__, &ChartXml::SetFacetLabelCellStyle, chart, facetLabel, suffix);
}
int64_t cx_addelement_(const int64_t* chart, const int64_t* parent, const int64_t* type,
                       const int64_t* suffix) {
  return call(__func__, &ChartXml::AddElement, chart, parent, type, suffix);
}
int64_t cx_addelementgroup_(const int64_t* chart, const int64_t* frame, const int64_t* suffix) {
  return call(__func__, &ChartXml::AddElementGroup, chart, frame, suffix);
}
int64_t cx_setelementname_(const int64_t* chart, const int64_t* element, const int64_t* name) {
  return call(__func__, &ChartXml::SetElementName, chart, element, name);
}
int64_t cx_addposition_(const int64_t* chart, const int64_t* element) {
  return call(__func__, &ChartXml::AddPosition, chart, element);
}
int64_t cx_addx_(const int64_t* chart, const int64_t* parent, const int64_t* variable) {
  return call(__func__, &ChartXml::AddX, chart, parent, variable);
}
int64_t cx_addy_(const int64_t* chart, const int64_t* parent, const int64_t* variable) {
  return call(__func__, &ChartXml::AddY, chart, parent, variable);
}
int64_t cx_addz_(const int64_t* chart, const int64_t* parent, const int64_t* variable) {
  return call(__func__, &ChartXml::AddZ, chart, parent, variable);
}
int64_t cx_addtheta_(const int64_t* chart, const int64_t* parent, const int64_t* variable) {
  return call(__func__, &ChartXml::AddTheta, chart, parent, variable);
}
int64_t cx_addcolor_(const int64_t* chart, const int64_t* element, const int64_t* variable) {
  return call(__func__, &ChartXml::AddColor, chart, element, variable);
}
int64_t cx_addstyleby_(const int64_t* chart, const int64_t* element, const int64_t* variable) {
  return call(__func__, &ChartXml::AddStyleBy, chart, element, variable);
}
int64_t cx_addstylebycolor_(const int64_t* chart, const int64_t* element, const int64_t* variable) {
  return call(__func__, &ChartXml::AddStyleByColor, chart, element, variable);
}
int64_t cx_addstylebypattern_(const int64_t* chart, const int64_t* element,
                              const int64_t* variable) {
  return call(__func__, &ChartXml::AddStyleByPattern, chart, element, variable);
}
int64_t cx_addstylebycolorandpattern_(const int64_t* chart, const int64_t* element,
                                      const int64_t* variable) {
  return call(__func__, &ChartXml::AddStyleByColorAndPattern, chart, element, variable);
}
int64_t cx_addstatistic_(const int64_t* chart, const int64_t* parent, const int64_t* method) {
  return call(__func__, &ChartXml::AddStatistic, chart, parent, method);
}
int64_t cx_addparam_(const int64_t* chart, const int64_t* statistic, const int64_t* name,
                     const int64_t* value) {
  return call(__func__, &ChartXml::AddParam, chart, statistic, name, value);
}
int64_t cx_addlabel_(const int64_t* chart, const int64_t* parent, const int64_t* suffix,
                     const int64_t* content) {
  return call(__func__, &ChartXml::AddLabel, chart, parent, suffix, content);
}
int64_t cx_adddimension_(const int64_t* chart, const int64_t* frame, const int64_t* role,
                         const int64_t* domain) {
  return call(__func__, &ChartXml::AddDimension, chart, frame, role, domain);
}
int64_t cx_getdimension_(const int64_t* chart, const int64_t* frame, const int64_t* role) {
  return call(__func__, &ChartXml::GetDimension, chart, frame, role);
}
int64_t cx_setdimensionuppermargin_(const int64_t* chart, const int64_t* dimension,
                                    const int64_t* margin) {
  return call(__func__, &ChartXml::SetDimensionUpperMargin, chart, dimension, margin);
}
int64_t cx_setdimensionlowermargin_(const int64_t* chart, const int64_t* dimension,
                                    const int64_t* margin) {
  return call(__func__, &ChartXml::SetDimensionLowerMargin, chart, dimension, margin);
}
int64_t cx_setdimensionuppermapping_(const int64_t* chart, const int64_t* dimension,
                                     const int64_t* mapping) {
  return call(__func__, &ChartXml::SetDimensionUpperMapping, chart, dimension, mapping);
}
int64_t cx_setdimensionlowermapping_(const int64_t* chart, const int64_t* dimension,
                                     const int64_t* mapping) {
  return call(__func__, &ChartXml::SetDimensionLowerMapping, chart, dimension, mapping);
}
int64_t cx_setdimensionupper_(const int64_t* chart, const int64_t* dimension,
                              const int64_t* mapping) {
  return call(__func__, &ChartXml::SetDimensionUpperMapping, chart, dimension, mapping);
}
int64_t cx_addaxis_(const int64_t* chart, const int64_t* parent, const int64_t* suffix,
                    const int64_t* opposite) {
  return call(__func__, &ChartXml::AddAxis, chart, parent, suffix, opposite);
}
int64_t cx_addmajorticks_(const int64_t* chart, const int64_t* parent, const int64_t* position,
                          const int64_t* gridLines, const int64_t* length,
                          const int64_t* labelAngle, const int64_t* stagger, const int64_t* delta) {
  return call(__func__, &ChartXml::AddMajorTicks, chart, parent, position, gridLines, length,
              labelAngle, stagger, delta);
}
int64_t cx_setaxispercent_(const int64_t* chart, const int64_t* node, const int64_t* formatParent) {
  return call(__func__, &ChartXml::SetAxisPercent, chart, node, formatParent);
}
int64_t cx_addguide_(const int64_t* chart, const int64_t* frame, const int64_t* type,
                     const int64_t* suffix) {
  return call(__func__, &ChartXml::AddGuide, chart, frame, type, suffix);
}
int64_t cx_addyfunctionofx_(const int64_t* chart, const int64_t* frame, const int64_t* function,
                            const int64_t* styleIndex) {
  return call(__func__, &ChartXml::AddYFunctionOfX, chart, frame, function, styleIndex);
}
int64_t cx_addyofxlinear_(const int64_t* chart, const int64_t* parent,
                          const int64_t* functionArgument, const double* b1, const double* b2,
                          const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXLinear, chart, parent, functionArgument, b1, b2,
              dateScale);
}
int64_t cx_addlegend_(const int64_t* chart, const int64_t* frame, const int64_t* suffix) {
  return call(__func__, &ChartXml::AddLegend, chart, frame, suffix);
}
