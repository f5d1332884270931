#pragma once

#include <array>

namespace render {

/// A place in a box: along x to the right, y upward, z toward the front, each from -0.5
/// to 0.5.
using BoxPlace = std::array<double, 3>;

/// How a box is seen, angles in degrees.
struct ViewAngles {
  double theta = 10;     ///< how far its top is tipped toward the eye
  double phi = -35;      ///< how far it is turned about its upright middle
  double zeta = 0;       ///< how far the picture is turned
  double distance = 1.3; ///< of the eye from the middle, in diagonals of the box; above 0.5
};

/// A box in perspective, as large as a part of the picture has room for.
class View {
public:
  struct Room {
    double width, height;       ///< in pixels
    double sideShare, endShare; ///< of them that stays free at either side
  };
  /// A place in the picture, from its top left corner.
  struct Point {
    double x, y;
    double nearness; ///< greater in front
  };

  View(const ViewAngles& angles, const Room& room);

  Point at(const BoxPlace& place) const;

  /// What `at` computes, for those who compute it elsewhere: with (right, up, near) = turn *
  /// place, x = middleX + scale * right / (eye - near) and y = middleY - the same of up.
  std::array<BoxPlace, 3> turn{};
  double eye;
  double scale = 1;
  double middleX = 0;
  double middleY = 0;
};

} // namespace render
