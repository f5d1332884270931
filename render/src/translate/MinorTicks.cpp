#include "translate/MinorTicks.h"

#include <cmath>

#include "text/Show.h"
#include "translate/AxisTicks.h"
#include "translate/Matrix.h"

namespace render {
namespace {

constexpr double most = 20;
constexpr double usualLength = 3;

/// How many ticks stand between two major ones; 0 when that cannot be drawn.
double countOf(const Node& minorTicks, Notes& notes) {
  const std::string_view text = minorTicks.attribute("number");
  if (text.empty()) return 1;
  const double count = numberOf(text);
  if (count >= 1 && count <= most) return count;
  if (count != 0) notes.add("Attribute not drawn^3", {minorTicks.name(), "number", shown(text)});
  return 0;
}

/// From below the first major tick to the end of the scale.
Json evenPlaces(const Json& values, double count, const Dimension& dimension) {
  const double first = values[0].get<double>();
  const double step = (values[1].get<double>() - first) / (count + 1);
  Json places = Json::array();
  const double start = std::ceil((dimension.low - first) / step);
  for (double i = start; first + i * step <= dimension.high; ++i)
    places.push_back(jsonNumber(first + i * step));
  return places;
}

/// Even steps from each power of the base to the next: eight make the multiples of powers
/// of ten.
Json placesBetweenPowers(double count, const Dimension& dimension) {
  const double base = dimension.parameter;
  Json places = Json::array();
  const auto addUpTo = [&](double power) {
    const double step = (power - power / base) / (count + 1);
    for (double i = 1; i <= count; ++i) {
      const double place = power / base + i * step;
      if (place >= dimension.low && place <= dimension.high) places.push_back(jsonNumber(place));
    }
  };
  const double first = std::floor(std::log(dimension.low) / std::log(base));
  const double last = std::ceil(std::log(dimension.high) / std::log(base));
  for (double exponent = first + 1; exponent <= last; ++exponent)
    addUpTo(std::pow(base, exponent));
  return places;
}

} // namespace

void addMinorTicks(const Json& major, const Node& minorTicks, const Dimension& dimension,
                   Context& context) {
  const bool isLog = !dimension.categorical && dimension.type == ScaleType::log;
  const bool isEven = !dimension.categorical && dimension.type == ScaleType::linear;
  const Json values = major.value("values", Json::array());
  if (!(isEven || isLog) || values.size() < 2) {
    context.notes.add("Minor ticks not drawn^1", {dimension.role});
    return;
  }
  const double count = std::floor(countOf(minorTicks, context.notes));
  if (count == 0) return;
  Json places =
      isLog ? placesBetweenPowers(count, dimension) : evenPlaces(values, count, dimension);
  context.parts.axes.push_back(
      {{"scale", dimension.role},
       {"orient", major["orient"]},
       {"values", std::move(places)},
       {"domain", false},
       {"labels", false},
       {"grid", hasGrid(minorTicks, context)},
       {"ticks", major["ticks"]},
       {"tickSize", jsonNumber(tickLength(minorTicks, usualLength, context.notes))}});
}

} // namespace render
