// Entry points that build common parts of a chart in one call. Each stops at the
// first step that fails, with that step's result, and leaves what it made so far.
#include "EntryCall.h"

#include <optional>

#include "../StringHandles.h"
#include "Extents.h"
#include <chartxml/EntryPoints.h>

using namespace entry;

namespace {

// Dimensions with an axis play the roles x, y and z: 1 to 3.
constexpr int64_t lastAxisRole = 3;

/// What a dimension with its axis is made of, as the procedure passed it.
struct DimensionAxis {
  const int64_t* chart;
  const int64_t* parent;
  const int64_t* domain;
  const int64_t* opposite;
  int64_t* style;
  int64_t* axis;
  Extents extents;
};

int64_t addDimensionAxis(ChartXml& registry, int role, const DimensionAxis& given) {
  const int chart = integer(given.chart);
  const int style = registry.StyleString(role, 1);
  if (store(given.style, style) < 0) return style;
  const int dimension =
      registry.AddDimension(chart, integer(given.parent), role, integer(given.domain));
  if (dimension < 0) return dimension;
  const int set = setExtents(registry, chart, dimension, given.extents);
  if (set < 0) return set;
  const int axis = registry.AddAxis(chart, dimension, style, logical(given.opposite));
  if (store(given.axis, axis) < 0) return axis;
  const int ticks = registry.AddMajorTicks(chart, axis, -1, false, -1, -1, false, -1);
  return ticks < 0 ? ticks : dimension;
}

// A style name of its own, a frame of that name, and in it what `fill` makes.
template <class Fill>
int64_t addNamedFrame(ChartXml& registry, const int64_t* chart, const int64_t* parent, int kind,
                      const int64_t* styleArgument, int64_t* styleOut, Fill fill) {
  const int style = registry.StyleString(kind, integer(styleArgument));
  if (store(styleOut, style) < 0) return style;
  const int frame = registry.AddFrame(integer(chart), integer(parent), style);
  return frame < 0 ? frame : fill(frame, style);
}

/// Where a legend in a frame of its own goes, as the procedure passed it.
struct LegendFrame {
  const int64_t* chart;
  const int64_t* parent;
  const int64_t* styleArgument;
  int64_t* style;
  int64_t* legend;
};

// `explain` adds to the legend what it explains.
template <class Explain>
int64_t addLegendFrame(const char* entryPoint, const LegendFrame& given, Explain explain) {
  return guarded(entryPoint, [&](ChartXml& registry) {
    return addNamedFrame(registry, given.chart, given.parent, strings::legend, given.styleArgument,
                         given.style, [&](int frame, int name) -> int64_t {
                           const int made = registry.AddLegend(integer(given.chart), frame, name);
                           if (store(given.legend, made) < 0) return made;
                           const int explained = explain(registry, made, name);
                           return explained < 0 ? explained : made;
                         });
  });
}

/// What differs between chart skeletons: the inner frame's name, and how the frames
/// clip; nothing said leaves the outer frame as it is.
struct Skeleton {
  const char* innerName;
  std::optional<bool> clipOuter;
  bool clipInner;
};

int64_t createSkeleton(const char* entryPoint, const Skeleton& skeleton, void* procedure,
                       void* const* dictionary, const char* name, const int64_t* nameLength,
                       int64_t* chartOut, int64_t* sourceOut, int64_t* outerOut,
                       int64_t* innerOut) {
  return guarded(entryPoint, [&](ChartXml& registry) -> int64_t {
    const int64_t made = cx_createchart_(procedure, dictionary, name, nameLength);
    if (store(chartOut, made) < 0) return made;
    const int chart = static_cast<int>(made);
    const int source = registry.AddSource(chart);
    if (store(sourceOut, source) < 0) return source;
    int outer = registry.AddFrame(chart, 0, registry.NStringNoTranslate("graph_1"));
    if (store(outerOut, outer) < 0) return outer;
    int inner = registry.AddFrame(chart, outer, registry.NStringNoTranslate(skeleton.innerName));
    if (store(innerOut, inner) < 0) return inner;
    if (skeleton.clipOuter) {
      outer = registry.SetFrameClipping(chart, outer, *skeleton.clipOuter);
      if (store(outerOut, outer) < 0) return outer;
    }
    inner = registry.SetFrameClipping(chart, inner, skeleton.clipInner);
    return store(innerOut, inner) < 0 ? inner : made;
  });
}

} // namespace

