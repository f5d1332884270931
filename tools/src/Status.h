#pragma once

#include <stdexcept>

namespace tools {

/// How a command ended.
enum Status : int {
  good = 0,
  findings = 1, ///< a chart is not as it should be, or cannot be drawn
  usage = 2,    ///< the command line is not understood, or names what is no chart
  failed = 3    ///< the work could not be done: a file cannot be read or written, ...
};

/// A command line that cannot be followed.
class UsageError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

} // namespace tools
