// Dimensions and domains.
#include "EntryCall.h"

#include <chartxml/EntryPoints.h>

using namespace entry;

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
int64_t cx_setdimensiondomain_(const int64_t* chart, const int64_t* dimension,
                               const int64_t* domain) {
  return call(__func__, &ChartXml::SetDimensionDomain, chart, dimension, domain);
}
int64_t cx_setdimensionscale_(const int64_t* chart, const int64_t* dimension,
                              const int64_t* scaleMethod, const int64_t* scaleValue,
                              const int64_t* invert) {
  return call(__func__, &ChartXml::SetDimensionScale, chart, dimension, scaleMethod, scaleValue,
              invert);
}
int64_t cx_setuniondomain_(const int64_t* chart, const int64_t* dimension) {
  return call(__func__, &ChartXml::SetUnionDomain, chart, dimension);
}
int64_t cx_setdimensionsameratio_(const int64_t* chart, const int64_t* dimension,
                                  const int64_t* sameRatio) {
  return call(__func__, &ChartXml::SetDimensionSameRatio, chart, dimension, sameRatio);
}
int64_t cx_setxydimensionsamescale_(const int64_t* chart, const double* extent) {
  return call(__func__, &ChartXml::SetXYDimensionSameScale, chart, extent);
}
int64_t cx_setbinwidth_(const int64_t* chart, const double* binWidth) {
  return call(__func__, &ChartXml::SetBinWidth, chart, binWidth);
}
int64_t cx_addintervalex_(const int64_t* chart, const int64_t* domain, const int64_t* min,
                          const int64_t* max) {
  return call(__func__, &ChartXml::AddIntervalEx, chart, domain, min, max);
}
int64_t cx_adddomainreference_(const int64_t* chart, const int64_t* domain,
                               const int64_t* domainOrVariable) {
  return call(__func__, &ChartXml::AddDomainReference, chart, domain, domainOrVariable);
}
int64_t cx_setdomaindescending_(const int64_t* chart, const int64_t* domain,
                                const int64_t* descending) {
  return call(__func__, &ChartXml::SetDomainDescending, chart, domain, descending);
}
int64_t cx_addsort_(const int64_t* chart, const int64_t* domain) {
  return call(__func__, &ChartXml::AddSort, chart, domain);
}
int64_t cx_setsortdescending_(const int64_t* chart, const int64_t* sort,
                              const int64_t* descending) {
  return call(__func__, &ChartXml::SetSortDescending, chart, sort, descending);
}
int64_t cx_addsimplesort_(const int64_t* chart, const int64_t* sort) {
  return call(__func__, &ChartXml::AddSimpleSort, chart, sort);
}
int64_t cx_setsimplesortmethod_(const int64_t* chart, const int64_t* simpleSort,
                                const int64_t* method) {
  return call(__func__, &ChartXml::SetSimpleSortMethod, chart, simpleSort, method);
}
int64_t cx_addstatisticsort_(const int64_t* chart, const int64_t* sort,
                             const int64_t* sourceVariable, const int64_t* statVariable) {
  return call(__func__, &ChartXml::AddStatisticSort, chart, sort, sourceVariable, statVariable);
}

// A domain, and below it a sort when there is a method for one.
int64_t cx_adddomain_(const int64_t* chart, const int64_t*, const int64_t*,
                      const int64_t* categorical, const int64_t* sortMethod) {
  return guarded(__func__, [&](ChartXml& registry) {
    const int domain = registry.AddDomain(integer(chart), logical(categorical));
    if (domain == -1 || !isGiven(sortMethod)) return domain;
    const int sort = registry.AddSort(integer(chart), domain);
    if (sort == -1) return -1;
    const int simpleSort = registry.AddSimpleSort(integer(chart), sort);
    if (simpleSort == -1) return -1;
    return registry.SetSimpleSortMethod(integer(chart), simpleSort, integer(sortMethod));
  });
}