int64_t cx_createchartex_(void* procedure, void* const* dictionary, const char* name,
                          const int64_t* nameLength, int64_t* chart, int64_t* source,
                          int64_t* graphFrame, int64_t* dataFrame) {
  return createSkeleton(__func__, {"data_1", true, false}, procedure, dictionary, name, nameLength,
                        chart, source, graphFrame, dataFrame);
}

int64_t cx_createpiechart_(void* procedure, void* const* dictionary, const char* name,
                           const int64_t* nameLength, int64_t* chart, int64_t* source,
                           int64_t* graphFrame, int64_t* pieFrame) {
  return createSkeleton(__func__, {"pie_1", std::nullopt, true}, procedure, dictionary, name,
                        nameLength, chart, source, graphFrame, pieFrame);
}

int64_t cx_adddimensionaxis_(const int64_t* chart, const int64_t* parent, const int64_t* index,
                             const int64_t* domain, const int64_t* opposite, int64_t* style,
                             int64_t* axis, const int64_t* upperMargin, const int64_t* lowerMargin,
                             const int64_t* upperMapping, const int64_t* lowerMapping) {
  // All 64 bits of the index count.
  if (!index || *index < 1 || *index > lastAxisRole) return -1;
  return guarded(__func__, [&](ChartXml& registry) {
    return addDimensionAxis(registry, integer(index),
                            {chart,
                             parent,
                             domain,
                             opposite,
                             style,
                             axis,
                             {upperMargin, lowerMargin, upperMapping, lowerMapping}});
  });
}

int64_t cx_addxydimension_(const int64_t* chart, const int64_t* parent, const int64_t* xDomain,
                           const int64_t* yDomain, const int64_t* xOpposite,
                           const int64_t* yOpposite, int64_t* xStyle, int64_t* xAxis,
                           int64_t* yStyle, int64_t* yAxis, const int64_t* xUpperMargin,
                           const int64_t* xLowerMargin, const int64_t* yUpperMargin,
                           const int64_t* yLowerMargin, const int64_t* xUpperMapping,
                           const int64_t* xLowerMapping, const int64_t* yUpperMapping,
                           const int64_t* yLowerMapping) {
  return guarded(__func__, [&](ChartXml& registry) {
    const int64_t x =
        addDimensionAxis(registry, 1,
                         {chart,
                          parent,
                          xDomain,
                          xOpposite,
                          xStyle,
                          xAxis,
                          {xUpperMargin, xLowerMargin, xUpperMapping, xLowerMapping}});
    if (x < 0) return x;
    const int64_t y =
        addDimensionAxis(registry, 2,
                         {chart,
                          parent,
                          yDomain,
                          yOpposite,
                          yStyle,
                          yAxis,
                          {yUpperMargin, yLowerMargin, yUpperMapping, yLowerMapping}});
    return y < 0 ? y : x;
  });
}

int64_t cx_addxydimensionwithaxis_(const int64_t* chart, const int64_t* parent,
                                   const int64_t* xDomain, const int64_t* yDomain,
                                   const int64_t* xOpposite, const int64_t* yOpposite,
                                   int64_t* xStyle, int64_t* xAxis, int64_t* yStyle,
                                   int64_t* yAxis) {
  int64_t margin = -1;
  const int64_t none = -1;
  const int64_t made = guarded(
      __func__, [&](ChartXml& registry) { return margin = registry.NStringNoTranslate("5%"); });
  if (made < 0) return made;
  return cx_addxydimension_(chart, parent, xDomain, yDomain, xOpposite, yOpposite, xStyle, xAxis,
                            yStyle, yAxis, &margin, &margin, &margin, &margin, &none, &none, &none,
                            &none);
}

