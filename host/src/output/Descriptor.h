#pragma once

#include <utility>

#include <unistd.h>

namespace host {

/// An open file descriptor, or none.
class Descriptor {
public:
  Descriptor() = default;
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(); }

  explicit operator bool() const { return number_ >= 0; }
  int get() const { return number_; }

  /// Whether the file was closed without an error; true when there is none.
  bool close() { return number_ < 0 || ::close(std::exchange(number_, -1)) == 0; }

private:
  int number_ = -1;
};

} // namespace host
