#pragma once

#include "translate/Translator.h"

namespace render {

/// The scale of a role in the panel that is drawn, named by the role.
Json positionScale(std::string_view role, const Context& context);

/// The panel that is drawn, with what was collected for it.
Json panelGroup(Context& context);

} // namespace render
