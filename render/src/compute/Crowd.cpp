#include "compute/Crowd.h"

#include <algorithm>
#include <cmath>

namespace render {
namespace {

constexpr double cellSize = 32;
constexpr double farthest = 1e6; ///< from the picture; beyond nothing meets anything

std::int64_t cellOf(double place) {
  if (!std::isfinite(place)) return 0;
  return static_cast<std::int64_t>(std::floor(std::clamp(place, -farthest, farthest) / cellSize));
}

} // namespace

double Area::on(const Area& other) const {
  const double width = std::min(right, other.right) - std::max(left, other.left);
  const double height = std::min(bottom, other.bottom) - std::max(top, other.top);
  return width > 0 && height > 0 ? width * height : 0;
}

Area Area::movedBy(double x, double y) const {
  return {.left = left + x, .top = top + y, .right = right + x, .bottom = bottom + y};
}

template <typename Visit> void Crowd::forEachCell(const Area& area, Visit visit) {
  for (std::int64_t x = cellOf(area.left); x <= cellOf(area.right); ++x)
    for (std::int64_t y = cellOf(area.top); y <= cellOf(area.bottom); ++y)
      visit((static_cast<std::uint64_t>(x) << 32U) ^ static_cast<std::uint32_t>(y));
}

std::size_t Crowd::add(const Area& area) {
  const std::size_t member = areas_.size();
  areas_.push_back(area);
  forEachCell(area, [&](std::uint64_t cell) { cells_[cell].push_back(member); });
  return member;
}

void Crowd::remove(std::size_t member) {
  forEachCell(areas_[member], [&](std::uint64_t cell) { std::erase(cells_[cell], member); });
}

void Crowd::move(std::size_t member, const Area& area) {
  remove(member);
  areas_[member] = area;
  forEachCell(area, [&](std::uint64_t cell) { cells_[cell].push_back(member); });
}

double Crowd::covered(const Area& area, std::size_t except) const {
  std::vector<std::size_t> met;
  forEachCell(area, [&](std::uint64_t cell) {
    const auto found = cells_.find(cell);
    if (found != cells_.end()) met.insert(met.end(), found->second.begin(), found->second.end());
  });
  std::ranges::sort(met);
  met.erase(std::ranges::unique(met).begin(), met.end());
  double sum = 0;
  for (const std::size_t member : met)
    if (member != except) sum += area.on(areas_[member]);
  return sum;
}

} // namespace render
