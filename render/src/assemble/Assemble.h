#pragma once

#include "resolve/Chart.h"
#include "translate/Translator.h"

namespace render {

/// Puts the parts together to one Vega specification with its data inline. Beside
/// what Vega reads, "usermeta" holds what the page shows: the notes, and the
/// columns of the data table.
Json assemble(const Chart& chart, const Layout& layout, Parts parts, const Notes& notes);

} // namespace render
