#pragma once

#include <array>
#include <cstdint>
#include <memory>

/// A tuple of integers as the key of a ChartHashtable; every key of this system
/// has one value, a handle, and needs no memory beside itself.
class ChartKey {
public:
  /// Multipliers of the hash, by position: the first 49 primes. Small ones keep
  /// the hash of any handle below 2^30 - 1 readable as a non-negative number, which
  /// the table's signed remainder relies on; the first is 2, and since every
  /// capacity is odd, sequential handles fall into buckets of their own.
  static constexpr std::array<std::uint32_t, 49> PRIME_FACTOR{
      2,   3,   5,   7,   11,  13,  17,  19,  23,  29,  31,  37,  41,  43,  47,  53,  59,
      61,  67,  71,  73,  79,  83,  89,  97,  101, 103, 107, 109, 113, 127, 131, 137, 139,
      149, 151, 157, 163, 167, 173, 179, 181, 191, 193, 197, 199, 211, 223, 227};
  static constexpr std::int32_t ADD_LOWER_BOUND = 1;

  /// A key of `count` values, all 0. Write them, then call UpdateHashCode.
  explicit ChartKey(int count)
      : count_(count),
        more_(count > 1 ? std::make_unique<std::int32_t[]>(static_cast<std::size_t>(count))
                        : nullptr) {}

  /// A key of one value, its hash up to date.
  static ChartKey ofHandle(int handle) {
    ChartKey key(1);
    key[0] = handle;
    key.UpdateHashCode();
    return key;
  }

  std::int32_t& operator[](int i) { return values()[i]; }
  std::int32_t operator[](int i) const { return const_cast<ChartKey*>(this)->values()[i]; }

  void UpdateHashCode() { hash_ = ChartKeyHash(); }
  std::uint32_t hashcode() const { return hash_; }

  std::uint32_t ChartKeyHash() const {
    std::uint32_t hash = 0;
    for (int i = 0; i < count_; ++i) {
      hash ^=
          PRIME_FACTOR[static_cast<std::size_t>(i) % PRIME_FACTOR.size()] *
          (static_cast<std::uint32_t>((*this)[i]) + static_cast<std::uint32_t>(ADD_LOWER_BOUND));
    }
    return hash;
  }

  bool operator==(const ChartKey& other) const {
    if (hash_ != other.hash_ || count_ != other.count_) return false;
    for (int i = 0; i < count_; ++i) {
      if ((*this)[i] != other[i]) return false;
    }
    return true;
  }

private:
  std::int32_t* values() { return more_ ? more_.get() : &only_; }

  std::int32_t count_;
  std::uint32_t hash_ = 0;
  std::int32_t only_ = 0;
  std::unique_ptr<std::int32_t[]> more_;
};
