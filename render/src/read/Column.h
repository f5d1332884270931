#pragma once

#include <cstddef>
#include <ranges>
#include <string>
#include <string_view>
#include <vector>

namespace render {

/// The texts of a column one behind the other: a million short ones are one allocation.
class Column {
public:
  void add(std::string_view text) {
    bytes_ += text;
    ends_.push_back(bytes_.size());
  }

  std::size_t size() const { return ends_.size(); }
  /// Borrowed until a text is added.
  std::string_view operator[](std::size_t row) const {
    const std::size_t begin = row == 0 ? 0 : ends_[row - 1];
    return {bytes_.data() + begin, ends_[row] - begin};
  }
  /// All of them in turn.
  auto texts() const {
    return std::views::iota(std::size_t{0}, size()) |
           std::views::transform([this](std::size_t row) { return (*this)[row]; });
  }

private:
  std::string bytes_;
  std::vector<std::size_t> ends_;
};

} // namespace render
