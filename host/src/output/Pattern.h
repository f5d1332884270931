#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace host {

/// A text in the display language and in English.
struct Wording {
  std::string display;
  std::string english;
};

/// What a pattern's numbers refer to.
struct PatternParameters {
  std::vector<Wording> plain;
  std::vector<std::vector<Wording>> lists;
};

/// The text that a pattern makes of its parameters, in the wording named; the
/// grammar stands with OmComposite. Every pattern makes some text.
std::string assemble(std::string_view pattern, const PatternParameters& parameters,
                     std::string Wording::* wording);

} // namespace host
