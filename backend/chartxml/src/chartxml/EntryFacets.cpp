// Facets and coordinates.
#include "EntryCall.h"

#include <chartxml/EntryPoints.h>

using namespace entry;

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
int64_t cx_getfacetlabel_(const int64_t* chart, const int64_t* facetLabeling,
                          const int64_t* level) {
  return call(__func__, &ChartXml::GetFacetLabel, chart, facetLabeling, level);
}
int64_t cx_setfacetlabellevel_(const int64_t* chart, const int64_t* facetLabel,
                               const int64_t* levelText) {
  return call(__func__, &ChartXml::SetFacetLabelLevel, chart, facetLabel, levelText);
}
int64_t cx_setfacetlabelgap_(const int64_t* chart, const int64_t* facetLabelOrVariable,
                             const int64_t* gap) {
  return call(__func__, &ChartXml::SetFacetLabelGap, chart, facetLabelOrVariable, gap);
}
int64_t cx_setfacetlabelingcellaspect_(const int64_t* chart, const int64_t* facetLabeling,
                                       const double* aspect) {
  return call(__func__, &ChartXml::SetFacetLabelingCellAspect, chart, facetLabeling, aspect);
}
int64_t cx_addtablefacet_(const int64_t* chart, const int64_t* frame) {
  return call(__func__, &ChartXml::AddTableFacet, chart, frame);
}
int64_t cx_addcoordinatefacet_(const int64_t* chart, const int64_t* frame) {
  return call(__func__, &ChartXml::AddCoordinateFacet, chart, frame);
}
int64_t cx_addnest_(const int64_t* chart, const int64_t* facet) {
  return call(__func__, &ChartXml::AddNest, chart, facet);
}
int64_t cx_addblend_(const int64_t* chart, const int64_t* facet) {
  return call(__func__, &ChartXml::AddBlend, chart, facet);
}
int64_t cx_addcross_(const int64_t* chart, const int64_t* facet) {
  return call(__func__, &ChartXml::AddCross, chart, facet);
}
int64_t cx_addfacetvariable_(const int64_t* chart, const int64_t* facet, const int64_t* role,
                             const int64_t* variable) {
  return call(__func__, &ChartXml::AddFacetVariable, chart, facet, role, variable);
}
int64_t CX_AddFacetStyle(const int64_t* chart, const int64_t* elementOrGridLines,
                         const int64_t* when, const int64_t* suffix) {
  return call(__func__, &ChartXml::AddFacetStyle, chart, elementOrGridLines, when, suffix);
}
int64_t cx_addcoordinatetransform_(const int64_t* chart, const int64_t* frame,
                                   const int64_t* method) {
  return call(__func__, &ChartXml::AddCoordinateTransform, chart, frame, method);
}
