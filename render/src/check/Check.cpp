#include "check/Check.h"

#include <render/Pages.h>

namespace render {
namespace {

struct Rule {
  const char* name;
  void (*check)(const Chart& chart, Report& report);
};

/// Causes before what follows from them.
constexpr Rule rules[] = {
    {"lost-reference", checkReferences},
    {"lost-target", checkLegendTargets},
    {"role-twice", checkRoles},
    {changedData, checkChangedData},
    {"empty-variable", checkEmptyVariables},
    {"stray-text", checkStrayTexts},
    {"unrepeated-numbers", checkUnrepeatedNumbers},
    {"logarithm", checkLogarithms},
    {"empty-panel", checkEmptyPanels},
    {"missing-glyph", checkGlyphs},
};

} // namespace

void check(const Chart& chart, Notes& notes) {
  Report report(chart, notes);
  for (const Rule& rule : rules) {
    report.begin(rule.name);
    rule.check(chart, report);
  }
  report.end();
}

} // namespace render
