#pragma once

#include <stdexcept>

namespace tools {

/// How a command ended. What is wrong with a chart is a finding, whichever verb meets it.
enum Status : int {
  good = 0,
  findings = 1, ///< a chart is not as it should be: a file of it is missing, damaged, refused
  usage = 2,    ///< the command line is not understood, or names what is no chart
  failed = 3    ///< the work could not be done: a file cannot be written, Node.js is missing
};

/// A command line that cannot be followed.
class UsageError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// A chart that keeps the command from going on.
class ChartError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

} // namespace tools
