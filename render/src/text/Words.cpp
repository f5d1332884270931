#include "text/Words.h"

namespace render {

std::string Words::operator()(std::string_view key,
                              std::initializer_list<std::string_view> parameters) const {
  const auto found = texts_.find(key);
  const std::string_view pattern = found == texts_.end() ? key : std::string_view(found->second);
  std::string text;
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const bool isSign = pattern[i] == '^' && i + 1 < pattern.size();
    const auto number = isSign ? static_cast<std::size_t>(pattern[i + 1] - '1') : parameters.size();
    if (number < parameters.size()) {
      text += parameters.begin()[number];
      ++i;
    } else {
      text += pattern[i];
    }
  }
  return text;
}

} // namespace render
