// What display formats are made of.
#include "EntryCall.h"

#include <chartxml/EntryPoints.h>

using namespace entry;

int64_t chartxml_addmeta_(const int64_t* chart, const int64_t* variable) {
  return call(__func__, &ChartXml::AddMeta, chart, variable);
}
int64_t chartxml_setmetaweight_(const int64_t* chart, const int64_t* meta, const int64_t* weight) {
  return call(__func__, &ChartXml::SetMetaWeight, chart, meta, weight);
}
int64_t chartxml_addformat_(const int64_t* chart, const int64_t* meta, const int64_t* column) {
  return call(__func__, &ChartXml::AddFormat, chart, meta, column);
}
int64_t chartxml_getvariablenumformat_(const int64_t* chart, const int64_t* variable) {
  return call(__func__, &ChartXml::getVariableNumFormat, chart, variable);
}
int64_t chartxml_addstringformat_(const int64_t* chart, const int64_t* meta) {
  return call(__func__, &ChartXml::AddStringFormat, chart, meta);
}
int64_t chartxml_adddateformat_(const int64_t* chart, const int64_t* meta,
                                const int64_t* formatType, const int64_t* formatWidth) {
  return call(__func__, &ChartXml::AddDateFormat, chart, meta, formatType, formatWidth);
}
int64_t chartxml_addnumberformat_(const int64_t* chart, const int64_t* formatParent) {
  return call(__func__, static_cast<int (ChartXml::*)(int, int)>(&ChartXml::AddNumberFormat), chart,
              formatParent);
}
int64_t chartxml_addnumberformatoftype_(const int64_t* chart, const int64_t* meta,
                                        const int64_t* formatType, const int64_t* formatWidth,
                                        const int64_t* decimals) {
  return call(__func__,
              static_cast<int (ChartXml::*)(int, int, int, int, int)>(&ChartXml::AddNumberFormat),
              chart, meta, formatType, formatWidth, decimals);
}
int64_t chartxml_setnumberformatminfractiondigits_(const int64_t* chart,
                                                   const int64_t* numberFormat,
                                                   const int64_t* fractionDigits) {
  return call(__func__, &ChartXml::SetNumberFormatMinFractionDigits, chart, numberFormat,
              fractionDigits);
}
int64_t chartxml_setnumberformatmaxfractiondigits_(const int64_t* chart,
                                                   const int64_t* numberFormat,
                                                   const int64_t* fractionDigitsString) {
  return call(__func__, &ChartXml::SetNumberFormatMaxFractionDigits, chart, numberFormat,
              fractionDigitsString);
}
int64_t chartxml_setnumberformatprefix_(const int64_t* chart, const int64_t* numberFormat,
                                        const int64_t* prefix) {
  return call(__func__, &ChartXml::SetNumberFormatPrefix, chart, numberFormat, prefix);
}
int64_t chartxml_setnumberformatsuffix_(const int64_t* chart, const int64_t* numberFormat,
                                        const int64_t* unitSuffix) {
  return call(__func__, &ChartXml::SetNumberFormatSuffix, chart, numberFormat, unitSuffix);
}
int64_t chartxml_setnumberscientific_(const int64_t* chart, const int64_t* numberFormat,
                                      const int64_t* scientific) {
  return call(__func__, &ChartXml::SetNumberScientific, chart, numberFormat, scientific);
}
