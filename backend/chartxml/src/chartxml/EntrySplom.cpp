// Scatterplot matrices: every variable of a list against every other, in one call.
#include "EntryCall.h"

#include "../StringHandles.h"
#include "Extents.h"
#include "Steps.h"
#include <chartxml/EntryPoints.h>

using namespace entry;

namespace {

constexpr int xRole = 1;
constexpr int yRole = 2;
constexpr double verticalAngle = -90;
constexpr int none = -1;

/// The variables of the matrix, by node handle.
struct Variables {
  const int64_t* first;
  int64_t count;

  int operator[](int64_t i) const { return integer(first ? first + i : nullptr); }
};

/// The two variables that the panels are spread over.
struct Matrix {
  int x;
  int y;
};

int addMatrixVariable(Steps& steps, int list, int name) {
  const int variable = steps(&ChartXml::AddMatrixVariable, list);
  steps.attempt(&ChartXml::SetVariableName, variable, name);
  steps.attempt(&ChartXml::SetVariableLabel, variable, name);
  return variable;
}

// The second list runs backwards: the diagonal then falls from the upper left.
Matrix addMatrix(Steps& steps, Variables variables) {
  const int list = steps(&ChartXml::BeginVariableList);
  const int backwards = steps(&ChartXml::BeginVariableList);
  for (int64_t i = 0; i < variables.count && !steps.failed(); ++i) {
    steps(&ChartXml::AddToVariableList, list, variables[i]);
    steps(&ChartXml::AddToVariableList, backwards, variables[variables.count - 1 - i]);
  }
  const int x = addMatrixVariable(steps, list, strings::xAxis);
  const int y = addMatrixVariable(steps, backwards, strings::yAxis);
  return {x, y};
}

// The labels along two sides of the matrix, those at the left from bottom to top.
void labelPanels(Steps& steps, int frame) {
  const int labeling = steps(&ChartXml::AddFacetLabeling, frame);
  steps(&ChartXml::SetFacetLabelingCellAspect, labeling, 1.0);

  const int below = steps.make(&ChartXml::StyleString, strings::matrixScatterX, 1);
  const int labelsBelow = steps(&ChartXml::AddFacetLabel, labeling, below, xRole, false);
  const int axisBelow = steps(&ChartXml::AddAxis, labelsBelow, below, false);
  const int zero = steps.make(&ChartXml::LRValue, 0.0, -1);
  steps(&ChartXml::AddMajorTicks, axisBelow, none, false, zero, none, false, none);

  const int left = steps.make(&ChartXml::StyleString, strings::matrixScatterY, 1);
  const int labelsLeft = steps(&ChartXml::AddFacetLabel, labeling, left, yRole, false);
  steps.attempt(&ChartXml::SetFacetLabelCellStyle, labelsLeft, left);
  const int axisLeft = steps(&ChartXml::AddAxis, labelsLeft, left, false);
  const int angle = steps.make(&ChartXml::LRValue, verticalAngle, -1);
  steps(&ChartXml::AddMajorTicks, axisLeft, none, false, zero, angle, false, none);
}

/// A dimension of the panels.
struct PanelDimension {
  int role;
  int variable;
  int styleKind;
  Extents extents;
};

void addPanelDimension(ChartXml& registry, Steps& steps, int chart, int frame,
                       const PanelDimension& given) {
  const int dimension = steps(&ChartXml::AddDimension, frame, given.role, given.variable);
  steps.run([&] { return setExtents(registry, chart, dimension, given.extents); });
  const int style = steps.make(&ChartXml::StyleString, given.styleKind, 1);
  const int axis = steps(&ChartXml::AddAxis, dimension, style, false);
  steps(&ChartXml::AddMajorTicks, axis, none, false, none, none, false, none);
}

} // namespace

int64_t cx_addsplomelementex_(const int64_t* chart, const int64_t* parent, const int64_t* variables,
                              const int64_t* count, int64_t* element, const int64_t* xUpperMargin,
                              const int64_t* xLowerMargin, const int64_t* yUpperMargin,
                              const int64_t* yLowerMargin, const int64_t* xUpperMapping,
                              const int64_t* xLowerMapping, const int64_t* yUpperMapping,
                              const int64_t* yLowerMapping) {
  return guarded(__func__, [&](ChartXml& registry) -> int64_t {
    const int handle = integer(chart);
    const int frame = integer(parent);
    Steps steps(registry, handle);
    const auto [x, y] = addMatrix(steps, {variables, count ? *count : 0});
    labelPanels(steps, frame);
    addPanelDimension(registry, steps, handle, frame,
                      {xRole,
                       x,
                       strings::matrixScatterInnerX,
                       {xUpperMargin, xLowerMargin, xUpperMapping, xLowerMapping}});
    addPanelDimension(registry, steps, handle, frame,
                      {yRole,
                       y,
                       strings::matrixScatterInnerY,
                       {yUpperMargin, yLowerMargin, yUpperMapping, yLowerMapping}});
    if (steps.failed()) return steps.orFailure(0);

    const int64_t styleNumber = 1, type = strings::point, styleKind = strings::matrixScatter;
    const int64_t xVariable = x, yVariable = y;
    const int64_t made = cx_addxyelementex_(chart, parent, &styleNumber, &type, &xVariable,
                                            &yVariable, &styleKind, element);
    if (made < 0) return made;
    steps.attempt(&ChartXml::AddFacetStyle, static_cast<int>(made), strings::matrixScatterDiagonal,
                  registry.StyleString(strings::matrixScatter, 1));
    return made;
  });
}

int64_t cx_addsplomelement_(const int64_t* chart, const int64_t* parent, const int64_t* variables,
                            const int64_t* count, int64_t* element) {
  const int64_t margin =
      guarded(__func__, [](ChartXml& registry) { return registry.NStringNoTranslate("15%"); });
  if (margin < 0) return margin;
  const int64_t absent = none;
  return cx_addsplomelementex_(chart, parent, variables, count, element, &margin, &margin, &margin,
                               &margin, &absent, &absent, &absent, &absent);
}
