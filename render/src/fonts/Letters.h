#pragma once

#include <set>
#include <string>

#include "text/Json.h"

namespace render {

/// Characters, each with the marks that stand on it.
using Letters = std::set<std::u32string>;

/// What a picture may be written with, by weight.
struct LettersByWeight {
  Letters regular; ///< printable ASCII among it, which texts of numbers are made of
  Letters bold;    ///< those of titles
};

/// The letters of the texts in a Vega chart, and those that Vega adds of its own.
LettersByWeight lettersOf(const Json& spec);

} // namespace render
