#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace render {

/// A rectangle of a picture, in pixels.
struct Area {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  /// How much of it lies on another, in square pixels.
  double on(const Area& other) const;
  /// As seen from elsewhere.
  Area movedBy(double x, double y) const;
};

/// Rectangles that get in each other's way, found by where they are.
class Crowd {
public:
  static constexpr auto nobody = static_cast<std::size_t>(-1);

  /// Its number is that of those before it.
  std::size_t add(const Area& area);
  void remove(std::size_t member);
  void move(std::size_t member, const Area& area);

  /// How much of an area lies on the members, but for one of them.
  double covered(const Area& area, std::size_t except = nobody) const;

private:
  template <typename Visit> static void forEachCell(const Area& area, Visit visit);

  std::vector<Area> areas_;
  std::unordered_map<std::uint64_t, std::vector<std::size_t>> cells_; ///< who reaches into each
};

} // namespace render
