#pragma once

#include <cstdint>

/// An integer argument of an entry point: its address lives as long as the full
/// expression.
struct Int {
  Int(std::int64_t given) : value(given) {}
  operator const std::int64_t*() const { return &value; }
  std::int64_t value;
};
