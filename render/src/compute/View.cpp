#include "compute/View.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numbers>

namespace render {
namespace {

std::array<BoxPlace, 3> turnOf(const ViewAngles& angles) {
  constexpr double degree = std::numbers::pi / 180;
  const double ct = std::cos(angles.theta * degree), st = std::sin(angles.theta * degree);
  const double cp = std::cos(angles.phi * degree), sp = std::sin(angles.phi * degree);
  const double cz = std::cos(angles.zeta * degree), sz = std::sin(angles.zeta * degree);
  const BoxPlace right{cp, 0, sp};
  const BoxPlace up{st * sp, ct, -st * cp};
  const BoxPlace near{-ct * sp, st, ct * cp};
  std::array<BoxPlace, 3> turn{right, up, near};
  for (std::size_t i = 0; i < 3; ++i) {
    turn[0][i] = cz * right[i] - sz * up[i];
    turn[1][i] = sz * right[i] + cz * up[i];
  }
  return turn;
}

double product(const BoxPlace& row, const BoxPlace& place) {
  return row[0] * place[0] + row[1] * place[1] + row[2] * place[2];
}

} // namespace

View::View(const ViewAngles& angles, const Room& room)
    : turn(turnOf(angles)), eye(angles.distance * std::numbers::sqrt3) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  double left = infinity, right = -infinity, top = infinity, bottom = -infinity;
  for (const double x : {-0.5, 0.5})
    for (const double y : {-0.5, 0.5})
      for (const double z : {-0.5, 0.5}) {
        const Point corner = at({x, y, z});
        left = std::min(left, corner.x);
        right = std::max(right, corner.x);
        top = std::min(top, corner.y);
        bottom = std::max(bottom, corner.y);
      }
  scale = std::min(room.width * (1 - 2 * room.sideShare) / (right - left),
                   room.height * (1 - 2 * room.endShare) / (bottom - top));
  middleX = room.width / 2 - scale * (left + right) / 2;
  middleY = room.height / 2 - scale * (top + bottom) / 2;
}

View::Point View::at(const BoxPlace& place) const {
  const double nearness = product(turn[2], place);
  const double size = scale / (eye - nearness);
  return {.x = middleX + size * product(turn[0], place),
          .y = middleY - size * product(turn[1], place),
          .nearness = nearness};
}

} // namespace render
