#pragma once

#include <cstddef>
#include <string_view>

namespace tools {

/// Tells how far a long job is, in one line on a terminal's standard error that is gone
/// at the end. Where no one looks nothing is written.
class Progress {
public:
  explicit Progress(std::size_t steps);
  ~Progress();
  Progress(const Progress&) = delete;
  Progress& operator=(const Progress&) = delete;

  /// Begins the next step.
  void step(std::string_view name);
  /// Makes room for another line.
  void clear() const;

private:
  std::size_t steps_;
  std::size_t done_ = 0;
  bool isSeen_;
};

} // namespace tools