int64_t cx_addxydimaxiswithsameratio_(const int64_t* chart, const int64_t* parent,
                                      const int64_t* xDomain, const int64_t* yDomain,
                                      const int64_t* xOpposite, const int64_t* yOpposite,
                                      const int64_t* sameRatio, int64_t* xStyle, int64_t* xAxis,
                                      int64_t* yStyle, int64_t* yAxis) {
  return guarded(__func__, [&](ChartXml& registry) -> int64_t {
    const int64_t margin = registry.NStringNoTranslate("0%");
    if (margin < 0) return margin;
    const int64_t none = -1;
    const Extents extents{&margin, &margin, &none, &none};
    const int64_t x =
        addDimensionAxis(registry, 1, {chart, parent, xDomain, xOpposite, xStyle, xAxis, extents});
    if (x < 0) return x;
    const int64_t y =
        addDimensionAxis(registry, 2, {chart, parent, yDomain, yOpposite, yStyle, yAxis, extents});
    if (y < 0) return y;
    for (const int64_t dimension : {x, y}) {
      const int set = registry.SetDimensionSameRatio(integer(chart), static_cast<int>(dimension),
                                                     logical(sameRatio));
      if (set < 0) return set;
    }
    return x;
  });
}

int64_t cx_addlegendframe_(const int64_t* chart, const int64_t* parent, const int64_t* target,
                           const int64_t* styleArgument, const int64_t* aesthetic, const int64_t*,
                           int64_t* style, int64_t* legend) {
  return addLegendFrame(__func__, {chart, parent, styleArgument, style, legend},
                        [&](ChartXml& registry, int made, int name) {
                          return registry.AddLegendTarget(integer(chart), made, integer(target),
                                                          name, integer(aesthetic));
                        });
}

int64_t cx_addlegendframeex_(const int64_t* chart, const int64_t* parent, const int64_t* target,
                             const int64_t* styleArgument, const int64_t* styleBy, int64_t* style,
                             int64_t* legend) {
  return addLegendFrame(
      __func__, {chart, parent, styleArgument, style, legend},
      [&](ChartXml& registry, int made, int name) {
        return isGiven(styleBy)
                   ? registry.AddLegendTargetEx(integer(chart), made, integer(target),
                                                integer(styleBy), name)
                   : registry.AddLegendTarget(integer(chart), made, integer(target), name, -1);
      });
}

int64_t cx_addframewithlabel_(const int64_t* chart, const int64_t* parent, const int64_t* styleKind,
                              const int64_t* styleArgument, const int64_t* label) {
  return guarded(__func__, [&](ChartXml& registry) {
    return addNamedFrame(registry, chart, parent, integer(styleKind), styleArgument, nullptr,
                         [&](int frame, int name) -> int64_t {
                           const int made =
                               registry.AddLabel(integer(chart), frame, name, integer(label));
                           return made < 0 ? made : frame;
                         });
  });
}

int64_t cx_addsplitheaderex_(const int64_t* chart, const int64_t* parent, const void* values,
                             const int64_t*) {
  return caught(__func__, [&] {
    const int64_t header = cx_splitheader_(values, nullptr);
    if (header < 0) return header;
    const int64_t kind = strings::subtitle;
    const int64_t number = 1;
    return cx_addframewithlabel_(chart, parent, &kind, &number, &header);
  });
}

int64_t cx_addxyelementex_(const int64_t* chart, const int64_t* parent,
                           const int64_t* styleArgument, const int64_t* type,
                           const int64_t* xVariable, const int64_t* yVariable,
                           const int64_t* styleKind, int64_t* element) {
  return guarded(__func__, [&](ChartXml& registry) -> int64_t {
    const int style = registry.StyleString(integer(styleKind), integer(styleArgument));
    if (style < 0) return style;
    const int made = registry.AddElement(integer(chart), integer(parent), integer(type), style);
    if (store(element, made) < 0) return made;
    const int x = registry.AddX(integer(chart), made, integer(xVariable));
    if (x < 0) return x;
    const int y = registry.AddY(integer(chart), made, integer(yVariable));
    return y < 0 ? y : made;
  });
}
