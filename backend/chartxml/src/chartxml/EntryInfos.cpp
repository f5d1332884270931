// Texts about weights and split variables, each put together in several steps. An
// entry point ends at the first step that fails.
#include "EntryCall.h"

#include <initializer_list>

#include <chartxml/EntryPoints.h>

using namespace entry;

namespace {

// Fills an open composite and closes it; its handle, or the first negative result.
int compose(ChartXml& registry, int composite, std::initializer_list<int> parameters) {
  for (const int parameter : parameters) {
    const int added = registry.AddParameter(composite, parameter);
    if (added < 0) return added;
  }
  return registry.EndCompositeString(composite);
}

// What stands before the values of the split variables.
int splitPrefix(ChartXml& registry, const int64_t* label, bool keyed) {
  if (!isGiven(label)) return keyed ? registry.NString("E61218") : registry.NStringNoTranslate(";");
  if (keyed) return compose(registry, registry.CompositeString("E61219^1"), {integer(label)});
  const int composite = registry.CompositeString("^1 ^2");
  return compose(registry, composite, {integer(label), registry.NStringNoTranslate(";")});
}

} // namespace

// A label that can't be added leaves the composite open, and its handle is the answer
// all the same.
int64_t cx_weightinfo_(const int64_t*, const int64_t*, const int64_t* variable,
                       const int64_t* tellsCases) {
  if (!variable || *variable <= 0) return -1;
  return guarded(__func__, [&](ChartXml& registry) {
    const int label = registry.VariableLabel(integer(variable));
    if (label < 0) return -1;
    const int composite = registry.CompositeString(logical(tellsCases) ? "E61214^1" : "E61215^1");
    if (composite < 0 || registry.AddParameter(composite, label) < 0) return composite;
    return registry.EndCompositeString(composite);
  });
}

int64_t cx_splitvariableinfo_(const int64_t*, const int64_t* label, const void* values,
                              const int64_t* count, const int64_t* name,
                              const int64_t* variableLabel, const int64_t* value,
                              const int64_t* valueLabel, const int64_t* show,
                              const int64_t* keyed) {
  const bool wanted = count && *count > 0 && (logical(show) || !logical(keyed));
  if (!wanted) return integer(label);
  return guarded(__func__, [&](ChartXml& registry) {
    const int prefix = splitPrefix(registry, label, logical(keyed));
    if (prefix < 0) return prefix;
    const int info = registry.CompositeString("^1 ^2");
    const int added = registry.AddParameter(info, prefix);
    if (added < 0) return added;
    const int list =
        registry.SplitList(Argument<const OBS*>::read(values), logical(name),
                           logical(variableLabel), logical(value), logical(valueLabel));
    return list < 0 ? list : compose(registry, info, {list});
  });
}
