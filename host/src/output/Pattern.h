#pragma once

#include <cstddef>
#include <optional>
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

/// What a pattern and its parameters may come to, in bytes read and written.
inline constexpr std::size_t mostAssembled = std::size_t{64} << 20;

/// The text that a pattern makes of its parameters, in the wording named; the
/// grammar stands with OmComposite. Every pattern makes some text, unless it comes
/// to more than `mostAssembled`.
std::optional<std::string> assemble(std::string_view pattern, const PatternParameters& parameters,
                                    std::string Wording::* wording);

} // namespace host
