#pragma once

#include <vector>

#include "resolve/Chart.h"
#include "text/Words.h"
#include "thin/Excerpt.h"
#include "translate/Translator.h"

namespace render {

/// Puts the parts together to one Vega specification with the excerpts of its data
/// inline. Beside what Vega reads, "usermeta" holds what the page shows: the title, the
/// notes, and the columns of the data table.
Json assemble(const Chart& chart, const Layout& layout, Parts parts,
              const std::vector<Excerpt>& excerpts, const Words& words, const Notes& notes);

} // namespace render
