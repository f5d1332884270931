// Fit lines: the curve of a model with its coefficients.
#include "EntryCall.h"

#include <chartxml/EntryPoints.h>

using namespace entry;

int64_t cx_addyofxlinear_(const int64_t* chart, const int64_t* frame, const int64_t* guideStyle,
                          const double* intercept, const double* slope, const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXLinear, chart, frame, guideStyle, intercept, slope,
              dateScale);
}
int64_t cx_addyofxlogarithmic_(const int64_t* chart, const int64_t* frame,
                               const int64_t* guideStyle, const double* b1, const double* b2,
                               const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXLogarithmic, chart, frame, guideStyle, b1, b2, dateScale);
}
int64_t cx_addyofxinverse_(const int64_t* chart, const int64_t* frame, const int64_t* guideStyle,
                           const double* b1, const double* b2, const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXInverse, chart, frame, guideStyle, b1, b2, dateScale);
}
int64_t cx_addyofxquadratic_(const int64_t* chart, const int64_t* frame, const int64_t* guideStyle,
                             const double* b1, const double* b2, const double* b3,
                             const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXQuadratic, chart, frame, guideStyle, b1, b2, b3,
              dateScale);
}
int64_t cx_addyofxcubic_(const int64_t* chart, const int64_t* frame, const int64_t* guideStyle,
                         const double* b1, const double* b2, const double* b3, const double* b4,
                         const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXCubic, chart, frame, guideStyle, b1, b2, b3, b4,
              dateScale);
}
int64_t cx_addyofxcompound_(const int64_t* chart, const int64_t* frame, const int64_t* guideStyle,
                            const double* b1, const double* b2, const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXCompound, chart, frame, guideStyle, b1, b2, dateScale);
}
int64_t cx_addyofxpower_(const int64_t* chart, const int64_t* frame, const int64_t* guideStyle,
                         const double* b1, const double* b2, const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXPower, chart, frame, guideStyle, b1, b2, dateScale);
}
int64_t cx_addyofxs_(const int64_t* chart, const int64_t* frame, const int64_t* guideStyle,
                     const double* b1, const double* b2, const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXS, chart, frame, guideStyle, b1, b2, dateScale);
}
int64_t cx_addyofxgrowth_(const int64_t* chart, const int64_t* frame, const int64_t* guideStyle,
                          const double* b1, const double* b2, const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXGrowth, chart, frame, guideStyle, b1, b2, dateScale);
}
int64_t cx_addyofxexponential_(const int64_t* chart, const int64_t* frame,
                               const int64_t* guideStyle, const double* b1, const double* b2,
                               const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXExponential, chart, frame, guideStyle, b1, b2, dateScale);
}
int64_t cx_addyofxlogistic_(const int64_t* chart, const int64_t* frame, const int64_t* guideStyle,
                            const double* b1, const double* b2, const double* b3,
                            const int64_t* dateScale) {
  return call(__func__, &ChartXml::AddYOfXLogistic, chart, frame, guideStyle, b1, b2, b3,
              dateScale);
}
