// Three-dimensional charts: how the space is seen, and what is drawn around it.
#include "EntryCall.h"

#include <span>
#include <string>

#include "../StringHandles.h"
#include "Steps.h"
#include <chartxml/EntryPoints.h>

using namespace entry;

namespace {

struct Parameter {
  int name;
  double value;
};

// How the space is turned, in degrees, and from how far it is seen.
constexpr Parameter view[] = {
    {strings::theta, 10}, {strings::phi, -35}, {strings::zeta, 0}, {strings::distance, 1.3}};

// Where a wire frame stands beside its axes.
constexpr const char* offsets[] = {"dx", "dy"};
constexpr double offset = 0.1;

/// A guide and the one parameter that says which it is.
struct Guide {
  int styleKind;
  int type;
  int name;
  int value;
};

constexpr Guide wireFrame[] = {
    {strings::frame, strings::frame, strings::complete, strings::falseWord},
    {strings::yzPlane, strings::plane, strings::normal, strings::x},
    {strings::xzPlane, strings::plane, strings::normal, strings::y},
    {strings::xyPlane, strings::plane, strings::normal, strings::z}};
constexpr std::span backPlanes = std::span(wireFrame).subspan<1>();

// A text that can't be made fails when it is used.
void addNumber(ChartXml& registry, Steps& steps, int node, int name, double value) {
  if (!steps.failed()) steps(&ChartXml::AddParam, node, name, registry.LRValue(value, -1));
}

int addView(ChartXml& registry, Steps& steps, int parent) {
  const int transform = steps(&ChartXml::AddCoordinateTransform, parent, strings::rectangular);
  for (const auto& [name, value] : view)
    addNumber(registry, steps, transform, name, value);
  return transform;
}

void addGuides(Steps& steps, int parent, std::span<const Guide> guides) {
  for (const Guide& guide : guides) {
    const int style = steps.make(&ChartXml::StyleString, guide.styleKind, 1);
    const int made = steps(&ChartXml::AddGuide, parent, guide.type, style);
    steps(&ChartXml::AddParam, made, guide.name, guide.value);
  }
}

} // namespace

int64_t cx_addxyzwireframe_(const int64_t* chart, const int64_t* parent) {
  return guarded(__func__, [&](ChartXml& registry) {
    const int frame = integer(parent);
    Steps steps(registry, integer(chart));
    const int transform = addView(registry, steps, frame);
    for (const char* name : offsets) {
      const int string = steps.make(&ChartXml::NStringNoTranslate, std::string(name));
      addNumber(registry, steps, transform, string, offset);
    }
    addGuides(steps, frame, wireFrame);
    return steps.orFailure(frame);
  });
}

int64_t cx_addxyzbackplanes_(const int64_t* chart, const int64_t* parent) {
  return guarded(__func__, [&](ChartXml& registry) {
    const int frame = integer(parent);
    Steps steps(registry, integer(chart));
    addView(registry, steps, frame);
    addGuides(steps, frame, backPlanes);
    return steps.orFailure(frame);
  });
}
