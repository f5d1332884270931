#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace host {

/// What is wrong with one cell or one property. The reader that meets it adds
/// the place and throws DataError.
class Refusal : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// A text of a file as a message shows it: in quotes, and shortened when long.
std::string shown(std::string_view utf8);

} // namespace host
