#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace host {

/// One column of values: numbers at 8 bytes a cell, texts at 4 bytes a cell with
/// each distinct text kept once. A column may hold both; either store is made
/// only when its first value comes. Grows by blocks, so values never move.
class ValueColumn {
public:
  enum class Kind { empty, number, text };

  void setNumber(std::size_t row, double value);
  void setText(std::size_t row, std::string_view utf8);

  std::size_t rowCount() const { return rowCount_; }
  /// True once a text was set: the column is described as texts then.
  bool hasTexts() const { return !texts_.empty(); }

  Kind kind(std::size_t row) const;
  /// The number of a cell of kind number.
  double number(std::size_t row) const;
  /// The text of a cell of kind text.
  std::string_view text(std::size_t row) const;

private:
  static constexpr std::size_t blockBits = 13;
  static constexpr std::size_t blockSize = std::size_t{1} << blockBits;
  template <class T> using Blocks = std::vector<std::unique_ptr<T[]>>;

  Blocks<double> numbers_;
  Blocks<std::uint32_t> codes_; ///< 0: no text, else index in texts_ plus 1
  std::vector<const std::string*> texts_;
  std::unordered_map<std::string, std::uint32_t> codeOfText_;
  std::size_t rowCount_ = 0;
};

} // namespace host
