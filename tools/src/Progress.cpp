#include "Progress.h"

#include <iostream>

#include <fmt/format.h>
#include <unistd.h>

namespace tools {

Progress::Progress(std::size_t steps) : steps_(steps), isSeen_(isatty(STDERR_FILENO) == 1) {}

Progress::~Progress() { clear(); }

void Progress::step(std::string_view name) {
  ++done_;
  if (isSeen_) std::cerr << fmt::format("\r\x1B[K[{}/{}] {}", done_, steps_, name) << std::flush;
}

void Progress::clear() const {
  if (isSeen_) std::cerr << "\r\x1B[K" << std::flush;
}

} // namespace tools
