#include <host/ValueColumn.h>

#include <algorithm>
#include <bit>
#include <limits>

namespace host {

template <class Cell, Cell unset>
Cell ValueColumn::Blocks<Cell, unset>::get(std::size_t row) const {
  const std::size_t block = row >> blockBits;
  const std::size_t offset = row & (blockSize - 1);
  if (block >= blocks_.size() || offset >= blocks_[block].size()) return unset;
  return blocks_[block][offset];
}

template <class Cell, Cell unset>
void ValueColumn::Blocks<Cell, unset>::set(std::size_t row, Cell value) {
  const std::size_t block = row >> blockBits;
  const std::size_t offset = row & (blockSize - 1);
  if (block >= blocks_.size()) blocks_.resize(block + 1);
  auto& cells = blocks_[block];
  if (offset >= cells.size())
    cells.resize(block > 0 ? blockSize : std::max(smallestSize, std::bit_ceil(offset + 1)), unset);
  cells[offset] = value;
}

template <class Cell, Cell unset> void ValueColumn::Blocks<Cell, unset>::clear(std::size_t row) {
  if (get(row) != unset) set(row, unset);
}

bool ValueColumn::setNumber(std::size_t row, double value) {
  if (row >= maxRows) return false;
  const double stored = value == value ? value : std::numeric_limits<double>::quiet_NaN();
  numbers_.set(row, std::bit_cast<std::uint64_t>(stored));
  codes_.clear(row);
  rowCount_ = std::max(rowCount_, row + 1);
  return true;
}

bool ValueColumn::setText(std::size_t row, std::string_view utf8) {
  if (row >= maxRows) return false;
  codes_.set(row, codeOf(utf8));
  numbers_.clear(row);
  rowCount_ = std::max(rowCount_, row + 1);
  return true;
}

/// Neighbours often hold the same text; a text that is known allocates nothing.
std::uint32_t ValueColumn::codeOf(std::string_view utf8) {
  if (latestCode_ != noText && *texts_[latestCode_ - 1] == utf8) return latestCode_;
  auto found = codeOfText_.find(utf8);
  if (found == codeOfText_.end()) {
    texts_.push_back(nullptr);
    found = codeOfText_.emplace(utf8, static_cast<std::uint32_t>(texts_.size())).first;
    texts_.back() = &found->first;
  }
  return latestCode_ = found->second;
}

ValueColumn::Kind ValueColumn::kind(std::size_t row) const {
  if (codes_.get(row) != noText) return Kind::text;
  return numbers_.get(row) != noNumber ? Kind::number : Kind::empty;
}

double ValueColumn::number(std::size_t row) const {
  return std::bit_cast<double>(numbers_.get(row));
}

std::string_view ValueColumn::text(std::size_t row) const {
  const std::uint32_t code = codes_.get(row);
  return code == noText ? std::string_view() : *texts_[code - 1];
}

} // namespace host
