#pragma once

#include "check/Report.h"
#include "resolve/Chart.h"

namespace render {

/// Compares the document with its data before the picture is drawn: what cannot be meant
/// becomes a finding, which is told in the notes, in the manifest and in the error log.
void check(const Chart& chart, Notes& notes);

// One rule each, in a file of its own.
void checkChangedData(const Chart& chart, Report& report);
void checkEmptyVariables(const Chart& chart, Report& report);
void checkEmptyPanels(const Chart& chart, Report& report);
void checkGlyphs(const Chart& chart, Report& report);
void checkLegendTargets(const Chart& chart, Report& report);
void checkLogarithms(const Chart& chart, Report& report);
void checkReferences(const Chart& chart, Report& report);
void checkRoles(const Chart& chart, Report& report);
void checkStrayTexts(const Chart& chart, Report& report);
void checkUnrepeatedNumbers(const Chart& chart, Report& report);

} // namespace render
