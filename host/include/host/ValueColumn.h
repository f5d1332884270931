#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <host/Export.h>

namespace host {

/// One column of values: numbers at 8 bytes a cell, texts at 4 bytes a cell with
/// each distinct text kept once. A column may hold both; either store is made
/// only when its first value comes. Grows by blocks: values are not copied as a
/// long column gets longer, and rows that are skipped cost next to nothing.
class KORVA_API ValueColumn {
public:
  enum class Kind { empty, number, text };

  /// Rows from here on are refused, so that a wild row index cannot take all
  /// memory.
  static constexpr std::size_t maxRows = std::size_t{1} << 31;

  ValueColumn() = default;
  ~ValueColumn() = default;
  ValueColumn(const ValueColumn&) = delete;
  ValueColumn& operator=(const ValueColumn&) = delete;
  ValueColumn(ValueColumn&&) = default;
  ValueColumn& operator=(ValueColumn&&) = default;

  /// Sets a cell, whatever it held before. Rows count from 0. False, and no
  /// change, from maxRows on.
  bool setNumber(std::size_t row, double value);
  bool setText(std::size_t row, std::string_view utf8);

  /// One more than the highest row set.
  std::size_t rowCount() const { return rowCount_; }
  /// True once a text was set: the column is described as texts then.
  bool hasTexts() const { return !texts_.empty(); }

  /// A row that was never set is empty, past the end as well.
  Kind kind(std::size_t row) const;
  /// The number of a cell of kind number; a NaN comes back as the standard quiet
  /// one. Of another kind: a NaN.
  double number(std::size_t row) const;
  /// The text of a cell of kind text; valid while the column lives. Of another
  /// kind: empty.
  std::string_view text(std::size_t row) const;

private:
  /// A NaN that no value can have, because a NaN that is set becomes the
  /// standard one.
  static constexpr std::uint64_t noNumber = 0x7FF8'0000'0000'0EEE;
  static constexpr std::uint32_t noText = 0;

  /// Cells in blocks; a block is made when its first cell is set, the first one
  /// from small up, so that a short column takes little.
  template <class Cell, Cell unset> class Blocks {
  public:
    Cell get(std::size_t row) const;
    void set(std::size_t row, Cell value);
    void clear(std::size_t row);

  private:
    static constexpr std::size_t blockBits = 13;
    static constexpr std::size_t blockSize = std::size_t{1} << blockBits;
    static constexpr std::size_t smallestSize = 16;
    std::vector<std::vector<Cell>> blocks_;
  };

  struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>{}(text);
    }
  };

  std::uint32_t codeOf(std::string_view utf8);

  Blocks<std::uint64_t, noNumber> numbers_; ///< the bits of doubles
  Blocks<std::uint32_t, noText> codes_;     ///< index in texts_ plus 1
  std::unordered_map<std::string, std::uint32_t, TextHash, std::equal_to<>> codeOfText_;
  std::vector<const std::string*> texts_; ///< the keys of codeOfText_ by code
  std::uint32_t latestCode_ = noText;
  std::size_t rowCount_ = 0;
};

} // namespace host
