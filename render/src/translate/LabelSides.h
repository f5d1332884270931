#pragma once

#include "translate/Translator.h"

namespace render {

/// Finds a side of its point for each label of the panel that is drawn, where it lies on
/// neither other labels nor marks; of elements whose labels shall not collide those are left
/// out that find none. Comes after all marks of the panel.
void arrangeLabels(Context& context);

/// Notes how many labels were left out.
void noteLabelsLeftOut(Context& context);

} // namespace render
