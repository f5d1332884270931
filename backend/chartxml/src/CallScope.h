#pragma once

#include <cstdint>

/// The call that is running: that of an entry point, or of an operation of the registry
/// when a C++ program calls it. What a call does through others belongs to it, so that the
/// outermost one counts. Charts note it as the maker of their nodes, at the cost of a
/// pointer and a number.
class CallScope {
public:
  /// A text that lasts: the entry point's name, or the function name of a source location.
  explicit CallScope(const char* name) noexcept : isOutermost_(name_ == nullptr) {
    if (!isOutermost_) return;
    name_ = name;
    ++number_;
  }
  ~CallScope() {
    if (isOutermost_) name_ = nullptr;
  }
  CallScope(const CallScope&) = delete;
  CallScope& operator=(const CallScope&) = delete;

  /// Null while no call runs.
  static const char* name() { return name_; }
  /// Tells calls apart.
  static std::uint64_t number() { return number_; }

private:
  static inline const char* name_ = nullptr;
  static inline std::uint64_t number_ = 0;

  bool isOutermost_;
};
